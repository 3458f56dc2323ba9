#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Defined nowhere.
int zooMissing();

/// Calls a function that no library has.
class UndefinedSymbol : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    int apiVersion() const override { return zooMissing(); }
};
