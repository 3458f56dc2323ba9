#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Its metadata names the interface of some other host.
class OtherInterface : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Other/1.0")
};
