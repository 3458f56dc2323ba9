#pragma once

#include "refhost/engine/Task.h"
#include "refhost/engine/check/Finding.h"
#include "refhost/workbench/editor/TypingRun.h"

#include <QList>
#include <QWidget>

class Operation;
class PropertyEditor;
class TaskDocument;

/// The editors of the properties of one step, in their order; those whose condition does not hold
/// are hidden and keep their values.
class StepForm : public QWidget
{
    Q_OBJECT

public:
    /// Makes the editors for steps of the class of `step`. The document has to outlive the form.
    StepForm(const Operation &step, TaskDocument &document, QWidget *parent = nullptr);

    /// Whether the form was made for steps of this class.
    bool fits(const Operation &step) const;

    /// Shows a step, which has to fit, under its identifier.
    void showStep(int id, const Operation &step);

    void setFindings(const QList<Finding> &findings);

    /// The editor of a property, null when there is none.
    PropertyEditor *editor(const QString &property) const;

    /// The editor to go to for a property: its own, or while that is hidden the one of the choice
    /// that hides it, which then says so. Null when there is none.
    PropertyEditor *editorToFocus(const QString &property);

private:
    void add(PropertyEditor *editor);
    void setValue(const PropertyEditor &editor, const QVariant &value, bool typing);
    void declare(const PropertyEditor &editor, const TaskVariable &variable, const QVariant &value);

    TaskDocument &m_document;
    const QMetaObject *m_class;
    QString m_typeId;
    int m_step = 0;
    TypingRun m_typing;
    QList<PropertyEditor *> m_editors;
};
