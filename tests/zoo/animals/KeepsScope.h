#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class KeepsScopeOperation : public Variant<KeepsScopeOperation>
{
public:
    void doOperation() const override
    {
        if (scope)
            m_last = scope;
        SoundOperation step;
        step.setText(text());
        step.setResultVar(resultVar());
        step.setVariableScope(m_last);
        step.doOperation();
    }

private:
    mutable VariableScope *m_last = nullptr;
};

/// It does not let go of a scope that is taken away.
class KeepsScope : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new KeepsScopeOperation}; }
};
