#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class MissingIconOperation : public Variant<MissingIconOperation>
{
public:
    QString icon() const override { return QStringLiteral(":/zoo/missing.svg"); }
};

/// Its operation names an icon that is not there.
class MissingIcon : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new MissingIconOperation}; }
};
