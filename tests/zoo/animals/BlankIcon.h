#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class BlankIconOperation : public Variant<BlankIconOperation>
{
public:
    QString icon() const override { return QStringLiteral(":/zoo/blank.svg"); }
};

/// The icon of its operation shows nothing.
class BlankIcon : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new BlankIconOperation}; }
};
