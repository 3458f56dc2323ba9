#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class WrongPrefixOperation : public Variant<WrongPrefixOperation>
{
public:
    QString typeId() const override { return QStringLiteral("other.sound"); }
};

/// Its operation has an identifier outside of its prefix.
class WrongPrefix : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new WrongPrefixOperation}; }
    PluginManifest manifest() const override
    {
        PluginManifest manifest = SoundPlugin::manifest();
        manifest.typeOrder = {{QStringLiteral("other.sound"), 0}};
        return manifest;
    }
};
