#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <stdexcept>

/// The operation of the plug-in below.
class ThrowsOnTruncationOperation : public Variant<ThrowsOnTruncationOperation>
{
public:
    void loadOperation(QDataStream &stream) override
    {
        Variant::loadOperation(stream);
        if (stream.status() == QDataStream::ReadPastEnd)
            throw std::runtime_error("record too short");
    }
};

/// A record that ends too early makes it throw.
class ThrowsOnTruncation : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ThrowsOnTruncationOperation}; }
};
