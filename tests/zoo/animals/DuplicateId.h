#pragma once

#include "tests/zoo/SoundOperation.h"
#include "tests/zoo/SoundPlugin.h"

/// Two kinds of steps under one type identifier.
class DuplicateId : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override
    {
        return {new SoundOperation, new SoundOperation};
    }
};
