#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class WritesWithoutNameOperation : public Variant<WritesWithoutNameOperation>
{
public:
    void doOperation() const override
    {
        if (scope && resultVar().isEmpty())
            scope->set(resultVar(), result());
        Variant::doOperation();
    }
};

/// It takes an empty name for that of a variable.
class WritesWithoutName : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new WritesWithoutNameOperation}; }
};
