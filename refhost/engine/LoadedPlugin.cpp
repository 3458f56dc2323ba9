#include "refhost/engine/LoadedPlugin.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/HostRefusal.h"
#include "refhost/engine/LibraryFile.h"
#include "refhost/engine/ProgramArguments.h"

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QFileInfo>
#include <QPluginLoader>
#include <QSet>
#include <QtAlgorithms>

namespace {

Problem notLoaded(const QString &path, const QString &reason)
{
    return {Problem::Reason::PluginNotLoaded,
            path,
            {},
            EngineText::tr("cannot be loaded as a plug-in (%1)").arg(reason)};
}

/// Returns what is wrong with the list of a plug-in's prototypes, empty when nothing is.
QString faultOf(const QList<Operation *> &prototypes)
{
    if (prototypes.isEmpty())
        return EngineText::tr("createPrototypes returns no operation; expected at least one");
    for (int i = 0; i < prototypes.size(); ++i) {
        if (!prototypes.at(i)) {
            return EngineText::tr("createPrototypes returns a null pointer at %1; "
                                  "expected an operation")
                .arg(i);
        }
        const int first = prototypes.indexOf(prototypes.at(i));
        if (first < i) {
            return EngineText::tr("createPrototypes returns the same object at %1 and at %2; "
                                  "expected two objects")
                .arg(first)
                .arg(i);
        }
    }
    return {};
}

} // namespace

LoadedPlugin::LoadedPlugin() = default;
LoadedPlugin::~LoadedPlugin() = default;
LoadedPlugin::LoadedPlugin(LoadedPlugin &&other) noexcept = default;
LoadedPlugin &LoadedPlugin::operator=(LoadedPlugin &&other) noexcept = default;

Result<LoadedPlugin> LoadedPlugin::load(const QString &path, const QString &original)
{
    const QString name = original.isEmpty() ? path : original;
    const QString unfit = unfitLibraryReason(path);
    if (!unfit.isEmpty())
        return notLoaded(name, unfit);
    // Qt would look for a relative path in its own plug-in folders, not here.
    const QString file = QFileInfo(path).absoluteFilePath();
    const QString unfitFolder = unfitFolderReason(path);
    if (!unfitFolder.isEmpty())
        return notLoaded(name, unfitFolder);
    QPluginLoader loader(file);
    QObject *const root = loader.instance();
    if (!root)
        return notLoaded(name, loader.errorString().replace(file, name));
    auto *const plugin = qobject_cast<IOperationPlugin *>(root);
    if (!plugin) {
        return notLoaded(name, EngineText::tr("its root object does not implement %1")
                                   .arg(QStringLiteral(IOperationPlugin_iid)));
    }
    const QString reason = hostRefusal(*plugin);
    if (!reason.isEmpty())
        return notLoaded(name, reason);

    LoadedPlugin loaded;
    loaded.m_path = name;
    loaded.m_manifest = plugin->manifest();
    const QList<Operation *> prototypes = plugin->createPrototypes();
    const QString fault = faultOf(prototypes);
    const QSet<Operation *> distinct(prototypes.cbegin(), prototypes.cend());
    if (!fault.isEmpty()) {
        qDeleteAll(distinct);
        return notLoaded(name, fault);
    }
    for (Operation *prototype : prototypes)
        loaded.m_prototypes.emplace_back(prototype);
    return loaded;
}
