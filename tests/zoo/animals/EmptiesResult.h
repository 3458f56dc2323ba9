#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class EmptiesResultOperation : public Variant<EmptiesResultOperation>
{
public:
    void doOperation() const override
    {
        if (scope && !resultVar().isEmpty() && scope->typeOf(resultVar()) == VarType::String)
            scope->set(resultVar(), QString());
        Variant::doOperation();
    }
};

/// A run empties the result variable before it reads the operands.
class EmptiesResult : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new EmptiesResultOperation}; }
};
