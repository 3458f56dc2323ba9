#include "tests/zoo/SoundPlugin.h"

#include "tests/zoo/SoundOperation.h"

SoundPlugin::SoundPlugin()
{
    Q_INIT_RESOURCE(sound);
}

SoundPlugin::~SoundPlugin()
{
    Q_CLEANUP_RESOURCE(sound);
}

QList<Operation *> SoundPlugin::createPrototypes()
{
    return {new SoundOperation};
}

QString SoundPlugin::pluginId() const
{
    return QStringLiteral("org.example.Zoo");
}

QString SoundPlugin::name() const
{
    return QStringLiteral("Zoo");
}

QString SoundPlugin::version() const
{
    return QStringLiteral("1.0.0");
}

int SoundPlugin::apiVersion() const
{
    return 2;
}

PluginManifest SoundPlugin::manifest() const
{
    PluginManifest manifest;
    manifest.id = pluginId();
    manifest.name = name();
    manifest.version = version();
    manifest.apiVersion = apiVersion();
    manifest.typeIdPrefix = QStringLiteral("zoo.");
    manifest.requiredCapabilities = requiredCapabilities();
    manifest.rootOrder = {{QStringLiteral("Zoo"), 100}};
    manifest.typeOrder = {{QStringLiteral("zoo.sound"), 0}};
    return manifest;
}

QStringList SoundPlugin::requiredCapabilities() const
{
    return {QStringLiteral("hasListType")};
}
