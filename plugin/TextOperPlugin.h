#pragma once

#include "IOperationPlugin.h"

#include <QObject>

/// The root object of the library: tells the host who it is and hands out the text operations.
/// Has no state; every query gives the same answer.
class TextOperPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    TextOperPlugin();
    ~TextOperPlugin() override;

    QList<Operation *> createPrototypes() override;
    QString pluginId() const override;
    QString name() const override;
    QString version() const override;
    int apiVersion() const override;
    PluginManifest manifest() const override;
    QStringList requiredCapabilities() const override;
};
