#pragma once

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QObject>

/// A plug-in built for a later version of the interface.
class NewerPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {}; }
    QString pluginId() const override { return {}; }
    QString name() const override { return {}; }
    QString version() const override { return {}; }
    int apiVersion() const override { return 3; }
    PluginManifest manifest() const override { return {}; }
    QStringList requiredCapabilities() const override { return {}; }
};
