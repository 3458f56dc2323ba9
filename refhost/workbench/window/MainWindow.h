#pragma once

#include <QMainWindow>

class CatalogPanel;
class EditorPanel;
class FileActions;
class RunActions;
class StepsPanel;
class VariablesPanel;
struct Workbench;

/// The window: the steps in the middle, the other panels docked around them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The workbench has to outlive the window.
    explicit MainWindow(Workbench &bench, QWidget *parent = nullptr);

    FileActions &files() { return *m_files; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QDockWidget *addDock(const QString &name, const QString &title, QWidget *panel,
                         Qt::DockWidgetArea area);
    void createPanels();
    void createMenus();
    QMenu *createEditMenu();

    Workbench &m_bench;
    FileActions *m_files;
    RunActions *m_run;
    StepsPanel *m_steps = nullptr;
    QMenu *m_viewMenu = nullptr;
};
