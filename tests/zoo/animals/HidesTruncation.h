#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class HidesTruncationOperation : public Variant<HidesTruncationOperation>
{
public:
    void loadOperation(QDataStream &stream) override
    {
        Variant::loadOperation(stream);
        stream.resetStatus();
    }
};

/// It does not let the host know that a record ended too early.
class HidesTruncation : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new HidesTruncationOperation}; }
};
