#include "refhost/engine/check/TypeRules.h"

#include "refhost/engine/VarTypeName.h"
#include "refhost/engine/check/TaskFacts.h"

namespace {

using MaybeFinding = std::optional<Finding>;

/// Whether the property is made for values of this type. A kind of "string" asks for something to
/// be taken as text, which any single value is.
bool isAskedFor(const PropertySchema &schema, VarType type)
{
    if (schema.restriction.isEmpty() || namesType(schema.restriction, type))
        return true;
    return schema.restrictionKey == QLatin1String("varref_kind") && !holdsElements(type) &&
           namesType(schema.restriction, VarType::String);
}

QString countOf(const OperandText &operand)
{
    return quoted(QStringLiteral("$%1.Count").arg(operand.name));
}

MaybeFinding textOfOtherType(const Setting &setting, const TaskFacts &facts)
{
    const VarType type = facts.typeBehind(setting.operand);
    if (setting.role != PropertyRole::Text || type == VarType::None ||
        isAskedFor(setting.schema, type))
        return std::nullopt;
    QString wanted = setting.schema.restriction;
    wanted.replace(QLatin1Char(','), QLatin1String(" or "));
    const QString message = QStringLiteral("%1 is of type %2 where %3 is asked for")
                                .arg(quoted(setting.text()), varTypeName(type), wanted);
    if (holdsElements(type)) {
        return findingAt(setting, Mistake::ReferenceType, Severity::Warning,
                         {message,
                          QStringLiteral("as a text it is its elements with \", \" between them"),
                          QStringLiteral("make a text of it in a step of its own, or write %1 for "
                                         "how many elements it has")
                              .arg(countOf(setting.operand))});
    }
    return findingAt(setting, Mistake::ReferenceType, Severity::Warning,
                     {message, QStringLiteral("the step takes it as it is, or cannot use it"),
                      QStringLiteral("refer to a variable of type ") + wanted});
}

MaybeFinding numberOfOtherType(const Setting &setting, const TaskFacts &facts)
{
    const VarType type = facts.typeBehind(setting.operand);
    if (setting.role != PropertyRole::Number || type == VarType::None)
        return std::nullopt;
    const QString message = QStringLiteral("%1 is of type %2 where a number is asked for")
                                .arg(quoted(setting.text()), varTypeName(type));
    if (type == VarType::Bool) {
        return findingAt(setting, Mistake::ReferenceType, Severity::Warning,
                         {message, QStringLiteral("true counts as 1, false as 0"),
                          QStringLiteral("refer to a variable of type int or double")});
    }
    if (!holdsElements(type))
        return std::nullopt;
    return findingAt(setting, Mistake::ReferenceType, Severity::Error,
                     {message, nothingThere(setting),
                      QStringLiteral("refer to a number, or write %1 for how many elements it has")
                          .arg(countOf(setting.operand))});
}

/// A text that no step writes is known, and it may be no number.
MaybeFinding textThatIsNoNumber(const Setting &setting, const TaskFacts &facts)
{
    if (setting.role != PropertyRole::Number ||
        facts.typeBehind(setting.operand) != VarType::String)
        return std::nullopt;
    const TaskVariable &variable = *facts.variable(setting.operand.name);
    const QVariant value = facts.knownValue(variable);
    if (!value.isValid() || numberInValue(value))
        return std::nullopt;
    return findingAt(setting, Mistake::NotANumber, Severity::Warning,
                     {QStringLiteral("%1 is %2, which is no number")
                          .arg(quoted(setting.text()), quoted(value.toString())),
                      nothingThere(setting),
                      QStringLiteral("give %1 a number to start with").arg(quoted(variable.name))});
}

} // namespace

QList<SettingRule> typeRules()
{
    return {textOfOtherType, numberOfOtherType, textThatIsNoNumber};
}
