#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

#include <QMessageLogger>

/// The operation of the plug-in below.
class UntaggedWarningOperation : public Variant<UntaggedWarningOperation>
{
public:
    void doOperation() const override
    {
        if (scope && !resultVar().isEmpty() && scope->typeOf(resultVar()) != VarType::String)
            QMessageLogger().warning("no such string variable");
        else
            Variant::doOperation();
    }
};

/// Nobody can tell whom its warning comes from.
class UntaggedWarning : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new UntaggedWarningOperation}; }
};
