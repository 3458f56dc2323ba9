#pragma once

#include "tests/zoo/SoundOperation.h"
#include "tests/zoo/SoundPlugin.h"

/// One of its prototypes is null.
class NullPrototype : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SoundOperation, nullptr}; }
};
