#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <memory>

/// The operation of the plug-in below.
class TrustsLengthOperation : public Variant<TrustsLengthOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        Variant::saveOperation(stream);
        stream << quint32(0);
    }
    void loadOperation(QDataStream &stream) override
    {
        Variant::loadOperation(stream);
        quint32 size = 0;
        stream >> size;
        const std::unique_ptr<char[]> notes(new char[size]);
        if (stream.readRawData(notes.get(), static_cast<int>(size)) != static_cast<int>(size))
            stream.setStatus(QDataStream::ReadPastEnd);
    }
};

/// It takes as much memory as a record asks for.
class TrustsLength : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new TrustsLengthOperation}; }
};
