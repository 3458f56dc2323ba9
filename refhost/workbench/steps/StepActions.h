#pragma once

#include "refhost/workbench/edits/StepEdits.h"

#include <QAction>
#include <QList>
#include <QObject>

class StepView;
struct Workbench;

/// What can be done with the steps of a list, as actions for menus; their shortcuts work while the
/// list has the focus, so that copying elsewhere copies what is there.
class StepActions : public QObject
{
    Q_OBJECT

public:
    /// Workbench and view have to outlive the actions.
    StepActions(Workbench &bench, StepView &view, QObject *parent = nullptr);

    /// Those for the edit menu, with separators between the groups.
    QList<QAction *> editActions() const { return m_editActions; }
    /// Those, and what belongs to a single step.
    QList<QAction *> contextActions() const { return m_contextActions; }

Q_SIGNALS:
    /// The user wants to choose an operation to add.
    void catalogWanted();
    /// An action begins; what was said about the one before is out of date.
    void begun();
    /// What is on the clipboard cannot be pasted, and why.
    void refused(const QString &message);

private:
    QAction *create(const QString &name, const QString &text, const QString &icon,
                    const QKeySequence &shortcut, void (StepActions::*slot)());
    void createActions();
    void follow();
    void followClipboard();
    void enableMoves(const QVector<int> &rows);
    QAction *separator();
    QVector<int> selectedRows() const;

    void addStep();
    void cut();
    void copy();
    void paste();
    void duplicate();
    void remove();
    void selectAll();
    void moveUp();
    void moveDown();
    void toggleBreakpoint();
    void runHere();

    Workbench &m_bench;
    StepView &m_view;
    StepEdits m_edits;
    QList<QAction *> m_editActions;
    QList<QAction *> m_contextActions;
    QList<QAction *> m_selectionActions; ///< those that need selected steps
    QAction *m_paste = nullptr;
    QAction *m_selectAll = nullptr;
    QAction *m_moveUp = nullptr;
    QAction *m_moveDown = nullptr;
    QAction *m_runHere = nullptr;
};
