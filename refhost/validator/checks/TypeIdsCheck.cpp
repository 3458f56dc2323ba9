#include "refhost/validator/checks/TypeIdsCheck.h"

#include "refhost/validator/CheckContext.h"

#include "IOperationPlugin.h"
#include "Operation.h"

TypeIdsCheck::TypeIdsCheck()
    : Check({QStringLiteral("catalog.ids"), 2,
             QStringLiteral("Type identifiers are unique and begin with the manifest's prefix.")})
{
}

Outcome TypeIdsCheck::run(CheckContext &context) const
{
    Outcome outcome;
    context.doing(QStringLiteral("manifest"));
    const QString prefix = context.plugin().manifest().typeIdPrefix;
    if (prefix.isEmpty())
        outcome.fail(QStringLiteral("the manifest has no typeIdPrefix"));
    QStringList known;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes) {
        const QString className = QString::fromLatin1(prototype->metaObject()->className());
        context.doing(className + QStringLiteral(": typeId"));
        const QString id = prototype->typeId();
        if (id.isEmpty()) {
            outcome.fail(QStringLiteral("%1: typeId is empty").arg(className));
        } else if (known.contains(id)) {
            outcome.fail(QStringLiteral("%1 (%2): another prototype has this typeId already")
                             .arg(id, className));
        } else if (!id.startsWith(prefix) || id == prefix) {
            outcome.fail(QStringLiteral("%1 (%2): typeId does not begin with the prefix \"%3\"")
                             .arg(id, className, prefix));
        }
        known.append(id);
    }
    return outcome;
}
