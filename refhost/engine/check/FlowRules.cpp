#include "refhost/engine/check/FlowRules.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/OperandText.h"
#include "refhost/engine/check/TaskFacts.h"

#include "VariableScope.h"

#include <algorithm>

namespace {

using Uses = QVector<const Setting *>;

/// What comes of it that a step reads a variable before it has a value.
QString readWithoutValue(const Setting &reader, const TaskVariable &variable)
{
    VariableScope scope;
    scope.declare(variable.name, variable.type);
    const QVariant value = reader.role == PropertyRole::Input ? scope.get(variable.name)
                                                              : operandValue(reader.operand, scope);
    const auto number = numberInValue(value);
    if (reader.role == PropertyRole::Number && number)
        return EngineText::tr("the step reads %1").arg(textOfValue(*number));
    if (!value.isValid())
        return EngineText::tr("the step reads nothing");
    if (value.userType() == QMetaType::QVariantList)
        return EngineText::tr("the step reads an empty %1").arg(typeText(variable.type));
    const QString text = textOfValue(value);
    if (!text.isEmpty())
        return EngineText::tr("the step reads %1").arg(text);
    if (reader.role == PropertyRole::Number)
        return EngineText::tr("the step reads an empty text, which is no number");
    return EngineText::tr("the step reads an empty text");
}

/// The first use that the editor shows and that asks for something the variable can have; null when
/// there is none.
const Setting *firstReader(const TaskVariable &variable, const TaskFacts &facts)
{
    const Uses uses = facts.readers(variable.name);
    const auto found = std::find_if(uses.begin(), uses.end(), [&](const Setting *use) {
        const bool isName = use->role == PropertyRole::Input;
        return use->isShown && (isName || facts.typeBehind(use->operand) != VarType::None);
    });
    return found == uses.end() ? nullptr : *found;
}

void checkUse(const TaskVariable &variable, const TaskFacts &facts, QList<Finding> &findings)
{
    if (facts.isUsed(variable.name))
        return;
    Finding finding;
    finding.mistake = Mistake::UnusedVariable;
    finding.severity = Severity::Note;
    finding.property = variable.name;
    finding.text = variable.name;
    finding.message = EngineText::tr("no step reads or writes %1").arg(quoted(variable.name));
    finding.consequence = EngineText::tr("it keeps the value it starts with");
    finding.remedy = EngineText::tr("use it, or leave it out");
    findings.append(finding);
}

void checkFirstRead(const TaskVariable &variable, const TaskFacts &facts, QList<Finding> &findings)
{
    const Setting *const reader = firstReader(variable, facts);
    if (!reader || variable.value.isValid())
        return;
    const Uses writers = facts.writers(variable.name);
    if (writers.isEmpty()) {
        findings.append(findingAt(
            *reader, Mistake::ReadsEmpty, Severity::Warning,
            {EngineText::tr("%1 has no start value, and no step writes it")
                 .arg(quoted(variable.name)),
             readWithoutValue(*reader, variable),
             EngineText::tr(
                 "declare it with a \"value\", if only an empty one, or write it in a step")}));
        // A step may read the variable it writes: one that grows a text begins with an empty one.
    } else if (writers.first()->step > reader->step) {
        findings.append(findingAt(
            *reader, Mistake::ReadBeforeWrite, Severity::Warning,
            {EngineText::tr("%1 is read here, but not written before %2")
                 .arg(quoted(variable.name), stepText(writers.first()->step)),
             readWithoutValue(*reader, variable),
             EngineText::tr("move that step before this one, or declare %1 with a \"value\"")
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
        if (isReadWithin(readers, first.step, writers.at(i)->step))
            continue;
        const QString next = stepText(writers.at(i)->step);
        findings.append(
            findingAt(first, Mistake::OverwrittenUnread, Severity::Note,
                      {EngineText::tr("no step reads %1 before %2 writes it again")
                           .arg(quoted(variable.name), next),
                       EngineText::tr("this result is lost, unless %1 fails").arg(next),
                       EngineText::tr("name another variable here, or leave the step out")}));
    }
}

/// The first that the editor shows of a step after `step`; null if there is none.
const Setting *shownAfter(const Uses &uses, int step)
{
    const auto found = std::find_if(uses.begin(), uses.end(), [=](const Setting *use) {
        return use->isShown && use->step > step;
    });
    return found == uses.end() ? nullptr : *found;
}

/// Finds a first value that one step reads, another step replaces without reading it, and a third
/// step reads again. A step that changes the value of the variable it reads is meant to.
void checkInput(const TaskVariable &variable, const TaskFacts &facts, QList<Finding> &findings)
{
    const Uses writers = facts.writers(variable.name);
    const Uses readers = facts.readers(variable.name);
    if (!variable.value.isValid() || writers.isEmpty())
        return;
    const Setting &writer = *writers.first();
    const Setting *const before = shownAfter(readers, -1);
    const Setting *const after = shownAfter(readers, writer.step);
    if (!before || before->step >= writer.step || !after ||
        isReadWithin(readers, writer.step - 1, writer.step))
        return;
    const QString reader = stepText(after->step);
    findings.append(findingAt(
        writer, Mistake::InputOverwritten, Severity::Note,
        {EngineText::tr("%1 gets another value here, between %2 and %3, which both read it")
             .arg(quoted(variable.name), stepText(before->step), reader),
         EngineText::tr("%1 reads this result, not the start value").arg(reader),
         EngineText::tr("name another variable here, if %1 needs the start value").arg(reader)}));
}

} // namespace

QList<Finding> flowFindings(const TaskFacts &facts, const QSet<QString> &meant)
{
    QList<Finding> findings;
    for (const TaskVariable &variable : facts.variables()) {
        // Where a name was probably mistyped the variable is not forgotten; what other steps find
        // in it is no better for that.
        if (!meant.contains(variable.name))
            checkUse(variable, facts, findings);
        checkFirstRead(variable, facts, findings);
        checkOverwriting(variable, facts, findings);
        checkInput(variable, facts, findings);
    }
    return findings;
}
