#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <QLocale>

/// The operation of the plug-in below.
class RecordByLocaleOperation : public Variant<RecordByLocaleOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        Operation::saveOperation(stream);
        stream << text() << QLocale().toString(mode()) << suffix() << resultVar();
    }
    void loadOperation(QDataStream &stream) override
    {
        Operation::loadOperation(stream);
        QString newText;
        QString newMode;
        QString newSuffix;
        QString newResult;
        stream >> newText >> newMode >> newSuffix >> newResult;
        setText(newText);
        setMode(QLocale().toInt(newMode));
        setSuffix(newSuffix);
        setResultVar(newResult);
    }
};

/// Its record holds a number as users write it.
class RecordByLocale : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new RecordByLocaleOperation}; }
};
