#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class DeclaresVariableOperation : public Variant<DeclaresVariableOperation>
{
public:
    void doOperation() const override
    {
        Variant::doOperation();
        if (scope && !resultVar().isEmpty())
            scope->declare(QStringLiteral("zooTrace"), VarType::String);
    }
};

/// It declares a variable of its own.
class DeclaresVariable : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new DeclaresVariableOperation}; }
};
