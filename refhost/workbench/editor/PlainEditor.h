#pragma once

#include "refhost/workbench/editor/PropertyEditor.h"

class ExactTextEdit;

/// Edits a value without an editor word: a text, a whole number or any number, as it is. A text
/// that is no such number is not taken, and gone when the focus leaves. Values of other types are
/// shown and cannot be edited.
class PlainEditor : public PropertyEditor
{
    Q_OBJECT

public:
    PlainEditor(const PropertySchema &schema, const TaskDocument &document, bool writable = true,
                QWidget *parent = nullptr);

protected:
    void showValue(const QVariant &value) override;
    Remark remarkNow() override;
    void leave() override;

private:
    void sendText();
    bool isType(const char *name) const;
    /// The value the text makes; invalid when it makes none.
    QVariant valueOf(const QString &text) const;

    ExactTextEdit *m_field;
    bool m_writable;
    bool m_isRejected = false; ///< what was typed last makes no value
};
