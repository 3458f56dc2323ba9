#pragma once

#include <QMainWindow>

class EditorPanel;
class FileActions;
class RunActions;
class StatusLine;
class StepsPanel;
class VariablesPanel;
class ViewMenu;
struct EditPlace;
struct Workbench;

/// The window: the steps in the middle, the other panels docked around them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The workbench has to outlive the window.
    explicit MainWindow(Workbench &bench, QWidget *parent = nullptr);
    ~MainWindow() override;

    FileActions &files() { return *m_files; }

    /// Takes over place, size and panels of the last window, and keeps those of this one when it is
    /// closed.
    void rememberLayout();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QDockWidget *addDock(const QString &name, const QString &title, QWidget *panel,
                         Qt::DockWidgetArea area);
    void connectMessages();
    void createPanels();
    void shareOutDocks();
    void showFocus(const QWidget *old, QWidget *now);
    void showPlace(const EditPlace &place);
    void createMenus();
    void addToolBarOf(const QString &name, const QString &title, const QList<QAction *> &actions);
    void showAbout();

    Workbench &m_bench;
    FileActions *m_files;
    RunActions *m_run;
    ViewMenu *m_view;
    StatusLine *m_status;
    StepsPanel *m_steps = nullptr;
    VariablesPanel *m_variables = nullptr;
    EditorPanel *m_editor = nullptr;
    struct
    {
        QDockWidget *catalog = nullptr;
        QDockWidget *editor = nullptr;
        QDockWidget *operands = nullptr;
        QDockWidget *variables = nullptr;
        QDockWidget *log = nullptr;
    } m_docks; ///< those with sizes of their own
    bool m_remembers = false;
};
