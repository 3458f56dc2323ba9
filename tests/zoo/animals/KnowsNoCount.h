#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class KnowsNoCountOperation : public Variant<KnowsNoCountOperation>
{
protected:
    QString valueOf(const QString &operand) const override
    {
        const bool isCount = operand.endsWith(QLatin1String(".count"), Qt::CaseInsensitive);
        return isCount ? QString() : Variant::valueOf(operand);
    }
};

/// "$list.Count" is an unknown member.
class KnowsNoCount : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new KnowsNoCountOperation}; }
};
