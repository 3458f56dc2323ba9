#include "refhost/validator/checks/StepsCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/trials/KeptTask.h"
#include "refhost/validator/trials/MemoryLimit.h"
#include "refhost/validator/trials/RandomSource.h"
#include "refhost/validator/trials/RandomTask.h"
#include "refhost/validator/trials/RunRules.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

namespace {

/// What is wrong with the step of the task, empty when nothing is.
QString faultOf(const Specimen &specimen, const Task &task)
{
    Operation &step = *task.steps.front();
    const auto shown = thrownBy([&] {
        step.toString();
        step.description();
    });
    if (shown)
        return QStringLiteral("toString or description throws %1").arg(*shown);
    const VariableScope before = task.startScope();
    VariableScope first = before;
    const TracedRun trace = traceStep(step, first);
    QString rule = brokenRule(specimen, trace, step.property("resultVar").toString(),
                              differingNames(first, before));
    if (!rule.isEmpty())
        return rule;
    VariableScope second = before;
    const TracedRun repeated = traceStep(step, second);
    const bool isSame = areSame(first, second) && repeated.messages == trace.messages;
    return isSame ? QString() : QStringLiteral("doOperation does something else a second time");
}

} // namespace

StepsCheck::StepsCheck()
    : OperationCheck({QStringLiteral("hostile.steps"), 5,
                      QStringLiteral("Random steps keep to the rules of level 4.")},
                     Needs::CloneAndResultVariable)
{
}

void StepsCheck::examine(Specimen &specimen, CheckContext &context) const
{
    constexpr int mebibytes = 1024;
    constexpr int stepCount = 2000;
    // What a step asks for beyond that is refused at once, on machines of any size.
    limitMemory(mebibytes);
    RandomSource source(context.seed(), specimen.name());
    KeptTask file(context, info().id, specimen.name());
    if (!file.problem().isEmpty())
        specimen.remark(QStringLiteral("the task cannot be kept: ") + file.problem());
    specimen.doing(QStringLiteral("a random step; to see it again: ") + file.commandLine());
    for (int i = 0; i < stepCount; ++i) {
        const Task task = randomTask(source, specimen);
        file.write(task);
        const QString fault = faultOf(specimen, task);
        if (!fault.isEmpty()) {
            specimen.fail(QStringLiteral("random step %1: %2; to see it again: %3")
                              .arg(i)
                              .arg(fault, file.commandLine()));
            return;
        }
    }
    file.discard();
}
