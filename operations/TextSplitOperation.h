#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Cuts a text into pieces of a fixed width, or at each occurrence of a separator, and stores the
/// pieces as a list.
class TextSplitOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_splitMode", "分隔符类型")
    Q_CLASSINFO("editor_splitMode", "COMBO")
    Q_CLASSINFO("choices_splitMode", "固定宽度|自定义字符")
    Q_CLASSINFO("prop_width", "宽度")
    Q_CLASSINFO("editor_width", "NUMVAR:INT")
    Q_CLASSINFO("show_when_width", "splitMode=0")
    Q_CLASSINFO("prop_separator", "分隔符")
    Q_CLASSINFO("editor_separator", "VARREF")
    Q_CLASSINFO("varref_kind_separator", "string")
    Q_CLASSINFO("show_when_separator", "splitMode=1")
    Q_CLASSINFO("prop_resultVar", "新文本保存到列表变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:LIST")
    Q_CLASSINFO("varname_type_resultVar", "list")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(int splitMode READ splitMode WRITE setSplitMode)
    Q_PROPERTY(QString width READ width WRITE setWidth)
    Q_PROPERTY(QString separator READ separator WRITE setSeparator)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextSplitOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to split.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// 0 to split by width; any other value splits at the separator.
    int splitMode() const { return m_splitMode; }
    void setSplitMode(int mode) { m_splitMode = mode; }

    /// Numeric operand: the UTF-16 code units of a piece; 1 when it is below 1 or not a number.
    QString width() const { return m_width; }
    void setWidth(const QString &operand) { m_width = operand; }

    /// Operand: the text to split at; an empty one leaves the text whole.
    QString separator() const { return m_separator; }
    void setSeparator(const QString &text) { m_separator = text; }

    /// The list variable that receives the pieces.
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
    QString splitModeText() const;

    QString m_sourceText;
    int m_splitMode = 0;
    QString m_width;
    QString m_separator;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextSplitOperation::m_sourceText, &TextSplitOperation::m_splitMode,
                        &TextSplitOperation::m_width, &TextSplitOperation::m_separator,
                        &TextSplitOperation::m_resultVar);
};
