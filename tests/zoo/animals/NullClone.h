#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class NullCloneOperation : public Variant<NullCloneOperation>
{
public:
    Operation *clone(QObject *) const override { return nullptr; }
};

/// There are no clones.
class NullClone : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new NullCloneOperation}; }
};
