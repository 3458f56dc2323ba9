#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class NoBaseRecordOperation : public Variant<NoBaseRecordOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        stream << text() << mode() << suffix() << resultVar();
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
    }
};

/// The record lacks what the host keeps with each step.
class NoBaseRecord : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new NoBaseRecordOperation}; }
};
