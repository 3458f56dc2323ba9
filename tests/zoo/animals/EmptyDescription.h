#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class EmptyDescriptionOperation : public Variant<EmptyDescriptionOperation>
{
public:
    QString description() const override { return {}; }
};

/// Its operation has no description.
class EmptyDescription : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new EmptyDescriptionOperation}; }
};
