#include "refhost/engine/LoadedPlugin.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/HostRefusal.h"

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QFileInfo>
#include <QPluginLoader>

namespace {

Problem notLoaded(const QString &path, const QString &reason)
{
    return {Problem::Reason::PluginNotLoaded,
            path,
            {},
            EngineText::tr("cannot be loaded as a plug-in (%1)").arg(reason)};
}

} // namespace

LoadedPlugin::LoadedPlugin() = default;
LoadedPlugin::~LoadedPlugin() = default;
LoadedPlugin::LoadedPlugin(LoadedPlugin &&other) noexcept = default;
LoadedPlugin &LoadedPlugin::operator=(LoadedPlugin &&other) noexcept = default;

Result<LoadedPlugin> LoadedPlugin::load(const QString &path, const QString &original)
{
    const QString name = original.isEmpty() ? path : original;
    if (!QFileInfo(path).isFile())
        return notLoaded(name, EngineText::tr("there is no such file"));
    // Qt would look for a relative path in its own plug-in folders, not here.
    const QString file = QFileInfo(path).absoluteFilePath();
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
    for (Operation *prototype : prototypes) {
        if (prototype)
            loaded.m_prototypes.emplace_back(prototype);
    }
    return loaded;
}
