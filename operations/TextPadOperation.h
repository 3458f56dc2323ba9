#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Inserts a fill text into a text, once and never repeated. A total length is a ceiling: the fill
/// is cut so that the new text does not exceed it, and the source text is never shortened.
class TextPadOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_position", "填充位置")
    Q_CLASSINFO("editor_position", "COMBO")
    Q_CLASSINFO("choices_position", "左边|中间|右边")
    Q_CLASSINFO("prop_index", "索引值")
    Q_CLASSINFO("editor_index", "NUMVAR:INT")
    Q_CLASSINFO("show_when_index", "position=1")
    Q_CLASSINFO("prop_padText", "填充文本")
    Q_CLASSINFO("editor_padText", "VARREF")
    Q_CLASSINFO("varref_kind_padText", "string")
    Q_CLASSINFO("prop_totalLength", "新文本总长度")
    Q_CLASSINFO("editor_totalLength", "NUMVAR:INT")
    Q_CLASSINFO("prop_resultVar", "新文本保存到字符串变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(int position READ position WRITE setPosition)
    Q_PROPERTY(QString index READ index WRITE setIndex)
    Q_PROPERTY(QString padText READ padText WRITE setPadText)
    Q_PROPERTY(QString totalLength READ totalLength WRITE setTotalLength)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextPadOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to insert into.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// 0 to insert before the text, 1 at `index`, 2 after it; any other value acts as 0.
    int position() const { return m_position; }
    void setPosition(int mode) { m_position = mode; }

    /// Numeric operand: the unit before which to insert, counted from 0; 0 when it is not a number.
    QString index() const { return m_index; }
    void setIndex(const QString &operand) { m_index = operand; }

    /// Operand: the fill text.
    QString padText() const { return m_padText; }
    void setPadText(const QString &text) { m_padText = text; }

    /// Numeric operand: how many units the new text may have; no limit when it is below 1 or not a
    /// number.
    QString totalLength() const { return m_totalLength; }
    void setTotalLength(const QString &operand) { m_totalLength = operand; }

    /// The string variable that receives the new text.
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
    QString positionText() const;

    QString m_sourceText;
    int m_position = 0;
    QString m_index;
    QString m_padText;
    QString m_totalLength;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextPadOperation::m_sourceText, &TextPadOperation::m_position,
                        &TextPadOperation::m_index, &TextPadOperation::m_padText,
                        &TextPadOperation::m_totalLength, &TextPadOperation::m_resultVar);
};
