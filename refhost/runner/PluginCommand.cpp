#include "refhost/runner/PluginCommand.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/FileRoles.h"
#include "refhost/runner/LanguageChoice.h"
#include "refhost/runner/PluginChoice.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/supervision/RunProgress.h"

int PluginCommand::run(const QCommandLineParser &options, const QStringList &arguments,
                       Console &console) const
{
    const QStringList plugins = chosenPlugins(options);
    if (plugins.isEmpty()) {
        console.complain(
            RunnerText::tr("no plug-in found in %1; expected one there or --plugin FILE")
                .arg(choiceText(ownPluginFolders())));
        return PluginNotLoaded;
    }
    const QList<FileRole> named = files(options, arguments);
    if (const auto problem =
            named.isEmpty() ? std::nullopt : findSharedFile(named + pluginRoles(plugins))) {
        console.complain(problem->toString());
        return BadInput;
    }
    const Result<QStringList> languages = isForPrograms(options)
                                              ? languagesNamed(options, plugins)
                                              : chosenLanguages(options, plugins);
    if (!languages) {
        console.complain(languages.problem().toString());
        return BadInput;
    }
    if (isForPrograms(options))
        installMessages(languages.value());
    const auto translations = translate(plugins, languages.value(), console);
    RunProgress &progress = RunProgress::current();
    const OperationCatalog catalog(plugins, {}, [&](const QString &file) {
        progress.activity.set(RunnerText::tr("loading %1").arg(file).toUtf8());
    });
    progress.activity.set({});
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

QList<FileRole> PluginCommand::files(const QCommandLineParser &options,
                                     const QStringList &arguments) const
{
    Q_UNUSED(options)
    const QString task = QStringLiteral("TASK");
    if (this->arguments().value(0) != task)
        return {};
    return {readRole(task, arguments.first()),
            writtenRole(RunnerText::tr("standard output"), QStringLiteral("-"))};
}

const CatalogEntry *PluginCommand::findOrComplain(const OperationCatalog &catalog,
                                                  const QString &typeId, const Console &console)
{
    const CatalogEntry *const entry = catalog.find(typeId);
    if (!entry) {
        const QStringList known = catalog.typeIds();
        const QString message =
            RunnerText::tr("no operation %1; expected %2").arg(jsonText(typeId), listText(known));
        console.complain(withSuggestion(message, nearestName(typeId, known)));
    }
    return entry;
}
