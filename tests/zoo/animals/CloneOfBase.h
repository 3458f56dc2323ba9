#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class CloneOfBaseOperation : public Variant<CloneOfBaseOperation>
{
public:
    Operation *clone(QObject *parent) const override { return SoundOperation::clone(parent); }
};

/// A clone is only of the class the operation derives from.
class CloneOfBase : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CloneOfBaseOperation}; }
};
