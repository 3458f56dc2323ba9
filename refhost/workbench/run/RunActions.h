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
    QAction *add(const char *name, const QString &text, const QString &shortcut);
    void addSeparator();
    void createRunning();
    void createBreakpoints();
    void update();
    void toggleBreakpoint();
    void clearBreakpoints();
    bool hasBreakpoints() const;

    Workbench &m_bench;
    QList<QAction *> m_actions;
    QAction *m_run = nullptr;
    QAction *m_stepOver = nullptr;
    QAction *m_runTo = nullptr;
    QAction *m_pause = nullptr;
    QAction *m_stop = nullptr;
    QAction *m_reset = nullptr;
    QAction *m_toggle = nullptr;
    QAction *m_clear = nullptr;
};
