#include "refhost/validator/checks/WeightsCheck.h"

#include "refhost/validator/CheckContext.h"

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QSet>

namespace {

/// Compares what has a weight with what there is.
void compare(const QString &field, const QMap<QString, int> &weights, const QSet<QString> &present,
             Outcome &outcome)
{
    QStringList names = present.values();
    names.sort();
    for (const QString &name : names) {
        if (!weights.contains(name))
            outcome.fail(QStringLiteral("manifest.%1: no weight for \"%2\"").arg(field, name));
    }
    const QStringList weighted = weights.keys();
    for (const QString &name : weighted) {
        if (!present.contains(name)) {
            outcome.fail(QStringLiteral("manifest.%1: a weight for \"%2\", which no prototype has")
                             .arg(field, name));
        }
    }
}

} // namespace

WeightsCheck::WeightsCheck()
    : Check({QStringLiteral("catalog.weights"), 2,
             QStringLiteral("The manifest has a weight for each type and root, and no other.")})
{
}

Outcome WeightsCheck::run(CheckContext &context) const
{
    QSet<QString> roots;
    QSet<QString> typeIds;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes) {
        typeIds.insert(prototype->typeId());
        context.doing(context.nameOf(*prototype) + QStringLiteral(": root"));
        roots.insert(prototype->root());
    }
    Outcome outcome;
    context.doing(QStringLiteral("manifest"));
    const PluginManifest manifest = context.plugin().manifest();
    compare(QStringLiteral("typeOrder"), manifest.typeOrder, typeIds, outcome);
    compare(QStringLiteral("rootOrder"), manifest.rootOrder, roots, outcome);
    return outcome;
}
