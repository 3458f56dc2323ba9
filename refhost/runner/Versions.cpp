#include "refhost/runner/Versions.h"

#include "refhost/engine/LoadedPlugin.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/LanguageChoice.h"
#include "refhost/runner/PluginChoice.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/supervision/RunProgress.h"

#include "Operation.h"

#include <QCoreApplication>

int printVersions(const QCommandLineParser &options, Console &console)
{
    const QStringList files = chosenPlugins(options);
    const Result<QStringList> languages = chosenLanguages(options, files);
    if (!languages) {
        console.complain(languages.problem().toString());
        return BadInput;
    }
    console.print(QStringLiteral("%1 %2, Qt %3")
                      .arg(QCoreApplication::applicationName(),
                           QCoreApplication::applicationVersion(), QLatin1String(qVersion())));
    int status = Success;
    const auto translations = translate(files, languages.value(), console);
    for (const QString &file : files) {
        RunProgress::current().activity.set(RunnerText::tr("loading %1").arg(file).toUtf8());
        const Result<LoadedPlugin> plugin = LoadedPlugin::load(file);
        if (!plugin) {
            console.complain(plugin.problem().toString());
            status = PluginNotLoaded;
            continue;
        }
        const PluginManifest &manifest = plugin.value().manifest();
        console.print(QStringLiteral("%1 %2, %3, %4")
                          .arg(manifest.id, manifest.version, manifest.name, file));
    }
    RunProgress::current().activity.set({});
    return status;
}
