#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class TakesAllMemoryOperation : public Variant<TakesAllMemoryOperation>
{
public:
    void doOperation() const override
    {
        if (scope && scope->get(text().mid(1)).toString().size() > 1000000)
            scope->set(resultVar(), result().repeated(100));
        else
            Variant::doOperation();
    }
};

/// Its result is larger than any memory, if its text is.
class TakesAllMemory : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new TakesAllMemoryOperation}; }
};
