#include "refhost/validator/trials/StepUse.h"

#include "refhost/validator/trials/MessageLog.h"
#include "refhost/validator/trials/OperationRecord.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

namespace {

void run(const Specimen &specimen, Operation &step)
{
    VariableScope scope = sampleScope(specimen.resultType());
    traceStep(step, scope);
}

void show(const Specimen &, Operation &step)
{
    const MessageLog log;
    thrownBy([&] {
        step.toString();
        step.description();
    });
}

void record(const Specimen &, Operation &step)
{
    const MessageLog log;
    loadRecord(step, saveRecord(step).bytes);
}

void copy(const Specimen &, Operation &step)
{
    const MessageLog log;
    thrownBy([&] { delete step.clone(nullptr); });
}

} // namespace

const QList<StepUse> &stepUses()
{
    static const QList<StepUse> uses{
        {QStringLiteral("clone"), copy},
        {QStringLiteral("doOperation"), run},
        {QStringLiteral("toString and description"), show},
        {QStringLiteral("saveOperation and loadOperation"), record},
    };
    return uses;
}
