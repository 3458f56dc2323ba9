#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <cstdlib>

/// The operation of the plug-in below.
class CrashOnOddModeOperation : public Variant<CrashOnOddModeOperation>
{
public:
    void doOperation() const override
    {
        if (mode() == 65536)
            std::abort();
        Variant::doOperation();
    }
};

/// A mode far out of range is its end.
class CrashOnOddMode : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CrashOnOddModeOperation}; }
};
