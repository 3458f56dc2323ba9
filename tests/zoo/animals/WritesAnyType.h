#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class WritesAnyTypeOperation : public Variant<WritesAnyTypeOperation>
{
public:
    void doOperation() const override
    {
        if (scope && !resultVar().isEmpty() && scope->typeOf(resultVar()) != VarType::None)
            scope->set(resultVar(), result());
        else
            Variant::doOperation();
    }
};

/// It writes a text into a variable of any type.
class WritesAnyType : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new WritesAnyTypeOperation}; }
};
