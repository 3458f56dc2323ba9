#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class UnstorableTypeOperation : public Variant<UnstorableTypeOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_words", "Words")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QStringList words READ words WRITE setWords)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    QStringList words() const { return m_words; }
    void setWords(const QStringList &words) { m_words = words; }

private:
    QStringList m_words;
};

/// A property of a type that no record holds.
class UnstorableType : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new UnstorableTypeOperation}; }
};
