#pragma once

#include "tests/zoo/SoundPlugin.h"

#include <cstdio>

/// Never comes to an end of making its root object, and talks all the time.
class LoopOnLoad : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    LoopOnLoad()
    {
        for (;;)
            std::fputs("round and round\n", stderr);
    }
};
