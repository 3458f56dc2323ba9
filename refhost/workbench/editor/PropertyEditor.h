#pragma once

#include "refhost/engine/PropertySchema.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/check/Finding.h"
#include "refhost/workbench/editor/Remark.h"

#include <QList>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class RemarkLine;
class TaskDocument;

/// Edits one property of a step: its label, its field, a remark on the value, and what a check has
/// found. It changes nothing itself; the document is the truth, and `setValue` follows it.
class PropertyEditor : public QWidget
{
    Q_OBJECT

public:
    /// The document, from which the variables are read, has to outlive the editor.
    PropertyEditor(const PropertySchema &schema, const TaskDocument &document,
                   QWidget *parent = nullptr);

    const PropertySchema &schema() const { return m_schema; }

    /// The label of the property, or its name where it has none.
    QString title() const;

    /// Shows this value. What is being typed keeps its cursor.
    void setValue(const QVariant &value);

    /// Shows what depends on the variables anew.
    void refresh();

    /// Shows those of the findings that are about this property and not in the remark already.
    void setFindings(const QList<Finding> &findings);

    /// Says something until the value changes.
    void setHint(const QString &hint);

    /// Puts the focus into the field.
    void focusField();

Q_SIGNALS:
    /// The user is typing; the text as it is now makes this value.
    void typed(const QVariant &value);
    /// The user has decided on this value.
    void chosen(const QVariant &value);
    /// The user wants a new variable, and this value, if it is valid, with it.
    void variableWanted(const TaskVariable &variable, const QVariant &value);
    /// The focus has left the field.
    void left();
    /// Undo or redo was asked for by a key in the field or by its menu.
    void undoWanted();
    void redoWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

    const TaskDocument &document() const { return m_document; }
    const QVariant &value() const { return m_value; }

    /// Makes `field` the field: named, labelled and watched. Call once.
    void setField(QWidget *field, bool hasOwnLabel = false);
    /// Puts something behind the field.
    void addBeside(QWidget *widget);

    /// Shows the value in the field.
    virtual void showValue(const QVariant &value) = 0;
    /// What to say about the value.
    virtual Remark remarkNow() { return {}; }
    /// Whether the remark speaks of mistakes of this kind, so that the findings need not.
    virtual bool remarksOn(Mistake mistake) const;
    /// A key that opens what hangs on the field. The base class has nothing.
    virtual void openMenu() {}
    /// The focus is about to leave the field.
    virtual void leave() {}

private:
    RemarkLine *addRemark(const QString &name);
    void showFindings();
    bool filterKey(QEvent *event);
    bool showContextMenu(QWidget *field, QEvent *event);

    PropertySchema m_schema;
    const TaskDocument &m_document;
    QVariant m_value;
    QList<Finding> m_found;
    QList<RemarkLine *> m_findings;
    QLabel *m_label;
    QHBoxLayout *m_row;
    QVBoxLayout *m_column;
    RemarkLine *m_remark = nullptr;
    RemarkLine *m_hint = nullptr;
    QWidget *m_field = nullptr;
};
