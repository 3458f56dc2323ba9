#pragma once

#include <QObject>
#include <QtPlugin>

/// A Qt plug-in of some other kind: its root object is not an operation plug-in.
class StrangerPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Stranger/1.0")
};
