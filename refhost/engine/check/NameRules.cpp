#include "refhost/engine/check/NameRules.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/check/TaskFacts.h"

namespace {

using MaybeFinding = std::optional<Finding>;

bool isName(const Setting &setting)
{
    return setting.role == PropertyRole::Input || setting.role == PropertyRole::Result;
}

QString nothingWritten()
{
    return EngineText::tr("nothing is written, as a rule with a warning");
}

QString nothingRead()
{
    return EngineText::tr("the step finds nothing to read, as a rule with a warning");
}

MaybeFinding emptyName(const Setting &setting, const TaskFacts &facts)
{
    Q_UNUSED(facts)
    if (!isName(setting) || !setting.text().isEmpty())
        return std::nullopt;
    if (setting.role == PropertyRole::Result) {
        return findingAt(setting, Mistake::EmptyResult, Severity::Error,
                         {EngineText::tr("no result variable is named"),
                          EngineText::tr("the step does nothing, as a rule with a warning"),
                          EngineText::tr("name a variable to receive the result")});
    }
    return findingAt(setting, Mistake::EmptyInput, Severity::Warning,
                     {EngineText::tr("no variable is named"),
                      EngineText::tr("the step has nothing to read"),
                      EngineText::tr("name the variable to read")});
}

/// Whether the name is written as a reference, and no variable happens to be called just so.
bool isReference(const Setting &setting, const TaskFacts &facts)
{
    return isName(setting) && readOperand(setting.text()).isReference &&
           !facts.variable(setting.text());
}

MaybeFinding nameWithDollar(const Setting &setting, const TaskFacts &facts)
{
    if (!isReference(setting, facts))
        return std::nullopt;
    const QString bare = setting.text().mid(1);
    const QString remedy = facts.variable(bare) ? EngineText::tr("write %1")
                                                : EngineText::tr("write %1 and declare it");
    return findingAt(setting, Mistake::NameWithDollar, Severity::Error,
                     {EngineText::tr("%1 is no name: here a variable is named without \"$\"")
                          .arg(quoted(setting.text())),
                      setting.role == PropertyRole::Result ? nothingWritten() : nothingRead(),
                      remedy.arg(quoted(bare)), bare});
}

MaybeFinding undeclaredName(const Setting &setting, const TaskFacts &facts)
{
    const QString name = setting.text();
    if (!isName(setting) || name.isEmpty() || facts.variable(name) || isReference(setting, facts))
        return std::nullopt;
    const bool isResult = setting.role == PropertyRole::Result;
    const NearName near = facts.names().nearest(name);
    return findingAt(setting, isResult ? Mistake::UndeclaredResult : Mistake::UndeclaredVariable,
                     Severity::Error,
                     {EngineText::tr("%1 is no variable").arg(quoted(name)),
                      isResult ? nothingWritten() : nothingRead(),
                      remedyForName(name, QString(), near), near.name});
}

/// The variable named, if it is of a type that the editor would not offer; otherwise null.
const TaskVariable *unfitVariable(const Setting &setting, const TaskFacts &facts)
{
    const TaskVariable *const variable = facts.variable(setting.text());
    const QString &words = setting.schema.restriction;
    const bool fits = !variable || words.isEmpty() || namesType(words, variable->type);
    return fits ? nullptr : variable;
}

QString wantedType(const Setting &setting)
{
    if (setting.schema.restriction == QLatin1String("scalar"))
        return choiceText({typeText(VarType::Int), typeText(VarType::Double)});
    return wordsText(typeTexts(setting.schema.restriction));
}

Advice typeAdvice(const Setting &setting, const TaskVariable &variable, const QString &consequence)
{
    const QString wanted = wantedType(setting);
    return {EngineText::tr("%1 is declared as %2, not as %3")
                .arg(quoted(variable.name), typeText(variable.type), wanted),
            consequence,
            EngineText::tr("name a variable of type %1, or declare %2 as that")
                .arg(wanted, quoted(variable.name))};
}

MaybeFinding inputType(const Setting &setting, const TaskFacts &facts)
{
    const TaskVariable *const variable = unfitVariable(setting, facts);
    if (setting.role != PropertyRole::Input || !variable)
        return std::nullopt;
    return findingAt(setting, Mistake::InputType, Severity::Error,
                     typeAdvice(setting, *variable,
                                EngineText::tr("the step cannot read it, as a rule with a "
                                               "warning")));
}

/// What becomes of a number in a variable of another type.
QString formOfNumber(VarType type)
{
    switch (type) {
    case VarType::Int:
        return EngineText::tr("the number is stored as a whole number");
    case VarType::Double:
        return EngineText::tr("the number is stored with its decimals");
    case VarType::String:
        return EngineText::tr("the number is stored as a text");
    case VarType::Bool:
        return EngineText::tr("the number is stored as true, or as false if it is 0");
    case VarType::Table:
        return EngineText::tr("the number is lost and the table is emptied");
    case VarType::List:
    case VarType::None:
        break;
    }
    return nothingWritten();
}

MaybeFinding resultType(const Setting &setting, const TaskFacts &facts)
{
    const TaskVariable *const variable = unfitVariable(setting, facts);
    if (setting.role != PropertyRole::Result || !variable)
        return std::nullopt;
    const QString consequence =
        asksForNumbers(setting.schema) ? formOfNumber(variable->type) : nothingWritten();
    return findingAt(setting, Mistake::ResultType,
                     takesResult(setting.schema, variable->type) ? Severity::Warning
                                                                 : Severity::Error,
                     typeAdvice(setting, *variable, consequence));
}

} // namespace

QList<SettingRule> nameRules()
{
    return {emptyName, nameWithDollar, undeclaredName, inputType, resultType};
}
