#include "refhost/runner/PluginCommand.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/LanguageChoice.h"
#include "refhost/runner/PluginChoice.h"

int PluginCommand::run(const QCommandLineParser &options, const QStringList &arguments,
                       Console &console) const
{
    const QStringList files = chosenPlugins(options);
    if (files.isEmpty()) {
        console.complain(
            QStringLiteral("no plug-in found in %1; expected one there or --plugin FILE")
                .arg(ownPluginFolders().join(QLatin1String(" or "))));
        return PluginNotLoaded;
    }
    const Result<QStringList> languages =
        isForPrograms(options) ? languagesNamed(options, files) : chosenLanguages(options, files);
    if (!languages) {
        console.complain(languages.problem().toString());
        return BadInput;
    }
    const auto translations = translate(files, languages.value(), console);
    const OperationCatalog catalog(files);
    for (const Problem &failure : catalog.failures())
        console.complain(failure.toString());
    if (!catalog.failures().isEmpty())
        return PluginNotLoaded;
    return runWith(catalog, options, arguments, console);
}

bool PluginCommand::isForPrograms(const QCommandLineParser &options) const
{
    Q_UNUSED(options)
    return false;
}

const CatalogEntry *PluginCommand::findOrComplain(const OperationCatalog &catalog,
                                                  const QString &typeId, const Console &console)
{
    const CatalogEntry *const entry = catalog.find(typeId);
    if (!entry) {
        console.complain(QStringLiteral("no operation %1; expected %2")
                             .arg(jsonText(typeId), catalog.typeIds().join(QLatin1String(", "))));
    }
    return entry;
}
