#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Joins two texts: the added text directly after the source text.
class TextAppendOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_appendText", "要添加的文本")
    Q_CLASSINFO("editor_appendText", "VARREF")
    Q_CLASSINFO("varref_kind_appendText", "string")
    Q_CLASSINFO("prop_resultVar", "新文本保存到字符串变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(QString appendText READ appendText WRITE setAppendText)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextAppendOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to start with.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// Operand: the text to put after it.
    QString appendText() const { return m_appendText; }
    void setAppendText(const QString &text) { m_appendText = text; }

    /// The string variable that receives the joined text.
    QString resultVar() const { return m_resultVar; }
    void setResultVar(const QString &name) { m_resultVar = name; }

    QString root() const override;
    QString typeId() const override;
    QString typeName() const override;
    QString icon() const override;
    QString toString() const override;
    QString description() const override;

    void doOperation() const override { OperationFrame::run(*this); }
    void saveOperation(QDataStream &stream) const override { OperationFrame::save(*this, stream); }
    void loadOperation(QDataStream &stream) override { OperationFrame::load(*this, stream); }
    Operation *clone(QObject *parent) const override
    {
        return OperationFrame::clone(*this, parent);
    }

private:
    friend class OperationFrame;

    void run() const;

    QString m_sourceText;
    QString m_appendText;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextAppendOperation::m_sourceText, &TextAppendOperation::m_appendText,
                        &TextAppendOperation::m_resultVar);
};
