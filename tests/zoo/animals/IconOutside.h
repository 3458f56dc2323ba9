#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class IconOutsideOperation : public Variant<IconOutsideOperation>
{
public:
    QString icon() const override { return QStringLiteral("/zoo/sound.svg"); }
};

/// Its operation names an icon somewhere on the disk.
class IconOutside : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new IconOutsideOperation}; }
};
