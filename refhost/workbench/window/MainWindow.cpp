#include "refhost/workbench/window/MainWindow.h"

#include "refhost/workbench/catalog/CatalogPanel.h"
#include "refhost/workbench/editor/EditorPanel.h"
#include "refhost/workbench/files/FileActions.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/run/FindingsPanel.h"
#include "refhost/workbench/run/LogPanel.h"
#include "refhost/workbench/run/OperandsPanel.h"
#include "refhost/workbench/run/RunActions.h"
#include "refhost/workbench/settings/Settings.h"
#include "refhost/workbench/steps/StepsPanel.h"
#include "refhost/workbench/variables/VariablesPanel.h"
#include "refhost/workbench/window/AboutText.h"
#include "refhost/workbench/window/EditActions.h"
#include "refhost/workbench/window/PanelFocus.h"
#include "refhost/workbench/window/StatusLine.h"
#include "refhost/workbench/window/ViewMenu.h"
#include "refhost/workbench/window/Workbench.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QToolBar>

namespace {

QString geometryKey()
{
    return QStringLiteral("window/geometry");
}

QString layoutKey()
{
    return QStringLiteral("window/layout");
}

/// Most of the screen, but not more than is of use; of a small one all.
QSize firstSize(const QWidget &window)
{
    constexpr QSize most(1500, 950);
    constexpr QSize comfortable(1150, 750);
    const QSize screen = window.screen()->availableSize();
    return (screen * 4 / 5).expandedTo(comfortable).boundedTo(most).boundedTo(screen);
}

} // namespace

MainWindow::MainWindow(Workbench &bench, QWidget *parent)
    : QMainWindow(parent)
    , m_bench(bench)
    , m_files(new FileActions(bench, this))
    , m_run(new RunActions(bench, this))
    , m_view(new ViewMenu(this))
    , m_status(new StatusLine(bench, this))
{
    setObjectName(QStringLiteral("window"));
    setWindowIcon(symbolIcon(QStringLiteral("workbench")));
    setStatusBar(m_status);
    createPanels();
    createMenus();
    connectMessages();
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::showFocus);
}

MainWindow::~MainWindow()
{
    // The focus leaves the window when there is little left of it.
    disconnect(qApp, nullptr, this, nullptr);
}

void MainWindow::rememberLayout()
{
    m_remembers = true;
    const QSettings settings(settingsFile(), QSettings::IniFormat);
    if (!restoreGeometry(settings.value(geometryKey()).toByteArray()))
        resize(firstSize(*this));
    restoreState(settings.value(layoutKey()).toByteArray());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_files->mayLeave());
    if (!event->isAccepted() || !m_remembers)
        return;
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(geometryKey(), saveGeometry());
    settings.setValue(layoutKey(), saveState());
}

void MainWindow::connectMessages()
{
    connect(m_files, &FileActions::statusText, m_status, &StatusLine::tell);
    connect(&m_bench.library, &PluginLibrary::statusText, m_status, &StatusLine::tell);
    connect(&m_bench.migrator, &StepMigrator::migrated, m_status, [this](const QStringList &lost) {
        if (!lost.isEmpty())
            m_status->tell(lost.join(tr("；")));
    });
    connect(m_view, &ViewMenu::languageChosen, m_status,
            [this] { m_status->tell(tr("下次启动时使用所选的语言。")); });
}

QDockWidget *MainWindow::addDock(const QString &name, const QString &title, QWidget *panel,
                                 Qt::DockWidgetArea area)
{
    auto *const dock = new QDockWidget(title, this);
    dock->setObjectName(QStringLiteral("dock.") + name);
    dock->setWidget(panel);
    addDockWidget(area, dock);
    m_view->addSwitch(dock->toggleViewAction());
    m_view->addPanel(title, panel);
    return dock;
}

void MainWindow::createPanels()
{
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    // Before the panels hear of it: what is not shown cannot take the focus.
    connect(&m_bench.place, &CurrentPlace::wanted, this, &MainWindow::showPlace);
    // The tabulator goes from panel to panel in the order in which they are made.
    auto *const catalog = new CatalogPanel(m_bench, this);
    m_steps = new StepsPanel(m_bench, this);
    m_variables = new VariablesPanel(m_bench, this);
    m_editor = new EditorPanel(m_bench, this);
    m_bench.pending.add(m_variables, [this] { return m_variables->commitEditing(); });
    setCentralWidget(m_steps);
    connect(m_steps, &StepsPanel::catalogWanted, catalog, &CatalogPanel::focusFilter);
    m_docks.catalog =
        addDock(QStringLiteral("catalog"), tr("操作"), catalog, Qt::LeftDockWidgetArea);
    m_view->addPanel(tr("步骤"), m_steps);
    m_docks.editor =
        addDock(QStringLiteral("editor"), tr("编辑步骤"), m_editor, Qt::RightDockWidgetArea);
    m_docks.variables =
        addDock(QStringLiteral("variables"), tr("变量"), m_variables, Qt::BottomDockWidgetArea);
    m_docks.log = addDock(QStringLiteral("log"), tr("日志"), new LogPanel(m_bench, this),
                          Qt::BottomDockWidgetArea);
    QDockWidget *const findings =
        addDock(QStringLiteral("findings"), tr("检查"), new FindingsPanel(m_bench, this),
                Qt::BottomDockWidgetArea);
    m_docks.operands = addDock(QStringLiteral("operands"), tr("上次运行"),
                               new OperandsPanel(m_bench, this), Qt::RightDockWidgetArea);
    tabifyDockWidget(m_docks.log, findings);
    m_docks.log->raise();
    shareOutDocks();
}

/// Gives the docks their first sizes.
void MainWindow::shareOutDocks()
{
    const int unit = fontMetrics().height();
    resizeDocks({m_docks.catalog, m_docks.editor}, {15 * unit, 24 * unit}, Qt::Horizontal);
    resizeDocks({m_docks.variables}, {14 * unit}, Qt::Vertical);
    resizeDocks({m_docks.variables, m_docks.log}, {30 * unit, 24 * unit}, Qt::Horizontal);
    resizeDocks({m_docks.editor, m_docks.operands}, {34 * unit, 14 * unit}, Qt::Vertical);
}

/// A dock behind another one takes the focus from the tabulator, and would keep it out of sight.
void MainWindow::showFocus(const QWidget *old, QWidget *now)
{
    Q_UNUSED(old)
    for (QWidget *widget = now; widget; widget = widget->parentWidget()) {
        auto *const dock = qobject_cast<QDockWidget *>(widget);
        if (dock && !tabifiedDockWidgets(dock).isEmpty())
            dock->raise();
    }
}

void MainWindow::showPlace(const EditPlace &place)
{
    if (place.variable != 0)
        showPanel(*m_variables);
    else if (!place.property.isEmpty())
        showPanel(*m_editor);
}

void MainWindow::createMenus()
{
    auto *const edit = new EditActions(m_bench.document, this);
    m_files->addTo(*menuBar()->addMenu(tr("文件(&F)")));

    QMenu *const editMenu = menuBar()->addMenu(tr("编辑(&E)"));
    editMenu->addActions(edit->actions());
    editMenu->addSeparator();
    editMenu->addActions(m_steps->editActions());
    menuBar()->addMenu(tr("变量(&B)"))->addActions(m_variables->actions());
    menuBar()->addMenu(tr("运行(&R)"))->addActions(m_run->actions());
    menuBar()->addMenu(m_view);
    menuBar()->addMenu(tr("帮助(&H)"))->addAction(tr("关于(&A)"), this, &MainWindow::showAbout);

    addToolBarOf(QStringLiteral("file"), tr("文件工具栏"), m_files->mainActions());
    addToolBarOf(QStringLiteral("edit"), tr("编辑工具栏"), edit->actions());
    addToolBarOf(QStringLiteral("run"), tr("运行工具栏"), m_run->actions());
}

void MainWindow::addToolBarOf(const QString &name, const QString &title,
                              const QList<QAction *> &actions)
{
    QToolBar *const bar = addToolBar(title);
    bar->setObjectName(QStringLiteral("bar.") + name);
    bar->addActions(actions);
    m_view->addSwitch(bar->toggleViewAction());
}

void MainWindow::showAbout()
{
    auto *const box = new QMessageBox(QMessageBox::NoIcon, tr("关于操作工作台"),
                                      aboutText(m_bench.library.catalog()), QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->open();
}
