#include "refhost/engine/check/FlowRules.h"

#include "refhost/engine/check/TaskFacts.h"

#include <algorithm>

namespace {

using Uses = QVector<const Setting *>;

QString emptyValueName(VarType type)
{
    switch (type) {
    case VarType::Int:
    case VarType::Double:
        return QStringLiteral("0");
    case VarType::Bool:
        return QStringLiteral("false");
    case VarType::List:
    case VarType::Table:
        return QStringLiteral("an empty ") +
               (type == VarType::List ? QStringLiteral("list") : QStringLiteral("table"));
    case VarType::String:
    case VarType::None:
        break;
    }
    return QStringLiteral("an empty text");
}

/// The first use that the editor shows, null when there is none.
const Setting *firstShown(const Uses &uses)
{
    const auto found =
        std::find_if(uses.begin(), uses.end(), [](const Setting *use) { return use->isShown; });
    return found == uses.end() ? nullptr : *found;
}

void checkUse(const TaskVariable &variable, const TaskFacts &facts, QList<Finding> &findings)
{
    const bool isUsed =
        !facts.readers(variable.name).isEmpty() || !facts.writers(variable.name).isEmpty();
    if (isUsed)
        return;
    Finding finding;
    finding.mistake = Mistake::UnusedVariable;
    finding.severity = Severity::Note;
    finding.property = variable.name;
    finding.text = variable.name;
    finding.message = QStringLiteral("no step reads or writes ") + quoted(variable.name);
    finding.consequence = QStringLiteral("it keeps the value it starts with");
    finding.remedy = QStringLiteral("use it, or leave it out");
    findings.append(finding);
}

void checkFirstRead(const TaskVariable &variable, const TaskFacts &facts, QList<Finding> &findings)
{
    const Setting *const reader = firstShown(facts.readers(variable.name));
    if (!reader || variable.value.isValid())
        return;
    const Uses writers = facts.writers(variable.name);
    const QString empty = emptyValueName(variable.type);
    const QString consequence = QStringLiteral("the step reads ") + empty;
    if (writers.isEmpty()) {
        findings.append(findingAt(
            *reader, Mistake::ReadsEmpty, Severity::Warning,
            {QStringLiteral("%1 has no start value, and no step writes it")
                 .arg(quoted(variable.name)),
             consequence,
             QStringLiteral(
                 "declare it with a \"value\", if only an empty one, or write it in a step")}));
    } else if (writers.first()->step > reader->step) {
        findings.append(findingAt(
            *reader, Mistake::ReadBeforeWrite, Severity::Warning,
            {QStringLiteral("%1 is read here, but not written before steps[%2]")
                 .arg(quoted(variable.name), QString::number(writers.first()->step)),
             consequence,
             QStringLiteral("move that step before this one, or declare %1 with a \"value\"")
                 .arg(quoted(variable.name))}));
    }
}

bool isReadWithin(const Uses &readers, int after, int upTo)
{
    const auto next =
        std::upper_bound(readers.begin(), readers.end(), after,
                         [](int step, const Setting *reader) { return step < reader->step; });
    return next != readers.end() && (*next)->step <= upTo;
}

void checkOverwriting(const TaskVariable &variable, const TaskFacts &facts,
                      QList<Finding> &findings)
{
    const Uses writers = facts.writers(variable.name);
    const Uses readers = facts.readers(variable.name);
    for (int i = 1; i < writers.size(); ++i) {
        const Setting &first = *writers.at(i - 1);
        const QString next = QString::number(writers.at(i)->step);
        if (isReadWithin(readers, first.step, writers.at(i)->step))
            continue;
        findings.append(
            findingAt(first, Mistake::OverwrittenUnread, Severity::Note,
                      {QStringLiteral("no step reads %1 before steps[%2] writes it again")
                           .arg(quoted(variable.name), next),
                       QStringLiteral("this result is lost, unless steps[%1] fails").arg(next),
                       QStringLiteral("name another variable here, or leave the step out")}));
    }
}

} // namespace

QList<Finding> flowFindings(const TaskFacts &facts, const QSet<QString> &meant)
{
    QList<Finding> findings;
    for (const TaskVariable &variable : facts.variables()) {
        if (meant.contains(variable.name))
            continue;
        checkUse(variable, facts, findings);
        checkFirstRead(variable, facts, findings);
        checkOverwriting(variable, facts, findings);
    }
    return findings;
}
