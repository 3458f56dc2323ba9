#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Removes white space from the start of a text, its end, both, or everywhere. White space is what
/// `QChar::isSpace` says of each UTF-16 code unit.
class TextTrimOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_mode", "位置")
    Q_CLASSINFO("editor_mode", "COMBO")
    Q_CLASSINFO("choices_mode", "头部|尾部|头尾|所有")
    Q_CLASSINFO("prop_resultVar", "新文本保存到字符串变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(int mode READ mode WRITE setMode)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextTrimOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to trim.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// 0 for the start, 1 for the end, 2 for both, 3 for everywhere; any other value is a failure.
    int mode() const { return m_mode; }
    void setMode(int mode) { m_mode = mode; }

    /// The string variable that receives the trimmed text.
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
    QString trimModeText() const;

    QString m_sourceText;
    int m_mode = 0;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextTrimOperation::m_sourceText, &TextTrimOperation::m_mode,
                        &TextTrimOperation::m_resultVar);
};
