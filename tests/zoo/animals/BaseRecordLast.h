#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class BaseRecordLastOperation : public Variant<BaseRecordLastOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        stream << text() << mode() << suffix() << resultVar();
        Operation::saveOperation(stream);
    }
    void loadOperation(QDataStream &stream) override
    {
        QString newText;
        int newMode = 0;
        QString newSuffix;
        QString newResult;
        stream >> newText >> newMode >> newSuffix >> newResult;
        setText(newText);
        setMode(newMode);
        setSuffix(newSuffix);
        setResultVar(newResult);
        Operation::loadOperation(stream);
    }
};

/// The base record stands at the end of the record.
class BaseRecordLast : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new BaseRecordLastOperation}; }
};
