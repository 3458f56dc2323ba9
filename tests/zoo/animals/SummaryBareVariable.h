#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class SummaryBareVariableOperation : public Variant<SummaryBareVariableOperation>
{
public:
    QString toString() const override
    {
        return Variant::toString() + QStringLiteral(" -> ") + resultVar();
    }
};

/// The summary shows a variable like a text.
class SummaryBareVariable : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SummaryBareVariableOperation}; }
};
