#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Takes a part of a text, from a position to the end or a number of UTF-16 code units. Both
/// numbers are clamped to the text, so the operation never fails on them.
class TextSubstringOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_startIndex", "起始位置（从 0 开始）")
    Q_CLASSINFO("editor_startIndex", "NUMVAR:INT")
    Q_CLASSINFO("prop_lengthMode", "长度")
    Q_CLASSINFO("editor_lengthMode", "COMBO")
    Q_CLASSINFO("choices_lengthMode", "到文本末尾|字符数")
    Q_CLASSINFO("prop_charCount", "字符数")
    Q_CLASSINFO("editor_charCount", "NUMVAR:INT")
    Q_CLASSINFO("show_when_charCount", "lengthMode=1")
    Q_CLASSINFO("prop_resultVar", "子文本保存到字符串变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(QString startIndex READ startIndex WRITE setStartIndex)
    Q_PROPERTY(int lengthMode READ lengthMode WRITE setLengthMode)
    Q_PROPERTY(QString charCount READ charCount WRITE setCharCount)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextSubstringOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to take from.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// Numeric operand: the first unit to take, counted from 0; 0 when it is not a number.
    QString startIndex() const { return m_startIndex; }
    void setStartIndex(const QString &operand) { m_startIndex = operand; }

    /// 1 to take `charCount` units; everything to the end for 0 and any other value.
    int lengthMode() const { return m_lengthMode; }
    void setLengthMode(int mode) { m_lengthMode = mode; }

    /// Numeric operand: how many units to take; none when it is not a number.
    QString charCount() const { return m_charCount; }
    void setCharCount(const QString &operand) { m_charCount = operand; }

    /// The string variable that receives the part.
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
    QString m_startIndex;
    int m_lengthMode = 0;
    QString m_charCount;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields = std::make_tuple(
        &TextSubstringOperation::m_sourceText, &TextSubstringOperation::m_startIndex,
        &TextSubstringOperation::m_lengthMode, &TextSubstringOperation::m_charCount,
        &TextSubstringOperation::m_resultVar);
};
