#pragma once

#include <QObject>
#include <QtPlugin>

/// A plug-in of another kind: its root object has nothing of an operation plug-in.
class Stranger : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Stranger/1.0")
};
