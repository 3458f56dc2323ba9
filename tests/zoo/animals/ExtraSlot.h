#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class ExtraSlotOperation : public Variant<ExtraSlotOperation>
{
    Q_OBJECT

public Q_SLOTS:
    void rest() {}
};

/// Its operation has a slot.
class ExtraSlot : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ExtraSlotOperation}; }
};
