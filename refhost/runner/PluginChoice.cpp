#include "refhost/runner/PluginChoice.h"

#include "refhost/engine/PluginFolder.h"
#include "refhost/runner/Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

QStringList ownPluginFolders()
{
    return pluginFolders(QCoreApplication::applicationDirPath());
}

QStringList chosenPlugins(const QCommandLineParser &options)
{
    return options.isSet(Options::plugin()) ? options.values(Options::plugin())
                                            : pluginFiles(ownPluginFolders());
}
