#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Never comes to an end of making its root object.
class LoopOnLoad : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    LoopOnLoad()
    {
        for (volatile int round = 0;; round = round + 1) {
        }
    }
};
