#pragma once

#include "refhost/validator/trials/MessageLog.h"
#include "refhost/validator/trials/SampleSettings.h"

#include "VariableScope.h"

#include <QStringList>

#include <optional>

class Operation;
class Specimen;

/// What a step did when it ran.
struct TracedRun
{
    QStringList written; ///< the names of the variables it wrote
    QList<LoggedMessage> messages;
    std::optional<QString> thrown; ///< what it threw

    /// How many of the messages are warnings.
    int warningCount() const;
};

/// Runs the step on the scope. It has no scope afterwards.
TracedRun traceStep(Operation &step, VariableScope &scope);

/// A run of a new step on sample variables.
struct StepTrial
{
    VariableScope before;
    VariableScope after;
    TracedRun trace;
};

/// Runs a new step with ordinary settings but for `setting`, its result variable declared as
/// `resultType`.
StepTrial tryStep(Specimen &specimen, const TrialSetting &setting, VarType resultType);
/// The same with the result variable the operation asks for.
StepTrial tryStep(Specimen &specimen, const TrialSetting &setting);
