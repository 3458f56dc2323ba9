#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class KeepsResultOperation : public Variant<KeepsResultOperation>
{
public:
    void doOperation() const override
    {
        if (!scope || resultVar().isEmpty() || scope->typeOf(resultVar()) != VarType::String) {
            Variant::doOperation();
            return;
        }
        m_last += result();
        scope->set(resultVar(), m_last);
    }

private:
    mutable QString m_last;
};

/// A step keeps its last result and puts the next one behind it.
class KeepsResult : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new KeepsResultOperation}; }
};
