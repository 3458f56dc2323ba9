#include "refhost/validator/checks/ResultTypesCheck.h"

#include "refhost/engine/ValueType.h"
#include "refhost/engine/VarTypeName.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

namespace {

/// One line, and one more where the setting names another variable that may be unfit, too.
int mostWarnings(const Specimen &specimen, const TrialSetting &setting)
{
    const PropertySchema *const property = specimen.schema().property(setting.property);
    return property && isVariableName(*property) ? 2 : 1;
}

void examineTrial(Specimen &specimen, const TrialSetting &setting, VarType type)
{
    const StepTrial trial = tryStep(specimen, setting, type);
    const QString variable = type == VarType::None ? QStringLiteral("not declared")
                                                   : QStringLiteral("of type ") + varTypeName(type);
    const QString place =
        QStringLiteral("result variable %1, %2").arg(variable, setting.toString());
    const int warnings = trial.trace.warningCount();
    const QVariant value = trial.after.get(resultName());
    const bool isWritten = trial.trace.written.contains(resultName());
    if (warnings > mostWarnings(specimen, setting))
        specimen.fail(QStringLiteral("%1: logs %2 warnings").arg(place).arg(warnings));
    else if (isWritten && warnings > 0 && setting.property.isEmpty())
        specimen.warn(QStringLiteral("%1: writes it and logs a warning").arg(place));
    else if (!isWritten && warnings == 0 && !trial.trace.thrown)
        specimen.warn(QStringLiteral("%1: neither writes it nor logs a warning").arg(place));
    if (!fitsType(value, type)) {
        specimen.fail(QStringLiteral("%1: writes %2, of type %3")
                          .arg(place, shownValue(value), QString::fromLatin1(value.typeName())));
    }
}

} // namespace

ResultTypesCheck::ResultTypesCheck()
    : OperationCheck(
          {QStringLiteral("behaviour.resultTypes"), 4,
           QStringLiteral("Whatever the result variable: a fitting value, or a warning.")},
          Needs::CloneAndResultVariable)
{
}

void ResultTypesCheck::examine(Specimen &specimen, CheckContext &) const
{
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const VarType type : {VarType::None, VarType::Int, VarType::Double, VarType::String,
                               VarType::Bool, VarType::List, VarType::Table}) {
        for (const TrialSetting &setting : settings)
            examineTrial(specimen, setting, type);
    }
}
