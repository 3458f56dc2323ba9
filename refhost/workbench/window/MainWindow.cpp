#include "refhost/workbench/window/MainWindow.h"

#include "refhost/workbench/catalog/CatalogPanel.h"
#include "refhost/workbench/editor/EditorPanel.h"
#include "refhost/workbench/files/FileActions.h"
#include "refhost/workbench/run/FindingsPanel.h"
#include "refhost/workbench/run/LogPanel.h"
#include "refhost/workbench/run/OperandsPanel.h"
#include "refhost/workbench/run/RunActions.h"
#include "refhost/workbench/steps/StepsPanel.h"
#include "refhost/workbench/variables/VariablesPanel.h"
#include "refhost/workbench/window/Workbench.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

MainWindow::MainWindow(Workbench &bench, QWidget *parent)
    : QMainWindow(parent)
    , m_bench(bench)
    , m_files(new FileActions(bench, this))
    , m_run(new RunActions(bench, this))
{
    createPanels();
    createMenus();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_files->mayLeave());
}

QDockWidget *MainWindow::addDock(const QString &name, const QString &title, QWidget *panel,
                                 Qt::DockWidgetArea area)
{
    auto *const dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(panel);
    addDockWidget(area, dock);
    return dock;
}

void MainWindow::createPanels()
{
    m_steps = new StepsPanel(m_bench, this);
    setCentralWidget(m_steps);
    addDock(QStringLiteral("catalog"), tr("操作"), new CatalogPanel(m_bench, this),
            Qt::LeftDockWidgetArea);
    addDock(QStringLiteral("editor"), tr("编辑"), new EditorPanel(m_bench, this),
            Qt::RightDockWidgetArea);
    addDock(QStringLiteral("operands"), tr("上次运行"), new OperandsPanel(m_bench, this),
            Qt::RightDockWidgetArea);
    addDock(QStringLiteral("variables"), tr("变量"), new VariablesPanel(m_bench, this),
            Qt::BottomDockWidgetArea);
    QDockWidget *const log = addDock(QStringLiteral("log"), tr("日志"), new LogPanel(m_bench, this),
                                     Qt::BottomDockWidgetArea);
    QDockWidget *const findings =
        addDock(QStringLiteral("findings"), tr("检查"), new FindingsPanel(m_bench, this),
                Qt::BottomDockWidgetArea);
    tabifyDockWidget(log, findings);
    log->raise();
}

void MainWindow::createMenus()
{
    QMenu *const fileMenu = menuBar()->addMenu(tr("文件(&F)"));
    m_files->addTo(*fileMenu);
    menuBar()->addMenu(createEditMenu());
    QMenu *const runMenu = menuBar()->addMenu(tr("运行(&R)"));
    runMenu->addActions(m_run->actions());
    QToolBar *const bar = addToolBar(tr("运行"));
    bar->setObjectName(QStringLiteral("runBar"));
    bar->addActions(m_run->actions());
}

QMenu *MainWindow::createEditMenu()
{
    auto *const menu = new QMenu(tr("编辑(&E)"), this);
    return menu;
}
