#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class WritesTwoOperation : public Variant<WritesTwoOperation>
{
public:
    void doOperation() const override
    {
        Variant::doOperation();
        if (scope && !resultVar().isEmpty() && text().startsWith(QLatin1Char('$')))
            scope->set(text().mid(1), scope->get(text().mid(1)));
    }
};

/// It also writes the variable that its text comes from.
class WritesTwo : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new WritesTwoOperation}; }
};
