#include "refhost/validator/checks/CloneLifeCheck.h"

#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/OddSettings.h"
#include "refhost/validator/trials/OperationRecord.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

namespace {

void examineParent(Specimen &specimen)
{
    specimen.doing(QStringLiteral("clone with a parent"));
    const auto original = specimen.newStep();
    auto *const parent = new QObject; // left behind: whose child the clone is, is the question
    if (original->clone(parent)->parent() != parent)
        specimen.fail(QStringLiteral("the clone does not belong to the parent it is made for"));
    if (original->clone(nullptr)->parent())
        specimen.fail(QStringLiteral("the clone that is made for no parent has one"));
}

void examineScope(Specimen &specimen)
{
    specimen.doing(QStringLiteral("doOperation of a clone without a scope"));
    const auto original = specimen.newStep();
    setOrdinary(*original, specimen.schema());
    VariableScope scope = sampleScope(specimen.resultType());
    original->setVariableScope(&scope);
    const std::unique_ptr<Operation> copy(original->clone(nullptr));
    original->setVariableScope(nullptr);
    MessageLog log;
    thrownBy([&] { copy->doOperation(); });
    if (!scope.writtenNames().isEmpty())
        specimen.fail(QStringLiteral("the clone takes over the scope of the original"));
}

/// Changes one of two steps, and looks whether the other one stays as it is.
void examineChange(Specimen &specimen, Operation &changed, const Operation &other,
                   const QString &fault)
{
    const OperationClass operationClass(other);
    const QByteArray before = saveRecord(other).bytes;
    setUnusual(changed, operationClass);
    setBaseState(changed, 0xBAD);
    if (saveRecord(other).bytes != before)
        specimen.fail(fault);
}

void examineChanges(Specimen &specimen)
{
    specimen.doing(QStringLiteral("changing a clone or its original"));
    const auto original = specimen.newStep();
    setOrdinary(*original, specimen.schema());
    const std::unique_ptr<Operation> first(original->clone(nullptr));
    examineChange(specimen, *first, *original,
                  QStringLiteral("changing the clone changes the original"));
    const std::unique_ptr<Operation> second(original->clone(nullptr));
    examineChange(specimen, *original, *second,
                  QStringLiteral("changing the original changes the clone"));
}

void examineDeletion(Specimen &specimen)
{
    auto original = specimen.newStep();
    setOrdinary(*original, specimen.schema());
    const std::unique_ptr<Operation> copy(original->clone(nullptr));
    const QByteArray record = saveRecord(*copy).bytes;
    specimen.doing(QStringLiteral("using a clone whose original is gone"));
    original.reset();
    if (saveRecord(*copy).bytes != record)
        specimen.fail(QStringLiteral("the clone is another one when the original is gone"));
    MessageLog log;
    VariableScope scope = sampleScope(specimen.resultType());
    traceStep(*copy, scope);
    thrownBy([&] { copy->toString(); });
}

} // namespace

CloneLifeCheck::CloneLifeCheck()
    : OperationCheck({QStringLiteral("behaviour.cloneLife"), 4,
                      QStringLiteral("A clone has a life of its own: parent, no scope, values.")})
{
}

void CloneLifeCheck::examine(Specimen &specimen, CheckContext &) const
{
    examineParent(specimen);
    examineScope(specimen);
    examineChanges(specimen);
    examineDeletion(specimen);
}
