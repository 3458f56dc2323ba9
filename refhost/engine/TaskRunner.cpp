#include "refhost/engine/TaskRunner.h"

#include "refhost/engine/MessageCapture.h"
#include "refhost/engine/StepGuard.h"
#include "refhost/engine/Task.h"

#include "Operation.h"
#include "VariableScope.h"

#include <QElapsedTimer>

StepReport runStep(Operation &step, VariableScope &scope, int index)
{
    MessageCapture capture;
    scope.forgetWrites();
    step.setVariableScope(&scope);
    StepReport report;
    report.index = index;
    QElapsedTimer clock;
    clock.start();
    report.failure = runGuarded(step, index);
    report.nanoseconds = clock.nsecsElapsed();
    step.setVariableScope(nullptr);
    report.step = &step;
    report.written = scope.writtenNames();
    report.warnings = capture.takeLines();
    return report;
}

void runTask(const Task &task, VariableScope &scope,
             const std::function<void(const StepReport &)> &report,
             const std::function<void(const Operation &)> &begin)
{
    int index = 0;
    for (const auto &step : task.steps) {
        if (begin)
            begin(*step);
        report(runStep(*step, scope, index++));
    }
}
