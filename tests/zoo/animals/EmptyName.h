#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class EmptyNameOperation : public Variant<EmptyNameOperation>
{
public:
    QString typeName() const override { return {}; }
    QString toString() const override { return QStringLiteral("Nameless"); }
};

/// Its operation has no name.
class EmptyName : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new EmptyNameOperation}; }
};
