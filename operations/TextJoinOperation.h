#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Renders the elements of a list variable as text and joins them with a separator between them.
class TextJoinOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_listVar", "用于拼接的列表")
    Q_CLASSINFO("editor_listVar", "VARNAME:LIST")
    Q_CLASSINFO("varname_type_listVar", "list")
    Q_CLASSINFO("prop_separator", "分隔符")
    Q_CLASSINFO("editor_separator", "VARREF")
    Q_CLASSINFO("varref_kind_separator", "string")
    Q_CLASSINFO("prop_resultVar", "新文本保存到字符串变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString listVar READ listVar WRITE setListVar)
    Q_PROPERTY(QString separator READ separator WRITE setSeparator)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextJoinOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// The list variable to read, by its bare name; never an operand.
    QString listVar() const { return m_listVar; }
    void setListVar(const QString &name) { m_listVar = name; }

    /// Operand: the text to put between two elements.
    QString separator() const { return m_separator; }
    void setSeparator(const QString &text) { m_separator = text; }

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

    QString m_listVar;
    QString m_separator;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextJoinOperation::m_listVar, &TextJoinOperation::m_separator,
                        &TextJoinOperation::m_resultVar);
};
