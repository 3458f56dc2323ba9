#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Built for a later version of the interface.
class NewerApi : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    int apiVersion() const override { return 3; }
};
