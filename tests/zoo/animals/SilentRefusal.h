#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class SilentRefusalOperation : public Variant<SilentRefusalOperation>
{
public:
    void doOperation() const override
    {
        if (scope && (resultVar().isEmpty() || scope->typeOf(resultVar()) == VarType::String))
            Variant::doOperation();
    }
};

/// It does not tell that the result variable is unfit.
class SilentRefusal : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SilentRefusalOperation}; }
};
