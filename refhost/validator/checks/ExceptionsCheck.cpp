#include "refhost/validator/checks/ExceptionsCheck.h"

#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/OddSettings.h"
#include "refhost/validator/trials/OperationRecord.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

namespace {

void tell(Specimen &specimen, const QString &place, const QString &function,
          const std::optional<QString> &thrown)
{
    if (thrown)
        specimen.fail(QStringLiteral("%1: %2 throws %3").arg(place, function, *thrown));
}

/// Calls every function of a step that has its settings.
void examineStep(Specimen &specimen, Operation &step, const QString &place)
{
    const auto examine = [&](const QString &function, const auto &call) {
        specimen.doing(QStringLiteral("%1, %2").arg(function, place));
        tell(specimen, place, function, thrownBy(call));
    };
    examine(QStringLiteral("toString"), [&] { step.toString(); });
    examine(QStringLiteral("description"), [&] { step.description(); });
    examine(QStringLiteral("clone"), [&] { delete step.clone(nullptr); });
    specimen.doing(QStringLiteral("saveOperation, ") + place);
    const SavedRecord saved = saveRecord(step);
    tell(specimen, place, QStringLiteral("saveOperation"), saved.thrown);
    specimen.doing(QStringLiteral("loadOperation, ") + place);
    tell(specimen, place, QStringLiteral("loadOperation"),
         loadRecord(*specimen.newStep(), saved.bytes).thrown);
    specimen.doing(QStringLiteral("doOperation, ") + place);
    VariableScope scope = sampleScope(specimen.resultType());
    tell(specimen, place, QStringLiteral("doOperation"), traceStep(step, scope).thrown);
}

} // namespace

ExceptionsCheck::ExceptionsCheck()
    : OperationCheck({QStringLiteral("behaviour.exceptions"), 4,
                      QStringLiteral("No function of an operation throws.")})
{
}

void ExceptionsCheck::examine(Specimen &specimen, CheckContext &) const
{
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const TrialSetting &setting : settings) {
        const auto step = specimen.newStep();
        setOrdinary(*step, specimen.schema());
        setting.applyTo(*step);
        examineStep(specimen, *step, setting.toString());
    }
    const OperationClass operationClass(specimen.prototype());
    for (int round = 0; round < oddRounds(operationClass); ++round) {
        const auto step = specimen.newStep();
        setOdd(*step, operationClass, round);
        examineStep(specimen, *step, QStringLiteral("odd values, round %1").arg(round));
    }
}
