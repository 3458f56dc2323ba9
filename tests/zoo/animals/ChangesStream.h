#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class ChangesStreamOperation : public Variant<ChangesStreamOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        stream.setVersion(QDataStream::Qt_5_15);
        Variant::saveOperation(stream);
    }
};

/// It sets the version of the stream, and leaves it so.
class ChangesStream : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ChangesStreamOperation}; }
};
