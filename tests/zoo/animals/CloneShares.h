#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <memory>

/// The operation of the plug-in below.
class CloneSharesOperation : public Variant<CloneSharesOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_text", "Text")
    Q_CLASSINFO("editor_text", "VARREF")
    Q_CLASSINFO("varref_kind_text", "string")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    QString text() const { return *m_text; }
    void setText(const QString &text) { *m_text = text; }

    Operation *clone(QObject *parent) const override
    {
        auto *copy = static_cast<CloneSharesOperation *>(Variant::clone(parent));
        copy->m_text = m_text;
        return copy;
    }

private:
    std::shared_ptr<QString> m_text = std::make_shared<QString>();
};

/// Clones share a property with their original.
class CloneShares : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CloneSharesOperation}; }
};
