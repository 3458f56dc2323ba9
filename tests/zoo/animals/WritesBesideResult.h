#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class WritesBesideResultOperation : public Variant<WritesBesideResultOperation>
{
public:
    void doOperation() const override
    {
        Variant::doOperation();
        if (scope && scope->typeOf(resultVar()) == VarType::String)
            scope->set(resultVar() + QLatin1String("_ok"), true);
    }
};

/// A run also writes a variable whose name is that of the result with an ending.
class WritesBesideResult : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new WritesBesideResultOperation}; }
};
