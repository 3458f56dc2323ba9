#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class BrokenIconOperation : public Variant<BrokenIconOperation>
{
public:
    QString icon() const override { return QStringLiteral(":/zoo/broken.svg"); }
};

/// The icon of its operation is no picture.
class BrokenIcon : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new BrokenIconOperation}; }
};
