#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class EmptyIdOperation : public Variant<EmptyIdOperation>
{
public:
    QString typeId() const override { return {}; }
};

/// Its operation has no type identifier.
class EmptyId : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new EmptyIdOperation}; }
    PluginManifest manifest() const override
    {
        PluginManifest manifest = SoundPlugin::manifest();
        manifest.typeOrder = {{QString(), 0}};
        return manifest;
    }
};
