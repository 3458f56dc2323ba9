#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class ChangingDefaultOperation : public Variant<ChangingDefaultOperation>
{
public:
    ChangingDefaultOperation()
    {
        static int count = 0;
        setText(QString::number(++count));
    }
};

/// Each fresh object starts with another text.
class ChangingDefault : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ChangingDefaultOperation}; }
};
