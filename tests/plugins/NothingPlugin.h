#pragma once

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QObject>

/// An operation that does nothing.
class NothingOperation : public Operation
{
    Q_OBJECT

public:
    using Operation::Operation;

    QString root() const override { return QStringLiteral("nothing"); }
    QString typeId() const override { return QStringLiteral("nothing.step"); }
    QString typeName() const override { return typeId(); }
    QString icon() const override { return {}; }
    QString toString() const override { return typeId(); }
    QString description() const override { return typeId(); }

    void doOperation() const override {}
    Operation *clone(QObject *parent) const override
    {
        auto *copy = new NothingOperation(parent);
        copy->baseState = baseState;
        return copy;
    }
};

/// A plug-in whose list of prototypes is what the environment variable PROTOTYPES says: "one", or
/// wrong: "null" for a null pointer behind an object, "twice" for one object two times, and none
/// otherwise.
class NothingPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override
    {
        const QByteArray kind = qgetenv("PROTOTYPES");
        auto *const operation = kind.isEmpty() ? nullptr : new NothingOperation;
        if (kind == "one")
            return {operation};
        if (kind == "null")
            return {operation, nullptr};
        return operation ? QList<Operation *>{operation, operation} : QList<Operation *>{};
    }
    QString pluginId() const override { return QStringLiteral("org.example.Nothing"); }
    QString name() const override { return QStringLiteral("nothing"); }
    QString version() const override { return QStringLiteral("1.0.0"); }
    int apiVersion() const override { return 2; }
    PluginManifest manifest() const override { return {}; }
    QStringList requiredCapabilities() const override { return {}; }
};
