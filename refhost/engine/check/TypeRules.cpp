#include "refhost/engine/check/TypeRules.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/check/TaskFacts.h"

namespace {

using MaybeFinding = std::optional<Finding>;

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
    const QString wanted = choiceText(typeTexts(setting.schema.restriction));
    const QString message = EngineText::tr("%1 is of type %2 where %3 is asked for")
                                .arg(quoted(setting.text()), typeText(type), wanted);
    if (holdsElements(type)) {
        return findingAt(setting, Mistake::ReferenceType, Severity::Warning,
                         {message,
                          EngineText::tr("as a text it is its elements with \", \" between them"),
                          EngineText::tr("make a text of it in a step of its own, or write %1 for "
                                         "how many elements it has")
                              .arg(countOf(setting.operand))});
    }
    return findingAt(setting, Mistake::ReferenceType, Severity::Warning,
                     {message, EngineText::tr("the step takes it as it is, or cannot use it"),
                      EngineText::tr("refer to a variable of type %1").arg(wanted)});
}

MaybeFinding numberOfOtherType(const Setting &setting, const TaskFacts &facts)
{
    const VarType type = facts.typeBehind(setting.operand);
    if (setting.role != PropertyRole::Number || type == VarType::None)
        return std::nullopt;
    if (type != VarType::Bool && !holdsElements(type))
        return std::nullopt;
    const QString message = EngineText::tr("%1 is of type %2 where a number is asked for")
                                .arg(quoted(setting.text()), typeText(type));
    if (type == VarType::Bool) {
        const QString wanted = choiceText({typeText(VarType::Int), typeText(VarType::Double)});
        return findingAt(setting, Mistake::ReferenceType, Severity::Warning,
                         {message, EngineText::tr("true counts as 1, false as 0"),
                          EngineText::tr("refer to a variable of type %1").arg(wanted)});
    }
    return findingAt(setting, Mistake::ReferenceType, Severity::Error,
                     {message, nothingThere(setting),
                      EngineText::tr("refer to a number, or write %1 for how many elements it has")
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
                     {EngineText::tr("%1 is %2, which is no number")
                          .arg(quoted(setting.text()), quoted(value.toString())),
                      nothingThere(setting),
                      EngineText::tr("give %1 a number to start with").arg(quoted(variable.name))});
}

} // namespace

QList<SettingRule> typeRules()
{
    return {textOfOtherType, numberOfOtherType, textThatIsNoNumber};
}
