#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class RecordLeavesBytesOperation : public Variant<RecordLeavesBytesOperation>
{
public:
    void saveOperation(QDataStream &stream) const override
    {
        Variant::saveOperation(stream);
        stream << quint32(0);
    }
};

/// Reading stops before the end of the record.
class RecordLeavesBytes : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new RecordLeavesBytesOperation}; }
};
