#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Replaces every occurrence of a text by another, or the first one only.
class TextReplaceOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_oldText", "要替换的文本")
    Q_CLASSINFO("editor_oldText", "VARREF")
    Q_CLASSINFO("varref_kind_oldText", "string")
    Q_CLASSINFO("prop_ignoreCase", "忽略大小写")
    Q_CLASSINFO("prop_newText", "替换为")
    Q_CLASSINFO("editor_newText", "VARREF")
    Q_CLASSINFO("varref_kind_newText", "string")
    Q_CLASSINFO("prop_replaceScope", "替换范围")
    Q_CLASSINFO("editor_replaceScope", "COMBO")
    Q_CLASSINFO("choices_replaceScope", "全部|首个")
    Q_CLASSINFO("prop_resultVar", "新文本保存到字符串变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(QString oldText READ oldText WRITE setOldText)
    Q_PROPERTY(bool ignoreCase READ ignoreCase WRITE setIgnoreCase)
    Q_PROPERTY(QString newText READ newText WRITE setNewText)
    Q_PROPERTY(int replaceScope READ replaceScope WRITE setReplaceScope)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextReplaceOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to work on.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// Operand: the text to search for.
    QString oldText() const { return m_oldText; }
    void setOldText(const QString &text) { m_oldText = text; }

    /// Whether letters match without regard to case.
    bool ignoreCase() const { return m_ignoreCase; }
    void setIgnoreCase(bool on) { m_ignoreCase = on; }

    /// Operand: the text to put in its place.
    QString newText() const { return m_newText; }
    void setNewText(const QString &text) { m_newText = text; }

    /// 1 to replace the first occurrence only; every one for 0 and any other value.
    int replaceScope() const { return m_replaceScope; }
    void setReplaceScope(int mode) { m_replaceScope = mode; }

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
    QString replaceScopeText() const;

    QString m_sourceText;
    QString m_oldText;
    bool m_ignoreCase = false;
    QString m_newText;
    int m_replaceScope = 0;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextReplaceOperation::m_sourceText, &TextReplaceOperation::m_oldText,
                        &TextReplaceOperation::m_ignoreCase, &TextReplaceOperation::m_newText,
                        &TextReplaceOperation::m_replaceScope, &TextReplaceOperation::m_resultVar);
};
