#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class CountsRunsOperation : public Variant<CountsRunsOperation>
{
public:
    void doOperation() const override
    {
        static int count = 0;
        Variant::doOperation();
        if (scope && scope->typeOf(resultVar()) == VarType::String && !resultVar().isEmpty())
            scope->set(resultVar(), QString::number(++count));
    }
};

/// Its steps share a count of their runs, and show it.
class CountsRuns : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CountsRunsOperation}; }
};
