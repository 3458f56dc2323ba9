#include "refhost/runner/Command.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/runner/Console.h"

void Command::addOptions(QCommandLineParser &parser) const
{
    Q_UNUSED(parser)
}

const CatalogEntry *Command::findOrComplain(const OperationCatalog &catalog, const QString &typeId,
                                            const Console &console)
{
    const CatalogEntry *const entry = catalog.find(typeId);
    if (!entry) {
        console.complain(QStringLiteral("no operation %1; expected %2")
                             .arg(jsonText(typeId), catalog.typeIds().join(QLatin1String(", "))));
    }
    return entry;
}
