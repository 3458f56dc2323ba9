#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class WritesOtherOperation : public Variant<WritesOtherOperation>
{
public:
    void doOperation() const override
    {
        Variant::doOperation();
        if (scope && scope->typeOf(resultVar()) == VarType::String)
            scope->set(QStringLiteral("zooLast"), text());
    }
};

/// A run also writes a variable that no property names.
class WritesOther : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new WritesOtherOperation}; }
};
