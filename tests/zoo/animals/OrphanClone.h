#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class OrphanCloneOperation : public Variant<OrphanCloneOperation>
{
public:
    Operation *clone(QObject *) const override { return Variant::clone(nullptr); }
};

/// A clone does not belong to the parent it is made for.
class OrphanClone : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new OrphanCloneOperation}; }
};
