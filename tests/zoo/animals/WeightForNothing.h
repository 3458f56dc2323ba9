#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Its manifest has a weight for an operation that is gone.
class WeightForNothing : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    PluginManifest manifest() const override
    {
        PluginManifest manifest = SoundPlugin::manifest();
        manifest.typeOrder.insert(QStringLiteral("zoo.gone"), 1);
        return manifest;
    }
};
