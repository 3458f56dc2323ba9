#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Requires a capability that no host has.
class Demanding : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QStringList requiredCapabilities() const override { return {QStringLiteral("hasTeleport")}; }
};
