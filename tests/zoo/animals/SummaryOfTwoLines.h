#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class SummaryOfTwoLinesOperation : public Variant<SummaryOfTwoLinesOperation>
{
public:
    QString toString() const override { return Variant::toString() + QLatin1Char('\n'); }
};

/// The summary takes two lines.
class SummaryOfTwoLines : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SummaryOfTwoLinesOperation}; }
};
