#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <QMessageLogger>

/// The operation of the plug-in below.
class LogsWithoutScopeOperation : public Variant<LogsWithoutScopeOperation>
{
public:
    void doOperation() const override
    {
        if (!scope)
            QMessageLogger().warning("[Sound] no variables");
        Variant::doOperation();
    }
};

/// Without a scope it complains.
class LogsWithoutScope : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new LogsWithoutScopeOperation}; }
};
