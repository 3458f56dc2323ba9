#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class ExtraEnumeratorOperation : public Variant<ExtraEnumeratorOperation>
{
    Q_OBJECT

public:
    enum Mood { Calm, Wild };
    Q_ENUM(Mood)
};

/// Its operation has an enumerator.
class ExtraEnumerator : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ExtraEnumeratorOperation}; }
};
