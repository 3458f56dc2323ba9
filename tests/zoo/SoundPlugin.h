#pragma once

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QObject>

/// A well-behaved plug-in with one operation. The animals of the zoo are its subclasses, each with
/// Qt's metadata of its own, and with one fault.
class SoundPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)

public:
    SoundPlugin();
    ~SoundPlugin() override;

    QList<Operation *> createPrototypes() override;
    QString pluginId() const override;
    QString name() const override;
    QString version() const override;
    int apiVersion() const override;
    PluginManifest manifest() const override;
    QStringList requiredCapabilities() const override;
};
