#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class WritesOnNulOperation : public Variant<WritesOnNulOperation>
{
public:
    void doOperation() const override
    {
        Variant::doOperation();
        if (scope && !resultVar().isEmpty() && text().contains(QChar(0)))
            scope->set(QStringLiteral("other"), text());
    }
};

/// A text with a NUL makes it write another variable.
class WritesOnNul : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new WritesOnNulOperation}; }
};
