#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class OwnByteOrderOperation : public Variant<OwnByteOrderOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        const QDataStream::ByteOrder order = stream.byteOrder();
        Operation::saveOperation(stream);
        stream.setByteOrder(QDataStream::BigEndian);
        stream << text() << mode() << suffix() << resultVar();
        stream.setByteOrder(order);
    }
    void loadOperation(QDataStream &stream) override
    {
        const QDataStream::ByteOrder order = stream.byteOrder();
        Operation::loadOperation(stream);
        QString newText;
        int newMode = 0;
        QString newSuffix;
        QString newResult;
        stream.setByteOrder(QDataStream::BigEndian);
        stream >> newText >> newMode >> newSuffix >> newResult;
        stream.setByteOrder(order);
        setText(newText);
        setMode(newMode);
        setSuffix(newSuffix);
        setResultVar(newResult);
    }
};

/// Records are big endian whatever the stream is.
class OwnByteOrder : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new OwnByteOrderOperation}; }
};
