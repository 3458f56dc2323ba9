#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class DefaultOutOfRangeOperation : public Variant<DefaultOutOfRangeOperation>
{
public:
    DefaultOutOfRangeOperation() { setMode(7); }
};

/// Its mode starts as none of the choices.
class DefaultOutOfRange : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new DefaultOutOfRangeOperation}; }
};
