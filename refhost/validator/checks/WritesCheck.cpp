#include "refhost/validator/checks/WritesCheck.h"

#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

WritesCheck::WritesCheck()
    : OperationCheck({QStringLiteral("behaviour.writes"), 4,
                      QStringLiteral("Only the result variable is written.")},
                     Needs::CloneAndResultVariable)
{
}

void WritesCheck::examine(Specimen &specimen, CheckContext &) const
{
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const TrialSetting &setting : settings) {
        const StepTrial trial = tryStep(specimen, setting);
        // A variable may also be declared anew, which is no write.
        QStringList names = trial.trace.written + differingNames(trial.after, trial.before);
        names.removeAll(resultName());
        names.removeDuplicates();
        if (!names.isEmpty()) {
            specimen.fail(QStringLiteral("%1: writes %2 besides its result variable")
                              .arg(setting.toString(), names.join(QLatin1String(", "))));
        }
    }
}
