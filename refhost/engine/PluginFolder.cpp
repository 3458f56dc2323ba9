#include "refhost/engine/PluginFolder.h"

#include <QDir>
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
