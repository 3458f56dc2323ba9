#pragma once

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QDataStream>
#include <QObject>

/// One plug-in in several versions, as its author might build them one after the other:
///
/// 1. the first
/// 2. with another summary and one more property, at the end of the record
/// 3. with a property less and two fields of the record the other way round
/// 4. without the operation
/// 5. like the first but for its summary
class ReloadOperation : public Operation
{
    Q_OBJECT
    Q_CLASSINFO("prop_text", "text")
    Q_CLASSINFO("editor_text", "VARREF")
    Q_PROPERTY(QString text MEMBER m_text)
    Q_PROPERTY(QString other MEMBER m_other)
#if RELOAD_VERSION != 3
    Q_PROPERTY(int number MEMBER m_number)
#endif
#if RELOAD_VERSION == 2
    Q_PROPERTY(int extra MEMBER m_extra)
#endif

public:
    QString root() const override
    {
        return QStringLiteral("Reload");
    }
    QString typeId() const override
    {
#if RELOAD_VERSION == 4
        return QStringLiteral("reload.different");
#else
        return QStringLiteral("reload.step");
#endif
    }
    QString typeName() const override
    {
        return QStringLiteral("Reload");
    }
    QString icon() const override
    {
        return {};
    }
    QString toString() const override
    {
        return QStringLiteral("version " QT_STRINGIFY(RELOAD_VERSION) ": %1 %2 %3 hidden %4")
            .arg(m_text, m_other)
            .arg(m_number)
            .arg(m_hidden);
    }
    QString description() const override
    {
        return toString();
    }
    void doOperation() const override {}
    void saveOperation(QDataStream &stream) const override
    {
        Operation::saveOperation(stream);
#if RELOAD_VERSION == 3
        stream << m_other << m_text << m_number << m_hidden;
#else
        stream << m_text << m_other << m_number << m_hidden;
#endif
#if RELOAD_VERSION == 2
        stream << m_extra;
#endif
    }
    void loadOperation(QDataStream &stream) override
    {
        Operation::loadOperation(stream);
#if RELOAD_VERSION == 3
        stream >> m_other >> m_text >> m_number >> m_hidden;
#else
        stream >> m_text >> m_other >> m_number >> m_hidden;
#endif
#if RELOAD_VERSION == 2
        stream >> m_extra;
#endif
    }
    Operation *clone(QObject *parent) const override
    {
        auto *const copy = new ReloadOperation;
        copy->setParent(parent);
        copy->m_text = m_text;
        copy->m_other = m_other;
        copy->m_number = m_number;
        copy->m_hidden = m_hidden;
        copy->m_extra = m_extra;
        copy->baseState = baseState;
        return copy;
    }

private:
    QString m_text;
    QString m_other;
    int m_number = 0;
    int m_hidden = RELOAD_VERSION; ///< no property
    int m_extra = 7;
};

class ReloadPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ReloadOperation}; }
    QString pluginId() const override { return QStringLiteral("org.example.Reload"); }
    QString name() const override { return QStringLiteral("Reload"); }
    QString version() const override { return QStringLiteral("1.0.0"); }
    int apiVersion() const override { return 2; }
    PluginManifest manifest() const override
    {
        PluginManifest manifest;
        manifest.id = pluginId();
        manifest.name = name();
        manifest.version = version();
        manifest.apiVersion = 2;
        manifest.typeIdPrefix = QStringLiteral("reload.");
        manifest.rootOrder = {{QStringLiteral("Reload"), 500}};
        return manifest;
    }
    QStringList requiredCapabilities() const override { return {}; }
};
