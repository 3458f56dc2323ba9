#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Its manifest has no weight for its operation.
class MissingWeight : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    PluginManifest manifest() const override
    {
        PluginManifest manifest = SoundPlugin::manifest();
        manifest.typeOrder.clear();
        return manifest;
    }
};
