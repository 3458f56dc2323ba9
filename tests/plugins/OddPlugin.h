#pragma once

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QDataStream>
#include <QObject>
#include <QStringList>

#include <utility>

/// An operation at the edge of what the interface allows, and beyond: a property of a type that
/// JSON tasks do not have, a default that is not empty, state besides the properties, and by its
/// type a record that it does not read as it was written.
class OddOperation : public Operation
{
    Q_OBJECT
    Q_PROPERTY(QStringList tags READ tags WRITE setTags)
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit OddOperation(QString type, QObject *parent = nullptr)
        : Operation(parent)
        , m_type(std::move(type))
    {
    }

    QStringList tags() const { return m_tags; }
    void setTags(const QStringList &tags) { m_tags = tags; }
    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

    QString root() const override { return QStringLiteral("odd"); }
    QString typeId() const override { return m_type; }
    QString typeName() const override { return m_type; }
    QString icon() const override { return {}; }
    QString toString() const override { return m_type; }
    QString description() const override { return m_type; }

    void doOperation() const override {}
    void saveOperation(QDataStream &stream) const override
    {
        if (m_type == QLatin1String("odd.silent"))
            return;
        Operation::saveOperation(stream);
        stream << m_tags << m_text << m_hidden;
    }
    void loadOperation(QDataStream &stream) override
    {
        if (m_type == QLatin1String("odd.silent"))
            return;
        Operation::loadOperation(stream);
        stream >> m_tags >> m_text;
        if (m_type == QLatin1String("odd.frugal"))
            return;
        stream >> m_hidden;
        quint8 more = 0;
        if (m_type == QLatin1String("odd.greedy"))
            stream >> more;
    }
    Operation *clone(QObject *parent) const override
    {
        auto *copy = new OddOperation(m_type, parent);
        copy->m_tags = m_tags;
        copy->m_text = m_text;
        copy->m_hidden = m_hidden;
        copy->baseState = baseState;
        return copy;
    }

private:
    QString m_type;
    QStringList m_tags;
    QString m_text = QStringLiteral("x");
    quint32 m_hidden = 0;
};

/// A plug-in of such operations.
class OddPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override
    {
        return {new OddOperation(QStringLiteral("odd.plain")),
                new OddOperation(QStringLiteral("odd.frugal")),
                new OddOperation(QStringLiteral("odd.greedy")),
                new OddOperation(QStringLiteral("odd.silent"))};
    }
    QString pluginId() const override { return QStringLiteral("org.example.Odd"); }
    QString name() const override { return QStringLiteral("odd"); }
    QString version() const override { return QStringLiteral("1.0.0"); }
    int apiVersion() const override { return 2; }
    PluginManifest manifest() const override
    {
        PluginManifest manifest;
        manifest.id = pluginId();
        manifest.name = name();
        manifest.version = version();
        manifest.apiVersion = 2;
        manifest.typeIdPrefix = QStringLiteral("odd.");
        manifest.rootOrder = {{QStringLiteral("odd"), 100}};
        return manifest;
    }
    QStringList requiredCapabilities() const override { return {}; }
};
