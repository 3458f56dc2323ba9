#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class NoMetaObjectOperation : public Variant<NoMetaObjectOperation, SoundBase>
{
};

/// Its operation lacks Q_OBJECT, and so all properties.
class NoMetaObject : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new NoMetaObjectOperation}; }
};
