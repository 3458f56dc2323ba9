#pragma once

#include "tests/zoo/SoundPlugin.h"

/// A library with a root class, but without the metadata that makes it a plug-in.
class NoMetadata : public SoundPlugin
{
    Q_OBJECT
};
