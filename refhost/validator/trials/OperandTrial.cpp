#include "refhost/validator/trials/OperandTrial.h"

#include "refhost/validator/trials/EqualValue.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"

#include "Operation.h"

bool isInput(const PropertySchema &property)
{
    return property.name != QLatin1String("resultVar") &&
           (isTextOperand(property) || isNumberOperand(property) || isVariableName(property));
}

StepTrial tryOperand(Specimen &specimen, const TrialSetting &setting, const VariableScope &before)
{
    specimen.doing(QStringLiteral("doOperation, ") + setting.toString());
    const auto step = specimen.newStep();
    setOrdinary(*step, specimen.schema());
    const PropertySchema *const property = specimen.schema().property(setting.property);
    if (property && !property->conditionValues.isEmpty())
        TrialSetting{property->conditionName, property->conditionValues.first()}.applyTo(*step);
    setting.applyTo(*step);
    StepTrial trial;
    trial.before = before;
    trial.after = before;
    trial.trace = traceStep(*step, trial.after);
    return trial;
}

std::optional<QVariant> writtenResult(const StepTrial &trial)
{
    if (!trial.trace.written.contains(resultName()))
        return std::nullopt;
    return trial.after.get(resultName());
}

bool haveSameResult(const StepTrial &left, const StepTrial &right)
{
    const auto first = writtenResult(left);
    const auto second = writtenResult(right);
    return first && second ? isEqualValue(*first, *second) : !first && !second;
}

QString shownResult(const StepTrial &trial)
{
    const auto result = writtenResult(trial);
    return result ? shownValue(*result) : QStringLiteral("no result");
}
