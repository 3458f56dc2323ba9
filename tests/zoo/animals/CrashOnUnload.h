#pragma once

#include "tests/zoo/SoundPlugin.h"

#include <cstdlib>

/// Crashes when its root object is deleted.
class CrashOnUnload : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    ~CrashOnUnload() override { std::abort(); }
};
