#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Contributes nothing.
class NoPrototypes : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {}; }
    PluginManifest manifest() const override
    {
        PluginManifest manifest = SoundPlugin::manifest();
        manifest.rootOrder.clear();
        manifest.typeOrder.clear();
        return manifest;
    }
};
