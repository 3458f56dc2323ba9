#pragma once

#include "tests/zoo/SoundOperation.h"
#include "tests/zoo/SoundPlugin.h"

/// Its prototypes belong to its root object.
class ParentedPrototype : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override
    {
        auto *prototype = new SoundOperation;
        prototype->setParent(this);
        return {prototype};
    }
};
