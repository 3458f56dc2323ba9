#pragma once

#include "tests/zoo/SoundPlugin.h"

/// The animal without a fault.
class Sound : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)
};
