#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class SummaryWithoutNameOperation : public Variant<SummaryWithoutNameOperation>
{
public:
    QString toString() const override { return QStringLiteral("Stores ") + text(); }
};

/// The summary begins with something else than the name.
class SummaryWithoutName : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SummaryWithoutNameOperation}; }
};
