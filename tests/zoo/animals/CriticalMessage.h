#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

#include <QMessageLogger>

/// The operation of the plug-in below.
class CriticalMessageOperation : public Variant<CriticalMessageOperation>
{
public:
    void doOperation() const override
    {
        if (scope && !resultVar().isEmpty() && scope->typeOf(resultVar()) != VarType::String)
            QMessageLogger().critical("[Sound] no such string variable");
        else
            Variant::doOperation();
    }
};

/// It takes an unfit variable for a disaster.
class CriticalMessage : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CriticalMessageOperation}; }
};
