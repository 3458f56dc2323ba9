#include "refhost/validator/checks/CloneCheck.h"

#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/OddSettings.h"
#include "refhost/validator/trials/OperationRecord.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

#include <typeinfo>

namespace {

void compare(Specimen &specimen, const Operation &copy, const Operation &original,
             const OperationClass &operationClass)
{
    const QStringList differing = differences(copy, original, operationClass);
    for (const QString &difference : differing)
        specimen.fail(QStringLiteral("the clone's ") + difference);
    if (baseRecord(copy) != baseRecord(original))
        specimen.fail(QStringLiteral("the clone has not the baseState of the original"));
    if (typeid(copy) != typeid(original))
        specimen.fail(QStringLiteral("the clone is of another class"));
}

/// The clone, null when there is none, which is told.
const Operation *cloneOf(Specimen &specimen, const Operation &original)
{
    const Operation *copy = nullptr;
    const auto thrown = thrownBy([&] { copy = original.clone(nullptr); });
    if (thrown) {
        specimen.fail(QStringLiteral("clone throws %1").arg(*thrown));
        return nullptr;
    }
    if (!copy)
        specimen.fail(QStringLiteral("clone gives null"));
    if (copy == &original)
        specimen.fail(QStringLiteral("clone gives the object itself"));
    return copy == &original ? nullptr : copy;
}

} // namespace

CloneCheck::CloneCheck()
    : OperationCheck({QStringLiteral("behaviour.clone"), 4,
                      QStringLiteral("A clone has the class, the properties and the baseState.")},
                     Needs::Nothing)
{
}

void CloneCheck::examine(Specimen &specimen, CheckContext &) const
{
    const OperationClass operationClass(specimen.prototype());
    constexpr quint32 oddState = 0xC0FFEE01;
    const int rounds = oddRounds(operationClass);
    for (int round = 0; round < rounds && !specimen.hasFailed(); ++round) {
        specimen.doing(QStringLiteral("clone, odd values"));
        // The prototype serves as the original: that its clones are any good is not known yet.
        setOdd(specimen.prototype(), operationClass, round);
        setBaseState(specimen.prototype(), oddState + static_cast<quint32>(round));
        if (const Operation *const copy = cloneOf(specimen, specimen.prototype()))
            compare(specimen, *copy, specimen.prototype(), operationClass);
    }
}
