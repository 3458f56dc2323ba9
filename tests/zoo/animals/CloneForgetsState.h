#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class CloneForgetsStateOperation : public Variant<CloneForgetsStateOperation>
{
public:
    Operation *clone(QObject *parent) const override
    {
        auto *copy = static_cast<CloneForgetsStateOperation *>(Variant::clone(parent));
        copy->baseState = 0;
        return copy;
    }
};

/// A clone lacks what the host keeps with each step.
class CloneForgetsState : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CloneForgetsStateOperation}; }
};
