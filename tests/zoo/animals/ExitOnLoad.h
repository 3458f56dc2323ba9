#pragma once

#include "tests/zoo/SoundPlugin.h"

#include <cstdlib>

/// Ends the program that loads it.
class ExitOnLoad : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    ExitOnLoad() { std::exit(0); }
};
