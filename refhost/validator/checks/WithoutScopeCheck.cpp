#include "refhost/validator/checks/WithoutScopeCheck.h"

#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

namespace {

/// What a run without a scope logs.
QList<LoggedMessage> messagesOf(const Operation &step)
{
    MessageLog log;
    // Another check tells of exceptions.
    thrownBy([&] { step.doOperation(); });
    return log.take();
}

void demandSilence(Specimen &specimen, const Operation &step, const QString &situation)
{
    const QList<LoggedMessage> messages = messagesOf(step);
    if (!messages.isEmpty()) {
        specimen.fail(QStringLiteral("%1: logs %2; expected nothing")
                          .arg(situation, shownText(messages.constFirst().text)));
    }
}

/// Takes the scope away after a run and runs again.
void examineTakenScope(Specimen &specimen)
{
    const QString situation = QStringLiteral("after its scope was taken away");
    const auto step = specimen.newStep();
    setOrdinary(*step, specimen.schema());
    VariableScope scope = sampleScope(specimen.resultType());
    traceStep(*step, scope);
    scope.forgetWrites();
    const VariableScope before = scope;
    specimen.doing(QStringLiteral("doOperation ") + situation);
    demandSilence(specimen, *step, situation);
    const QStringList names = scope.writtenNames() + differingNames(scope, before);
    if (!names.isEmpty())
        specimen.fail(QStringLiteral("%1: writes %2").arg(situation, names.constFirst()));
}

} // namespace

WithoutScopeCheck::WithoutScopeCheck()
    : OperationCheck({QStringLiteral("behaviour.withoutScope"), 4,
                      QStringLiteral("Without a scope an operation does nothing, silently.")})
{
}

void WithoutScopeCheck::examine(Specimen &specimen, CheckContext &) const
{
    const QString situation = QStringLiteral("without a scope");
    specimen.doing(QStringLiteral("doOperation ") + situation);
    demandSilence(specimen, *specimen.newStep(), situation + QStringLiteral(", at its defaults"));
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const TrialSetting &setting : settings) {
        const auto step = specimen.newStep();
        setOrdinary(*step, specimen.schema());
        setting.applyTo(*step);
        demandSilence(specimen, *step, QStringLiteral("%1, %2").arg(situation, setting.toString()));
    }
    examineTakenScope(specimen);
}
