#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Cuts out the text before a marker, after a marker, or between two markers. The first occurrence
/// counts; a marker that is not there gives the empty text.
class TextBetweenOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_sourceText", "原文本")
    Q_CLASSINFO("editor_sourceText", "VARREF")
    Q_CLASSINFO("varref_kind_sourceText", "string")
    Q_CLASSINFO("prop_cutMode", "截取位置")
    Q_CLASSINFO("editor_cutMode", "COMBO")
    Q_CLASSINFO("choices_cutMode", "标识前|标识后|标识之间")
    Q_CLASSINFO("prop_startMarker", "开始标识")
    Q_CLASSINFO("editor_startMarker", "VARREF")
    Q_CLASSINFO("varref_kind_startMarker", "string")
    Q_CLASSINFO("show_when_startMarker", "cutMode=1|2")
    Q_CLASSINFO("prop_endMarker", "结束标识")
    Q_CLASSINFO("editor_endMarker", "VARREF")
    Q_CLASSINFO("varref_kind_endMarker", "string")
    Q_CLASSINFO("show_when_endMarker", "cutMode=0|2")
    Q_CLASSINFO("prop_ignoreCase", "忽略大小写")
    Q_CLASSINFO("prop_resultVar", "截取文本保存到字符串变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText)
    Q_PROPERTY(int cutMode READ cutMode WRITE setCutMode)
    Q_PROPERTY(QString startMarker READ startMarker WRITE setStartMarker)
    Q_PROPERTY(QString endMarker READ endMarker WRITE setEndMarker)
    Q_PROPERTY(bool ignoreCase READ ignoreCase WRITE setIgnoreCase)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextBetweenOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Operand: the text to cut from.
    QString sourceText() const { return m_sourceText; }
    void setSourceText(const QString &text) { m_sourceText = text; }

    /// 0 for the text before the end marker, 1 after the start marker, 2 between the two; any other
    /// value is a failure.
    int cutMode() const { return m_cutMode; }
    void setCutMode(int mode) { m_cutMode = mode; }

    /// Operand: the marker after which the piece begins.
    QString startMarker() const { return m_startMarker; }
    void setStartMarker(const QString &text) { m_startMarker = text; }

    /// Operand: the marker before which the piece ends.
    QString endMarker() const { return m_endMarker; }
    void setEndMarker(const QString &text) { m_endMarker = text; }

    /// Whether letters match without regard to case.
    bool ignoreCase() const { return m_ignoreCase; }
    void setIgnoreCase(bool on) { m_ignoreCase = on; }

    /// The string variable that receives the piece.
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
    int m_cutMode = 0;
    QString m_startMarker;
    QString m_endMarker;
    bool m_ignoreCase = false;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields =
        std::make_tuple(&TextBetweenOperation::m_sourceText, &TextBetweenOperation::m_cutMode,
                        &TextBetweenOperation::m_startMarker, &TextBetweenOperation::m_endMarker,
                        &TextBetweenOperation::m_ignoreCase, &TextBetweenOperation::m_resultVar);
};
