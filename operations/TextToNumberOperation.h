#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Reads a text as a decimal number in the C locale and stores it in the declared type of the
/// result variable.
class TextToNumberOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_type_sourceText", "int,double,string")
    Q_CLASSINFO("prop_resultVar", "新数字保存到数值变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:SCALAR")
    Q_CLASSINFO("varname_type_resultVar", "scalar")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextToNumberOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to read.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// The numeric variable that receives the number.
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
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextToNumberOperation::m_sourceText, &TextToNumberOperation::m_resultVar);
};
