#include "refhost/engine/PluginFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

QStringList pluginFolders(const QString &programFolder)
{
    const QDir parent(QDir::cleanPath(programFolder + QStringLiteral("/..")));
    return {parent.filePath(QStringLiteral("plugins")),
            parent.filePath(QStringLiteral(OPERATIONCORE_PLUGIN_DIR))};
}

QStringList pluginFiles(const QStringList &folders)
{
    QStringList files;
    for (const QString &folder : folders) {
        const QDir dir(folder);
        const QStringList names = dir.entryList(QDir::Files, QDir::Name);
        for (const QString &name : names) {
            if (QLibrary::isLibrary(name))
                files.append(dir.filePath(name));
        }
    }
    return files;
}

QString fileBeside(const QString &plugin, const QString &ending)
{
    const QFileInfo info(plugin);
    return info.path() + QLatin1Char('/') + info.completeBaseName() + ending;
}
