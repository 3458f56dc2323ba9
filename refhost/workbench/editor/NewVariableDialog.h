#pragma once

#include "refhost/engine/Task.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class TaskDocument;

/// Asks for name and type of a new variable. Deletes itself when it is closed.
class NewVariableDialog : public QDialog
{
    Q_OBJECT

public:
    /// Proposes a name that is free and `type`. The document has to outlive the dialog.
    NewVariableDialog(const TaskDocument &document, VarType type, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The dialog was accepted; the variable has no value yet.
    void wanted(const TaskVariable &variable);

private:
    void check();
    void createWidgets(VarType type);

    const TaskDocument &m_document;
    QLineEdit *m_name;
    QComboBox *m_type;
    QLabel *m_problem;
    QDialogButtonBox *m_buttons;
};
