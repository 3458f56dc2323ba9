#include "refhost/runner/CatalogCommand.h"

#include "refhost/engine/OperationCatalog.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/TextColumns.h"

#include "Operation.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

/// The entries of one root after the other.
QList<QList<CatalogEntry>> groupedByRoot(const OperationCatalog &catalog)
{
    QList<QList<CatalogEntry>> groups;
    for (const CatalogEntry &entry : catalog.entries()) {
        if (groups.isEmpty() || groups.last().first().root != entry.root)
            groups.append(QList<CatalogEntry>());
        groups.last().append(entry);
    }
    return groups;
}

QJsonObject rootToJson(const QList<CatalogEntry> &entries)
{
    QJsonArray operations;
    for (const CatalogEntry &entry : entries) {
        operations.append(QJsonObject{{QStringLiteral("typeId"), entry.typeId},
                                      {QStringLiteral("name"), entry.prototype->typeName()},
                                      {QStringLiteral("icon"), entry.prototype->icon()},
                                      {QStringLiteral("weight"), entry.weight}});
    }
    return {{QStringLiteral("root"), entries.first().root},
            {QStringLiteral("weight"), entries.first().rootWeight},
            {QStringLiteral("operations"), operations}};
}

void printRoot(const QList<CatalogEntry> &entries, Console &console)
{
    console.print(entries.first().root);
    QList<QStringList> rows;
    for (const CatalogEntry &entry : entries)
        rows.append({entry.typeId, entry.prototype->typeName(), entry.prototype->icon()});
    const QStringList lines = alignColumns(rows);
    for (const QString &line : lines)
        console.print(QStringLiteral("  ") + line);
}

} // namespace

QString CatalogCommand::name() const
{
    return QStringLiteral("catalog");
}

QString CatalogCommand::summary() const
{
    return QStringLiteral("Lists the operations in the order of the catalogue.");
}

QString CatalogCommand::example() const
{
    return QStringLiteral("oprun catalog --json");
}

QList<QCommandLineOption> CatalogCommand::options() const
{
    return {Options::json()};
}

bool CatalogCommand::isForPrograms(const QCommandLineParser &options) const
{
    return options.isSet(Options::json());
}

int CatalogCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                            const QStringList &arguments, Console &console) const
{
    Q_UNUSED(arguments)
    const auto groups = groupedByRoot(catalog);
    QJsonArray roots;
    for (const auto &group : groups) {
        if (options.isSet(Options::json()))
            roots.append(rootToJson(group));
        else
            printRoot(group, console);
    }
    if (options.isSet(Options::json()))
        console.printJson(QJsonObject{{QStringLiteral("roots"), roots}});
    return Success;
}
