#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class RemembersScopeOperation : public Variant<RemembersScopeOperation>
{
public:
    void doOperation() const override
    {
        if (!scope)
            return;
        if (!m_first)
            m_first = scope;
        SoundOperation step;
        step.setText(text());
        step.setMode(mode());
        step.setSuffix(suffix());
        step.setResultVar(resultVar());
        step.setVariableScope(m_first);
        step.doOperation();
    }

private:
    mutable VariableScope *m_first = nullptr;
};

/// It works on the first scope it was ever given.
class RemembersScope : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new RemembersScopeOperation}; }
};
