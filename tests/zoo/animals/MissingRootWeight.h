#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Its manifest has no weight for its root.
class MissingRootWeight : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    PluginManifest manifest() const override
    {
        PluginManifest manifest = SoundPlugin::manifest();
        manifest.rootOrder.clear();
        return manifest;
    }
};
