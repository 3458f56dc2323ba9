#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class CloneForgetsOperation : public Variant<CloneForgetsOperation>
{
public:
    Operation *clone(QObject *parent) const override
    {
        Operation *const copy = Variant::clone(parent);
        copy->setProperty("suffix", QString());
        return copy;
    }
};

/// A clone lacks a property.
class CloneForgets : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CloneForgetsOperation}; }
};
