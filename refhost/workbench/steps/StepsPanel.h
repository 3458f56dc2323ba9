#pragma once

#include <QWidget>

class MessageLine;
class QAction;
class StepActions;
class StepModel;
class StepView;
class TaskState;
struct EditPlace;
struct Workbench;

/// The steps of the task in their order.
class StepsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit StepsPanel(Workbench &bench, QWidget *parent = nullptr);

    /// What can be done with steps, for the edit menu of the window, with separators. The actions
    /// stay the panel's.
    QList<QAction *> editActions() const;

Q_SIGNALS:
    /// The user wants to choose an operation to add.
    void catalogWanted();

private:
    void connectSelection();
    void takeCurrent(const QModelIndex &current);
    void showStep(int step);
    void showPlace(const EditPlace &place);
    void showHalt();
    void followDocument(const TaskState &before);
    void showMenu(const QPoint &position);

    Workbench &m_bench;
    StepView *m_view;
    StepActions *m_actions;
    MessageLine *m_message;
};
