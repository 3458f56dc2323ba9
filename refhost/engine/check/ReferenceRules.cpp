#include "refhost/engine/check/ReferenceRules.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/check/TaskFacts.h"

namespace {

using MaybeFinding = std::optional<Finding>;

QStringList listMembers()
{
    return {QStringLiteral("Count"), QStringLiteral("Rows"), QStringLiteral("Columns"),
            QStringLiteral("Items")};
}

/// Whether "$a.b" was written for a variable called "a.b", which cannot be referred to.
bool meansDottedName(const OperandText &operand, const TaskFacts &facts)
{
    const QString whole = operand.name + QLatin1Char('.') + operand.path;
    return operand.isReference && !operand.path.isEmpty() && facts.variable(whole) &&
           facts.typeBehind(operand) == VarType::None;
}

MaybeFinding undeclaredVariable(const Setting &setting, const TaskFacts &facts)
{
    const OperandText &operand = setting.operand;
    if (!operand.isReference || facts.variable(operand.name) || meansDottedName(operand, facts))
        return std::nullopt;
    const NearName near = facts.names().nearest(operand.name);
    return findingAt(setting, Mistake::UndeclaredVariable, Severity::Error,
                     {EngineText::tr("%1 names no variable").arg(quoted(setting.text())),
                      nothingThere(setting), remedyForName(operand.name, QStringLiteral("$"), near),
                      near.name});
}

MaybeFinding dottedName(const Setting &setting, const TaskFacts &facts)
{
    const OperandText &operand = setting.operand;
    if (!meansDottedName(operand, facts))
        return std::nullopt;
    const QString whole = setting.text().mid(1);
    return findingAt(setting, Mistake::DottedName, Severity::Error,
                     {EngineText::tr("%1 is the member %2 of %3, not the variable %4")
                          .arg(quoted(setting.text()), quoted(operand.path), quoted(operand.name),
                               quoted(whole)),
                      nothingThere(setting),
                      EngineText::tr("give %1 a name without \".\"").arg(quoted(whole)), whole});
}

/// The variable of a reference with a path that finds nothing, null otherwise.
const TaskVariable *brokenPath(const Setting &setting, const TaskFacts &facts)
{
    const OperandText &operand = setting.operand;
    const bool broken = operand.isReference && !operand.path.isEmpty() &&
                        facts.typeBehind(operand) == VarType::None &&
                        !meansDottedName(operand, facts);
    return broken ? facts.variable(operand.name) : nullptr;
}

MaybeFinding pathWithoutList(const Setting &setting, const TaskFacts &facts)
{
    const TaskVariable *const variable = brokenPath(setting, facts);
    if (!variable || holdsElements(variable->type))
        return std::nullopt;
    const QString type = typeText(variable->type);
    return findingAt(setting, Mistake::PathWithoutList, Severity::Error,
                     {EngineText::tr("%1 asks for a member of %2, which is declared as %3")
                          .arg(quoted(setting.text()), quoted(variable->name), type),
                      nothingThere(setting),
                      EngineText::tr("write %1; only lists and tables have members")
                          .arg(quoted(QLatin1Char('$') + variable->name))});
}

bool asksForColumns(const OperandText &operand)
{
    return operand.path.compare(QLatin1String("Columns"), Qt::CaseInsensitive) == 0;
}

MaybeFinding unknownPath(const Setting &setting, const TaskFacts &facts)
{
    const TaskVariable *const variable = brokenPath(setting, facts);
    if (!variable || !holdsElements(variable->type) || asksForColumns(setting.operand))
        return std::nullopt;
    const QString meant = NameIndex(listMembers()).nearest(setting.operand.path).name;
    const QString remedy =
        meant.isEmpty()
            ? EngineText::tr("write one of %1 behind the \".\"").arg(anyOf(listMembers()))
            : EngineText::tr("write %1")
                  .arg(quoted(QStringLiteral("$%1.%2").arg(variable->name, meant)));
    return findingAt(setting, Mistake::UnknownPath, Severity::Error,
                     {EngineText::tr("a %1 has no member %2")
                          .arg(typeText(variable->type), quoted(setting.operand.path)),
                      nothingThere(setting), remedy});
}

/// Only a list of rows has columns. A warning, since another start value may be given from outside.
MaybeFinding noColumns(const Setting &setting, const TaskFacts &facts)
{
    const TaskVariable *const variable = brokenPath(setting, facts);
    if (!variable || !holdsElements(variable->type) || !asksForColumns(setting.operand))
        return std::nullopt;
    const QString count = quoted(QStringLiteral("$%1.Count").arg(variable->name));
    return findingAt(setting, Mistake::UnknownPath, Severity::Warning,
                     {EngineText::tr("%1 has no columns: its first element is no row")
                          .arg(quoted(variable->name)),
                      nothingThere(setting),
                      EngineText::tr("write %1 for how many elements it has, or start with a list "
                                     "of rows")
                          .arg(count)});
}

MaybeFinding emptyPath(const Setting &setting, const TaskFacts &facts)
{
    const OperandText &operand = setting.operand;
    const bool ends = operand.isReference && operand.path.isEmpty() &&
                      setting.text().size() > operand.name.size() + 1;
    if (!ends || !facts.variable(operand.name))
        return std::nullopt;
    const QString bare = quoted(QLatin1Char('$') + operand.name);
    return findingAt(setting, Mistake::EmptyPath, Severity::Warning,
                     {EngineText::tr("%1 ends in \".\"").arg(quoted(setting.text())),
                      EngineText::tr("the operand is what %1 is, without a \".\"").arg(bare),
                      EngineText::tr("write %1; if the \".\" is meant, put it behind in a step of "
                                     "its own")
                          .arg(bare)});
}

} // namespace

QList<SettingRule> referenceRules()
{
    return {undeclaredVariable, dottedName, pathWithoutList, unknownPath, noColumns, emptyPath};
}
