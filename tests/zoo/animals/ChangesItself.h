#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class ChangesItselfOperation : public Variant<ChangesItselfOperation>
{
public:
    void doOperation() const override
    {
        Variant::doOperation();
        if (scope)
            const_cast<ChangesItselfOperation *>(this)->setSuffix(QStringLiteral("done"));
    }
};

/// A run changes a property.
class ChangesItself : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ChangesItselfOperation}; }
};
