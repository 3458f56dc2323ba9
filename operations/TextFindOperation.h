#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Finds the first occurrence of a text in another and stores its position, counted from 0 in
/// UTF-16 code units, or -1.
class TextFindOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_searchText", "要查找的文本")
    Q_CLASSINFO("editor_searchText", "VARREF")
    Q_CLASSINFO("varref_kind_searchText", "string")
    Q_CLASSINFO("prop_ignoreCase", "忽略大小写")
    Q_CLASSINFO("prop_resultVar", "找的位置保存到整型变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:INT")
    Q_CLASSINFO("varname_type_resultVar", "int")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText)
    Q_PROPERTY(bool ignoreCase READ ignoreCase WRITE setIgnoreCase)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextFindOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to search in.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// Operand: the text to look for; an empty one is found at 0.
    QString searchText() const { return m_searchText; }
    void setSearchText(const QString &text) { m_searchText = text; }

    /// Whether letters match without regard to case.
    bool ignoreCase() const { return m_ignoreCase; }
    void setIgnoreCase(bool on) { m_ignoreCase = on; }

    /// The numeric variable that receives the position.
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
    QString m_searchText;
    bool m_ignoreCase = false;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextFindOperation::m_sourceText, &TextFindOperation::m_searchText,
                        &TextFindOperation::m_ignoreCase, &TextFindOperation::m_resultVar);
};
