#include "refhost/engine/check/ChoiceRules.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/check/TaskFacts.h"

namespace {

using MaybeFinding = std::optional<Finding>;

/// A value of a choice by its label where it has one.
QString choiceName(const PropertySchema &choice, int value)
{
    return choicesText(choice).value(value, QString::number(value));
}

bool isChoice(const Setting &setting)
{
    const int value = setting.value.toInt();
    return value >= 0 && value < setting.schema.choices.size();
}

MaybeFinding unknownMode(const Setting &setting, const TaskFacts &facts)
{
    Q_UNUSED(facts)
    const QStringList choices = choicesText(setting.schema);
    if (choices.isEmpty() || isChoice(setting))
        return std::nullopt;
    return findingAt(setting, Mistake::UnknownMode, Severity::Warning,
                     {EngineText::tr("%1 is none of the choices, which are 0 to %2")
                          .arg(setting.text(), QString::number(choices.size() - 1)),
                      EngineText::tr("the step does what it does for another choice, or nothing"),
                      EngineText::tr("choose %1").arg(anyOf(choices))});
}

MaybeFinding hiddenSetting(const Setting &setting, const TaskFacts &facts)
{
    const Setting *const choice = facts.sibling(setting, setting.schema.conditionName);
    if (!choice || !isChoice(*choice) || setting.value == setting.schema.defaultValue)
        return std::nullopt;
    QStringList showing;
    for (const int value : setting.schema.conditionValues)
        showing.append(choiceName(choice->schema, value));
    const QString name = propertyText(choice->schema);
    return findingAt(setting, Mistake::HiddenSetting, Severity::Warning,
                     {EngineText::tr("it is set, but not in use while %1 is %2")
                          .arg(name, quoted(choiceName(choice->schema, choice->value.toInt()))),
                      EngineText::tr("no editor shows it, and as a rule the step ignores it"),
                      EngineText::tr("set %1 to %2, or leave %3 out")
                          .arg(name, anyOf(showing), propertyText(setting.schema))});
}

} // namespace

QList<SettingRule> choiceRules()
{
    return {unknownMode};
}

QList<SettingRule> hiddenRules()
{
    return {hiddenSetting};
}
