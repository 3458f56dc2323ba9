#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class RecordByVersionOperation : public Variant<RecordByVersionOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        Operation::saveOperation(stream);
        stream << text() << mode() << resultVar();
        if (stream.version() >= QDataStream::Qt_5_6)
            stream << suffix();
    }
    void loadOperation(QDataStream &stream) override
    {
        Operation::loadOperation(stream);
        QString newText;
        int newMode = 0;
        QString newSuffix;
        QString newResult;
        stream >> newText >> newMode >> newResult;
        if (stream.version() >= QDataStream::Qt_5_6)
            stream >> newSuffix;
        setText(newText);
        setMode(newMode);
        setSuffix(newSuffix);
        setResultVar(newResult);
    }
};

/// A field is in the records of later stream versions only.
class RecordByVersion : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new RecordByVersionOperation}; }
};
