#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// What a plug-in tells the host about itself and its place in the catalogue. A plain value.
struct PluginManifest
{
    QString id;                       ///< the same text as `IOperationPlugin::pluginId`
    QString name;                     ///< display name, the same text as `IOperationPlugin::name`
    QString version;                  ///< version of the plug-in
    int apiVersion = 0;               ///< version of this interface the plug-in is built for
    QString typeIdPrefix;             ///< common prefix of all type identifiers it contributes
    QStringList requiredCapabilities; ///< host capabilities without which it is of no use
    QStringList optionalCapabilities; ///< host capabilities it makes use of when they are there
    QMap<QString, int> rootOrder;     ///< weight of each catalogue root, by the untranslated text
    QMap<QString, int> typeOrder;     ///< weight of each type identifier within its root
};
