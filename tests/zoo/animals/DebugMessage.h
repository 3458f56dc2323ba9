#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <QMessageLogger>

/// The operation of the plug-in below.
class DebugMessageOperation : public Variant<DebugMessageOperation>
{
public:
    QString toString() const override
    {
        QMessageLogger().debug("here");
        return Variant::toString();
    }
};

/// It has left a message for debugging in its summary.
class DebugMessage : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new DebugMessageOperation}; }
};
