#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Its manifest tells of another version than its function.
class DisagreeingManifest : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    PluginManifest manifest() const override
    {
        PluginManifest manifest = SoundPlugin::manifest();
        manifest.version = QStringLiteral("1.1.0");
        return manifest;
    }
};
