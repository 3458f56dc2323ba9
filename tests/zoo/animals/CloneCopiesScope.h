#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class CloneCopiesScopeOperation : public Variant<CloneCopiesScopeOperation>
{
public:
    Operation *clone(QObject *parent) const override
    {
        Operation *const copy = Variant::clone(parent);
        copy->setVariableScope(scope);
        return copy;
    }
};

/// A clone runs on the variables of the original.
class CloneCopiesScope : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CloneCopiesScopeOperation}; }
};
