#include "refhost/validator/checks/PrototypesCheck.h"

#include "refhost/validator/CheckContext.h"

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QStringList>

namespace {

/// Looks at the prototypes of one call; their type identifiers.
QStringList examine(const QList<Operation *> &prototypes, const QString &call,
                    CheckContext &context, Outcome &outcome)
{
    QStringList typeIds;
    for (int i = 0; i < prototypes.size(); ++i) {
        const Operation *const prototype = prototypes.at(i);
        const QString place =
            QStringLiteral("createPrototypes, %1 call, element %2").arg(call).arg(i);
        if (!prototype) {
            outcome.fail(place + QStringLiteral(": null; expected an object"));
            continue;
        }
        const QString name = context.nameOf(*prototype);
        if (prototypes.indexOf(prototypes.at(i)) < i)
            outcome.fail(QStringLiteral("%1: %2 stands there twice").arg(place, name));
        else if (prototype->parent())
            outcome.fail(QStringLiteral("%1: %2 has a parent").arg(place, name));
        typeIds.append(name);
    }
    return typeIds;
}

} // namespace

PrototypesCheck::PrototypesCheck()
    : Check({QStringLiteral("catalog.prototypes"), 2,
             QStringLiteral("Each call makes the same prototypes, fresh and without a parent.")})
{
}

Outcome PrototypesCheck::run(CheckContext &context) const
{
    Outcome outcome;
    context.doing(QStringLiteral("createPrototypes, first call"));
    const QList<Operation *> first = context.plugin().createPrototypes();
    const QStringList firstIds = examine(first, QStringLiteral("first"), context, outcome);
    context.doing(QStringLiteral("createPrototypes, second call"));
    const QList<Operation *> second = context.plugin().createPrototypes();
    const QStringList secondIds = examine(second, QStringLiteral("second"), context, outcome);
    if (firstIds.isEmpty())
        outcome.warn(QStringLiteral("createPrototypes gives none"));
    if (firstIds != secondIds) {
        outcome.fail(
            QStringLiteral("the second call gives %1; the first gave %2")
                .arg(secondIds.join(QLatin1String(", ")), firstIds.join(QLatin1String(", "))));
    }
    for (Operation *prototype : second) {
        if (prototype && first.contains(prototype)) {
            outcome.fail(QStringLiteral("%1: the second call gives the object of the first")
                             .arg(context.nameOf(*prototype)));
        }
    }
    return outcome;
}
