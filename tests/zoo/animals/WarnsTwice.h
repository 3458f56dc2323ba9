#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

#include <QMessageLogger>

/// The operation of the plug-in below.
class WarnsTwiceOperation : public Variant<WarnsTwiceOperation>
{
public:
    void doOperation() const override
    {
        if (scope && !resultVar().isEmpty() && scope->typeOf(resultVar()) != VarType::String)
            QMessageLogger().warning("[Sound] not written");
        Variant::doOperation();
    }
};

/// It complains of an unfit result variable in two lines.
class WarnsTwice : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new WarnsTwiceOperation}; }
};
