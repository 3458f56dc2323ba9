#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class SilentWithoutResultOperation : public Variant<SilentWithoutResultOperation>
{
public:
    void doOperation() const override
    {
        if (!resultVar().isEmpty())
            Variant::doOperation();
    }
};

/// Without a result variable it does nothing, but says so to nobody.
class SilentWithoutResult : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SilentWithoutResultOperation}; }
};
