#include "refhost/validator/checks/WithoutResultCheck.h"

#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

#include "Operation.h"

namespace {

void examineSetting(Specimen &specimen, const TrialSetting &setting)
{
    const QString place = QStringLiteral("resultVar empty, ") + setting.toString();
    specimen.doing(QStringLiteral("doOperation, ") + place);
    const auto step = specimen.newStep();
    setOrdinary(*step, specimen.schema());
    setting.applyTo(*step);
    step->setProperty("resultVar", QString());
    VariableScope scope = sampleScope(specimen.resultType());
    // No host declares such a variable; a step that asks the scope alone would take it.
    scope.declare(QString(), specimen.resultType());
    const TracedRun trace = traceStep(*step, scope);
    if (!trace.written.isEmpty())
        specimen.fail(QStringLiteral("%1: writes \"%2\"").arg(place, trace.written.constFirst()));
    if (!trace.thrown && trace.warningCount() != 1) {
        specimen.fail(QStringLiteral("%1: logs %2 warnings; expected one")
                          .arg(place)
                          .arg(trace.warningCount()));
    }
}

} // namespace

WithoutResultCheck::WithoutResultCheck()
    : OperationCheck({QStringLiteral("behaviour.withoutResult"), 4,
                      QStringLiteral("Without a result variable: one warning, nothing written.")},
                     Needs::CloneAndResultVariable)
{
}

void WithoutResultCheck::examine(Specimen &specimen, CheckContext &) const
{
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const TrialSetting &setting : settings)
        examineSetting(specimen, setting);
}
