#pragma once

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QMetaProperty>
#include <QObject>

/// Gives `copy` the properties of `original`, of the same class.
template <typename Step>
Operation *withPropertiesOf(const Step &original, Step *copy)
{
    const QMetaObject &meta = Step::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        meta.property(i).write(copy, meta.property(i).read(&original));
    return copy;
}

/// A step with editors and restrictions that the text operations do not have. It does nothing.
class OperandsOperation : public Operation
{
    Q_OBJECT
    Q_CLASSINFO("prop_text", "text")
    Q_CLASSINFO("editor_text", "VARREF")
    Q_CLASSINFO("varref_kind_text", "string")
    Q_CLASSINFO("prop_exact", "exact")
    Q_CLASSINFO("editor_exact", "VARREF")
    Q_CLASSINFO("varref_type_exact", "double,string")
    Q_CLASSINFO("prop_list", "list")
    Q_CLASSINFO("editor_list", "VARREF")
    Q_CLASSINFO("varref_kind_list", "list")
    Q_CLASSINFO("prop_foreign", "foreign")
    Q_CLASSINFO("editor_foreign", "VARREF")
    Q_CLASSINFO("varref_type_foreign", "matrix")
    Q_CLASSINFO("prop_free", "free")
    Q_CLASSINFO("editor_free", "VARREF")
    Q_CLASSINFO("prop_size", "size")
    Q_CLASSINFO("editor_size", "NUMVAR:SCALAR")
    Q_CLASSINFO("prop_mode", "mode")
    Q_CLASSINFO("editor_mode", "COMBO")
    Q_CLASSINFO("choices_mode", "one|two|three")
    Q_CLASSINFO("prop_extra", "extra")
    Q_CLASSINFO("editor_extra", "VARREF")
    Q_CLASSINFO("varref_kind_extra", "string")
    Q_CLASSINFO("show_when_extra", "mode=1|2")
    Q_CLASSINFO("prop_flag", "flag")
    Q_CLASSINFO("show_when_flag", "mode=2")
    Q_CLASSINFO("prop_ratio", "ratio")
    Q_CLASSINFO("prop_lost", "lost")
    Q_CLASSINFO("editor_lost", "VARREF")
    Q_CLASSINFO("show_when_lost", "gone=1")
    Q_PROPERTY(QString text MEMBER m_text)
    Q_PROPERTY(QString exact MEMBER m_exact)
    Q_PROPERTY(QString list MEMBER m_list)
    Q_PROPERTY(QString foreign MEMBER m_foreign)
    Q_PROPERTY(QString free MEMBER m_free)
    Q_PROPERTY(QString size MEMBER m_size)
    Q_PROPERTY(int mode MEMBER m_mode)
    Q_PROPERTY(QString extra MEMBER m_extra)
    Q_PROPERTY(bool flag MEMBER m_flag)
    Q_PROPERTY(double ratio MEMBER m_ratio)
    Q_PROPERTY(QString lost MEMBER m_lost)

public:
    QString root() const override { return QStringLiteral("Editors"); }
    QString typeId() const override { return QStringLiteral("editors.operands"); }
    QString typeName() const override { return QStringLiteral("Operands"); }
    QString icon() const override { return {}; }
    QString toString() const override { return typeName(); }
    QString description() const override { return {}; }
    void doOperation() const override {}
    Operation *clone(QObject *parent) const override
    {
        auto *const copy = new OperandsOperation;
        copy->setParent(parent);
        return withPropertiesOf(*this, copy);
    }

private:
    QString m_text;
    QString m_exact;
    QString m_list;
    QString m_foreign;
    QString m_free;
    QString m_size = QStringLiteral("1");
    int m_mode = 0;
    QString m_extra = QStringLiteral("default");
    bool m_flag = false;
    double m_ratio = 0.5;
    QString m_lost;
};

/// A step that reads a variable by its bare name, and writes one whose type it does not restrict.
class NamesOperation : public Operation
{
    Q_OBJECT
    Q_CLASSINFO("prop_source", "source")
    Q_CLASSINFO("editor_source", "VARNAME:SCALAR")
    Q_CLASSINFO("varname_type_source", "scalar")
    Q_CLASSINFO("prop_resultVar", "resultVar")
    Q_CLASSINFO("editor_resultVar", "VARNAME:ANY")
    Q_PROPERTY(QString source MEMBER m_source)
    Q_PROPERTY(QString resultVar MEMBER m_resultVar)

public:
    QString root() const override { return QStringLiteral("Editors"); }
    QString typeId() const override { return QStringLiteral("editors.names"); }
    QString typeName() const override { return QStringLiteral("Names"); }
    QString icon() const override { return {}; }
    QString toString() const override { return typeName(); }
    QString description() const override { return {}; }
    void doOperation() const override {}
    Operation *clone(QObject *parent) const override
    {
        auto *const copy = new NamesOperation;
        copy->setParent(parent);
        return withPropertiesOf(*this, copy);
    }

private:
    QString m_source;
    QString m_resultVar;
};

class EditorsPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override
    {
        return {new OperandsOperation, new NamesOperation};
    }
    QString pluginId() const override { return QStringLiteral("org.example.Editors"); }
    QString name() const override { return QStringLiteral("Editors"); }
    QString version() const override { return QStringLiteral("1.0.0"); }
    int apiVersion() const override { return 2; }
    PluginManifest manifest() const override { return {}; }
    QStringList requiredCapabilities() const override { return {}; }
};
