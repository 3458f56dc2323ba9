#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

#include <QMessageLogger>

/// The operation of the plug-in below.
class TwoLineWarningOperation : public Variant<TwoLineWarningOperation>
{
public:
    void doOperation() const override
    {
        if (scope && !resultVar().isEmpty() && scope->typeOf(resultVar()) != VarType::String)
            QMessageLogger().warning("[Sound] no such\nstring variable");
        else
            Variant::doOperation();
    }
};

/// Its warning is two lines.
class TwoLineWarning : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new TwoLineWarningOperation}; }
};
