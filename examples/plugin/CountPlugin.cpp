#include "CountPlugin.h"

#include "CountOccurrencesOperation.h"

QList<Operation *> CountPlugin::createPrototypes()
{
    return {new CountOccurrencesOperation};
}

QString CountPlugin::pluginId() const
{
    return QStringLiteral("org.example.CountPlugin");
}

QString CountPlugin::name() const
{
    // In the context that all plug-ins share for their names.
    return QObject::tr("统计插件");
}

QString CountPlugin::version() const
{
    return QStringLiteral(COUNT_PLUGIN_VERSION);
}

int CountPlugin::apiVersion() const
{
    return 2;
}

PluginManifest CountPlugin::manifest() const
{
    PluginManifest manifest;
    manifest.id = pluginId();
    manifest.name = name();
    manifest.version = version();
    manifest.apiVersion = apiVersion();
    manifest.typeIdPrefix = QStringLiteral("count.");
    manifest.requiredCapabilities = requiredCapabilities();
    // By the root as it stands in the sources; the translated one would change with the language.
    manifest.rootOrder = {{QStringLiteral("统计"), 600}};
    manifest.typeOrder = {{QStringLiteral("count.occurrences"), 0}};
    return manifest;
}

QStringList CountPlugin::requiredCapabilities() const
{
    return {};
}
