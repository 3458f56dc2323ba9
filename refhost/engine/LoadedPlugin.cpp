#include "refhost/engine/LoadedPlugin.h"

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QFileInfo>
#include <QPluginLoader>

namespace {

constexpr int hostApiVersion = 2;

QStringList hostCapabilities()
{
    return {QStringLiteral("hasListType")};
}

Problem notLoaded(const QString &path, const QString &reason)
{
    return {Problem::Reason::PluginNotLoaded,
            path,
            {},
            QStringLiteral("cannot be loaded as a plug-in (%1)").arg(reason)};
}

/// Why this host cannot use the plug-in, empty when it can.
QString refusal(const IOperationPlugin &plugin)
{
    if (plugin.apiVersion() != hostApiVersion) {
        return QStringLiteral("it is built for interface version %1, this host has version %2")
            .arg(plugin.apiVersion())
            .arg(hostApiVersion);
    }
    const QStringList needed = plugin.requiredCapabilities();
    for (const QString &capability : needed) {
        if (!hostCapabilities().contains(capability))
            return QStringLiteral("it requires \"%1\", which this host lacks").arg(capability);
    }
    return {};
}

} // namespace

LoadedPlugin::LoadedPlugin() = default;
LoadedPlugin::~LoadedPlugin() = default;
LoadedPlugin::LoadedPlugin(LoadedPlugin &&other) noexcept = default;
LoadedPlugin &LoadedPlugin::operator=(LoadedPlugin &&other) noexcept = default;

Result<LoadedPlugin> LoadedPlugin::load(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return notLoaded(path, QStringLiteral("there is no such file"));
    // Qt would look for a relative path in its own plug-in folders, not here.
    QPluginLoader loader(QFileInfo(path).absoluteFilePath());
    QObject *const root = loader.instance();
    if (!root)
        return notLoaded(path, loader.errorString());
    auto *const plugin = qobject_cast<IOperationPlugin *>(root);
    if (!plugin) {
        return notLoaded(path, QStringLiteral("its root object does not implement %1")
                                   .arg(QStringLiteral(IOperationPlugin_iid)));
    }
    const QString reason = refusal(*plugin);
    if (!reason.isEmpty())
        return notLoaded(path, reason);

    LoadedPlugin loaded;
    loaded.m_path = path;
    loaded.m_manifest = plugin->manifest();
    const QList<Operation *> prototypes = plugin->createPrototypes();
    for (Operation *prototype : prototypes) {
        if (prototype)
            loaded.m_prototypes.emplace_back(prototype);
    }
    return loaded;
}
