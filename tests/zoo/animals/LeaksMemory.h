#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <QList>

/// The operation of the plug-in below.
class LeaksMemoryOperation : public Variant<LeaksMemoryOperation>
{
public:
    void doOperation() const override
    {
        static QList<char *> blocks;
        constexpr int size = 64 * 1024;
        blocks.append(new char[size]);
        Variant::doOperation();
    }
};

/// A run does not free 64 KiB that it allocates.
class LeaksMemory : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new LeaksMemoryOperation}; }
};
