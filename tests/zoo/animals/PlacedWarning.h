#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

#include <QMessageLogger>

/// The operation of the plug-in below.
class PlacedWarningOperation : public Variant<PlacedWarningOperation>
{
public:
    void doOperation() const override
    {
        if (scope && !resultVar().isEmpty() && scope->typeOf(resultVar()) != VarType::String)
            QMessageLogger("src/zoo.cpp", 7, "run").warning("[Sound] no such string variable");
        else
            Variant::doOperation();
    }
};

/// Its warning names a place in its source.
class PlacedWarning : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new PlacedWarningOperation}; }
};
