#include "refhost/engine/check/NumberRules.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/check/TaskFacts.h"

#include <cmath>
#include <limits>

namespace {

using MaybeFinding = std::optional<Finding>;

bool isBeyondInt(double number)
{
    using Limits = std::numeric_limits<int>;
    return std::isfinite(number) && (number < Limits::min() || number > Limits::max());
}

bool asksForInt(const Setting &setting)
{
    return setting.role == PropertyRole::Number &&
           setting.schema.editor == QLatin1String("NUMVAR:INT");
}

/// Whether the step reads the setting as a number.
bool isReadAsNumber(const Setting &setting)
{
    return setting.role == PropertyRole::Number || setting.facts.purpose == Purpose::NumberText;
}

/// The text or number that the step reads as a number, if it is certain and no list.
QVariant valueReadAsNumber(const Setting &setting, const TaskFacts &facts)
{
    if (!isReadAsNumber(setting))
        return {};
    const QVariant value = facts.valueAt(setting.operand, setting.step);
    return value.userType() == QMetaType::QVariantList ? QVariant() : value;
}

QString takenAsNegative()
{
    return EngineText::tr("the step takes it for a negative number");
}

MaybeFinding specialNumber(const Setting &setting, const TaskFacts &facts)
{
    const QVariant value = valueReadAsNumber(setting, facts);
    const auto number = numberInValue(value);
    // A variable of type double is declared with such a value on purpose.
    const bool isTyped = !setting.operand.isReference || value.userType() == QMetaType::QString;
    if (!value.isValid() || !number || std::isfinite(*number) || !isTyped)
        return std::nullopt;
    const QString written = setting.operand.isReference ? value.toString() : setting.text();
    return findingAt(setting, Mistake::SpecialNumber, Severity::Warning,
                     {EngineText::tr("%1 counts as a number").arg(quoted(written)),
                      asksForInt(setting)
                          ? takenAsNegative()
                          : EngineText::tr("the step goes on with the number %1, with no warning")
                                .arg(textOfValue(*number)),
                      EngineText::tr("write digits, if another number is meant")});
}

MaybeFinding numberBeyondInt(const Setting &setting, const TaskFacts &facts)
{
    const auto number = asksForInt(setting)
                            ? numberInValue(facts.valueAt(setting.operand, setting.step))
                            : std::nullopt;
    if (!number || !isBeyondInt(*number))
        return std::nullopt;
    return findingAt(setting, Mistake::NumberBeyondInt, Severity::Warning,
                     {EngineText::tr("%1 is beyond 32 bits").arg(textOfValue(*number)),
                      takenAsNegative(),
                      EngineText::tr("write a number from -2147483648 to 2147483647")});
}

/// The number that the step is known to read from a text, for its result.
std::optional<double> numberForResult(const Setting &result, const TaskFacts &facts)
{
    for (const Setting &setting : facts.steps().at(result.step)) {
        if (setting.facts.purpose != Purpose::NumberText)
            continue;
        const QVariant value = valueReadAsNumber(setting, facts);
        return value.isValid() ? numberInValue(value) : std::nullopt;
    }
    return std::nullopt;
}

MaybeFinding resultBeyondInt(const Setting &setting, const TaskFacts &facts)
{
    const TaskVariable *const variable =
        setting.role == PropertyRole::Result ? facts.variable(setting.text()) : nullptr;
    if (!variable || variable->type != VarType::Int)
        return std::nullopt;
    const auto number = numberForResult(setting, facts);
    if (!number || !isBeyondInt(*number))
        return std::nullopt;
    return findingAt(
        setting, Mistake::NumberBeyondInt, Severity::Warning,
        {EngineText::tr("%1 is beyond 32 bits, and %2 is declared as %3")
             .arg(textOfValue(*number), quoted(variable->name), typeText(VarType::Int)),
         EngineText::tr("another number is stored, with no warning"),
         EngineText::tr("declare %1 as %2")
             .arg(quoted(variable->name), typeText(VarType::Double))});
}

MaybeFinding unreadableText(const Setting &setting, const TaskFacts &facts)
{
    if (setting.facts.purpose != Purpose::NumberText)
        return std::nullopt;
    const QVariant value = valueReadAsNumber(setting, facts);
    if (!value.isValid() || value.userType() == QMetaType::Bool || numberInValue(value))
        return std::nullopt;
    const QString digits =
        EngineText::tr("write digits, with \".\" before decimals and no group separators");
    const QString nothing = EngineText::tr("the step reads no number, as a rule with a warning");
    if (!setting.operand.isReference) {
        return findingAt(
            setting, Mistake::NotANumber, Severity::Error,
            {EngineText::tr("%1 is no number").arg(quoted(setting.text())), nothing, digits});
    }
    return findingAt(setting, Mistake::NotANumber, Severity::Warning,
                     {EngineText::tr("%1 is %2, which is no number")
                          .arg(quoted(setting.text()), quoted(value.toString())),
                      nothing, digits});
}

} // namespace

QList<SettingRule> numberRules()
{
    return {specialNumber, numberBeyondInt, resultBeyondInt, unreadableText};
}
