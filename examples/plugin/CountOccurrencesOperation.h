#pragma once

#include "Operation.h"

#include <QString>

/// Counts how often a text stands in another, and stores the number.
///
/// The host builds the editor from the class info below; docs/writing-a-plugin.md tells what each
/// word means. QT_TR_NOOP shows a label to lupdate; moc takes it for the text in it.
class CountOccurrencesOperation : public Operation
{
    Q_OBJECT

    // In the order of the properties, and of each first the label, then the editor, then the rest.
    Q_CLASSINFO("prop_sourceText", QT_TR_NOOP("原文本"))
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_searchText", QT_TR_NOOP("要统计的文本"))
    Q_CLASSINFO("editor_searchText", "VARREF")
    Q_CLASSINFO("varref_kind_searchText", "string")
    Q_CLASSINFO("prop_caseMode", QT_TR_NOOP("大小写"))
    Q_CLASSINFO("editor_caseMode", "COMBO")
    Q_CLASSINFO("choices_caseMode", "区分大小写|忽略大小写")
    Q_CLASSINFO("prop_range", QT_TR_NOOP("统计范围"))
    Q_CLASSINFO("editor_range", "COMBO")
    Q_CLASSINFO("choices_range", "整个文本|开头若干字符")
    Q_CLASSINFO("prop_charCount", QT_TR_NOOP("字符数"))
    Q_CLASSINFO("editor_charCount", "NUMVAR:INT")
    Q_CLASSINFO("show_when_charCount", "range=1")
    Q_CLASSINFO("prop_resultVar", QT_TR_NOOP("次数保存到整型变量"))
    Q_CLASSINFO("editor_resultVar", "VARNAME:INT")
    Q_CLASSINFO("varname_type_resultVar", "int")

    // READ and WRITE only; the variable for the result last.
    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText)
    Q_PROPERTY(int caseMode READ caseMode WRITE setCaseMode)
    Q_PROPERTY(int range READ range WRITE setRange)
    Q_PROPERTY(QString charCount READ charCount WRITE setCharCount)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit CountOccurrencesOperation(QObject *parent = nullptr);

    // Setters keep what they are given, as it is: a user may be half-way through typing.

    /// Operand: the text to search in.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// Operand: the text to count; an empty one stands nowhere.
    QString searchText() const { return m_searchText; }
    void setSearchText(const QString &text) { m_searchText = text; }

    /// 0 when letter case counts, 1 when it does not.
    int caseMode() const { return m_caseMode; }
    void setCaseMode(int mode) { m_caseMode = mode; }

    /// 0 for the whole text, 1 for its beginning.
    int range() const { return m_range; }
    void setRange(int range) { m_range = range; }

    /// Operand: how many UTF-16 code units the beginning has.
    QString charCount() const { return m_charCount; }
    void setCharCount(const QString &count) { m_charCount = count; }

    /// The numeric or string variable that receives the number.
    QString resultVar() const { return m_resultVar; }
    void setResultVar(const QString &name) { m_resultVar = name; }

    QString root() const override;
    QString typeId() const override;
    QString typeName() const override;
    QString icon() const override;
    QString toString() const override;
    QString description() const override;

    void doOperation() const override;
    void saveOperation(QDataStream &stream) const override;
    void loadOperation(QDataStream &stream) override;
    Operation *clone(QObject *parent) const override;

private:
    void run() const;
    bool takeRange(QString *text) const;
    void store(int count) const;

    // The same order as that of the properties; it is the order of the record, too.
    QString m_sourceText;
    QString m_searchText;
    int m_caseMode = 0;
    int m_range = 0;
    QString m_charCount;
    QString m_resultVar;
};
