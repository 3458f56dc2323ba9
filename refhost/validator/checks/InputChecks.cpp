#include "refhost/validator/checks/CheckRows.h"

#include "refhost/engine/VarTypeName.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/trials/ChildCall.h"
#include "refhost/validator/trials/OperandTrial.h"
#include "refhost/validator/trials/OperationCheck.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"

#include "Operation.h"

#include <QDataStream>

#include <algorithm>
#include <list>

namespace {

/// A run of one operation with one setting.
struct PlannedRun
{
    Specimen *specimen = nullptr;
    TrialSetting setting;

    /// Runs a new step. Returns its result and its messages in a form that can be compared.
    QByteArray result() const
    {
        const StepTrial trial = tryOperand(*specimen, setting, sampleScope(specimen->resultType()));
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << writtenResult(trial).value_or(QVariant());
        for (const LoggedMessage &message : trial.trace.messages)
            stream << message.text;
        return bytes;
    }
};

/// Texts that a cache may take for one another: of the same length, beginning, and end.
QStringList similarTexts()
{
    return {QStringLiteral("one, two"), QStringLiteral("one; two"), QStringLiteral("ONE, TWO"),
            QStringLiteral("xyzzy, x"), QStringLiteral("o,, , ,o")};
}

QList<PlannedRun> plannedRuns(std::list<Specimen> &specimens)
{
    QList<PlannedRun> runs;
    for (Specimen &specimen : specimens) {
        const QList<TrialSetting> settings = settingsToTry(specimen.schema());
        for (const TrialSetting &setting : settings)
            runs.append({&specimen, setting});
        for (const PropertySchema &property : specimen.schema().properties()) {
            const QStringList texts = isTextOperand(property) ? similarTexts() : QStringList();
            for (const QString &text : texts)
                runs.append({&specimen, {property.name, text}});
        }
    }
    return runs;
}

QList<QByteArray> resultsOf(const QList<PlannedRun> &runs)
{
    QList<QByteArray> results;
    for (const PlannedRun &run : runs)
        results.append(run.result());
    return results;
}

/// The results of the runs, made in the reverse order in a process that has run none of them yet.
QByteArray reverseResults(const QList<PlannedRun> &runs, CheckContext &context)
{
    context.stopTelling();
    QList<PlannedRun> reversed = runs;
    std::reverse(reversed.begin(), reversed.end());
    QList<QByteArray> results = resultsOf(reversed);
    std::reverse(results.begin(), results.end());
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << results;
    return bytes;
}

/// Adds a finding for each run that gave something else in the reverse order.
void compareOrders(const QList<PlannedRun> &runs, const QList<QByteArray> &first,
                   const QList<QByteArray> &again, const QList<QByteArray> &reverse)
{
    for (int i = 0; i < runs.size(); ++i) {
        // Another check tells of a run that cannot be repeated.
        if (first.at(i) == again.at(i) && reverse.value(i) != first.at(i)) {
            runs.at(i).specimen->fail(
                QStringLiteral("%1: gives something else when other steps ran before")
                    .arg(runs.at(i).setting.toString()));
        }
    }
}

Outcome runOrderCheck(CheckContext &context)
{
    if (!ChildCall::isPossible())
        return {Verdict::Skipped, QStringLiteral("processes cannot be copied on this system")};
    std::list<Specimen> specimens;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (Operation *prototype : prototypes) {
        Specimen &specimen = specimens.emplace_back(*prototype, context);
        if (!specimen.canBeCloned() || !specimen.hasResultVariable())
            specimens.pop_back();
    }
    const QList<PlannedRun> runs = plannedRuns(specimens);
    ChildCall reverseCall([&] { return reverseResults(runs, context); });
    const QList<QByteArray> first = resultsOf(runs);
    const QList<QByteArray> again = resultsOf(runs);
    context.doing(QStringLiteral("doOperation, all steps in reverse order, in another process"));
    const auto bytes = reverseCall.result();
    if (!bytes)
        return {Verdict::Failed, QStringLiteral("the same steps in reverse order end the process")};
    QList<QByteArray> reverse;
    QDataStream stream(*bytes);
    stream >> reverse;
    compareOrders(runs, first, again, reverse);
    Outcome outcome;
    for (const Specimen &specimen : specimens)
        specimen.addFindingsTo(outcome);
    return outcome;
}

/// Two values of a type that operations tell apart.
QList<QVariant> twoValues(VarType type)
{
    switch (type) {
    case VarType::Int:
        return {3, 12};
    case VarType::Double:
        return {2.5, 7.0};
    case VarType::Bool:
        return {true, false};
    case VarType::List:
        return {QVariantList{QStringLiteral("a"), 1}, QVariantList{QStringLiteral("b")}};
    case VarType::Table:
        return {QVariantList{QVariant(QVariantList{1, 2})}, QVariantList{}};
    default:
        return {QStringLiteral("One, two"), QStringLiteral("3; -x ")};
    }
}

/// The result variable and another one, of the same type and value.
VariableScope scopeWithTwin(VarType type, const QVariant &value)
{
    VariableScope scope = sampleScope(type);
    scope.declare(resultName(), type, value);
    scope.declare(QStringLiteral("twin"), type, value);
    return scope;
}

void examineResultAsOperand(Specimen &specimen, const PropertySchema &property, VarType type)
{
    const QString mark = isVariableName(property) ? QString() : QStringLiteral("$");
    const TrialSetting twin{property.name, QString(mark + QStringLiteral("twin"))};
    const TrialSetting result{property.name, QString(mark + resultName())};
    const QVariantList values = twoValues(type);
    const StepTrial first = tryOperand(specimen, twin, scopeWithTwin(type, values.first()));
    const StepTrial second = tryOperand(specimen, twin, scopeWithTwin(type, values.last()));
    const StepTrial again = tryOperand(specimen, twin, scopeWithTwin(type, values.first()));
    // Where the value makes no difference the property is read in another way; another check tells
    // of a run that cannot be repeated.
    if (haveSameResult(first, second) || !haveSameResult(first, again))
        return;
    const StepTrial actual = tryOperand(specimen, result, scopeWithTwin(type, values.first()));
    if (!haveSameResult(actual, first)) {
        specimen.fail(QStringLiteral("%1, a result variable of type %2 that is %3: gives %4; "
                                     "expected %5, as for another variable")
                          .arg(result.toString(), varTypeName(type), shownValue(values.first()),
                               shownResult(actual), shownResult(first)));
    }
}

Outcome runResultAsOperandCheck(CheckContext &context)
{
    return examineOperations(context, OperationNeeds::CloneAndResultVariable, [](Specimen &each) {
        for (const PropertySchema &property : each.schema().properties()) {
            for (const VarType type : {VarType::Int, VarType::Double, VarType::String,
                                       VarType::Bool, VarType::List, VarType::Table}) {
                if (isInput(property))
                    examineResultAsOperand(each, property, type);
            }
        }
    });
}

} // namespace

std::vector<CheckRow> inputChecks()
{
    return {
        {{QStringLiteral("behaviour.order"), 4,
          QStringLiteral("A result does not depend on the steps that ran before.")},
         runOrderCheck},
        {{QStringLiteral("behaviour.resultAsOperand"), 4,
          QStringLiteral("The result variable can be an operand of the same step.")},
         runResultAsOperandCheck},
    };
}
