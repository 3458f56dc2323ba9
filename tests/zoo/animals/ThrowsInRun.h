#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <stdexcept>

/// The operation of the plug-in below.
class ThrowsInRunOperation : public Variant<ThrowsInRunOperation>
{
public:
    void doOperation() const override
    {
        if (mode() == 99)
            throw std::out_of_range("mode 99");
        Variant::doOperation();
    }
};

/// A mode out of range makes a run throw.
class ThrowsInRun : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ThrowsInRunOperation}; }
};
