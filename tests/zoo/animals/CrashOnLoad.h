#pragma once

#include "tests/zoo/SoundPlugin.h"

#include <cstdlib>

/// Crashes as soon as its root object is made.
class CrashOnLoad : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    CrashOnLoad() { std::abort(); }
};
