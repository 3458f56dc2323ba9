#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class RecordForgetsOperation : public Variant<RecordForgetsOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        Operation::saveOperation(stream);
        stream << text() << mode() << resultVar();
    }
    void loadOperation(QDataStream &stream) override
    {
        Operation::loadOperation(stream);
        QString newText;
        int newMode = 0;
        QString newResult;
        stream >> newText >> newMode >> newResult;
        setText(newText);
        setMode(newMode);
        setResultVar(newResult);
    }
};

/// The record lacks a property.
class RecordForgets : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new RecordForgetsOperation}; }
};
