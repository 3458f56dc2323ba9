#pragma once

#include <QAction>
#include <QList>
#include <QObject>

struct Workbench;

/// What can be done with the run: the actions of the menu and of the tool bar.
class RunActions : public QObject
{
    Q_OBJECT

public:
    /// The workbench has to outlive the actions.
    explicit RunActions(Workbench &bench, QObject *parent = nullptr);

    /// All of them, with separators between the groups.
    QList<QAction *> actions() const { return m_actions; }

private:
    Workbench &m_bench;
    QList<QAction *> m_actions;
};
