#pragma once

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QObject>

/// A plug-in that requires a capability no host has.
class DemandingPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {}; }
    QString pluginId() const override { return {}; }
    QString name() const override { return {}; }
    QString version() const override { return {}; }
    int apiVersion() const override { return 2; }
    PluginManifest manifest() const override { return {}; }
    QStringList requiredCapabilities() const override { return {QStringLiteral("hasTeleport")}; }
};
