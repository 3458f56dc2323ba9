#include "refhost/validator/trials/StepTrial.h"

#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

#include <algorithm>

int TracedRun::warningCount() const
{
    return static_cast<int>(
        std::count_if(messages.begin(), messages.end(),
                      [](const LoggedMessage &message) { return message.type == QtWarningMsg; }));
}

TracedRun traceStep(Operation &step, VariableScope &scope)
{
    MessageLog log;
    TracedRun trace;
    scope.forgetWrites();
    step.setVariableScope(&scope);
    trace.thrown = thrownBy([&] { step.doOperation(); });
    step.setVariableScope(nullptr);
    trace.written = scope.writtenNames();
    trace.messages = log.take();
    return trace;
}

StepTrial tryStep(Specimen &specimen, const TrialSetting &setting, VarType resultType)
{
    specimen.doing(QStringLiteral("doOperation, ") + setting.toString());
    const auto step = specimen.newStep();
    setOrdinary(*step, specimen.schema());
    setting.applyTo(*step);
    StepTrial trial;
    trial.before = sampleScope(resultType);
    trial.after = trial.before;
    trial.trace = traceStep(*step, trial.after);
    return trial;
}

StepTrial tryStep(Specimen &specimen, const TrialSetting &setting)
{
    return tryStep(specimen, setting, specimen.resultType());
}
