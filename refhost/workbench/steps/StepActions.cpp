#include "refhost/workbench/steps/StepActions.h"

#include "refhost/workbench/edits/TaskClipboard.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/steps/StepView.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QMimeData>

#include <algorithm>

StepActions::StepActions(Workbench &bench, StepView &view, QObject *parent)
    : QObject(parent)
    , m_bench(bench)
    , m_view(view)
    , m_edits(bench)
{
    createActions();
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &StepActions::follow);
    connect(&bench.document, &TaskDocument::changed, this, &StepActions::follow);
    connect(&bench.run, &RunSession::stateChanged, this, &StepActions::follow);
    connect(&bench.place, &CurrentPlace::stepChanged, this, &StepActions::follow);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &StepActions::followClipboard);
    follow();
    followClipboard();
}

void StepActions::createActions()
{
    QAction *const add = create(QStringLiteral("steps.add"), tr("添加步骤(&A)…"),
                                QStringLiteral("add"), Qt::Key_Insert, &StepActions::addStep);
    QAction *const cutSteps = create(QStringLiteral("steps.cut"), tr("剪切(&T)"),
                                     QStringLiteral("cut"), QKeySequence::Cut, &StepActions::cut);
    QAction *const copySteps =
        create(QStringLiteral("steps.copy"), tr("复制(&C)"), QStringLiteral("copy"),
               QKeySequence::Copy, &StepActions::copy);
    m_paste = create(QStringLiteral("steps.paste"), tr("粘贴(&P)"), QStringLiteral("paste"),
                     QKeySequence::Paste, &StepActions::paste);
    QAction *const copies =
        create(QStringLiteral("steps.duplicate"), tr("创建副本(&D)"), QStringLiteral("duplicate"),
               int(Qt::CTRL) + Qt::Key_D, &StepActions::duplicate);
    QAction *const removal =
        create(QStringLiteral("steps.delete"), tr("删除(&L)"), QStringLiteral("delete"),
               QKeySequence::Delete, &StepActions::remove);
    m_selectAll = create(QStringLiteral("steps.selectAll"), tr("全选(&S)"), QStringLiteral("list"),
                         QKeySequence::SelectAll, &StepActions::selectAll);
    m_moveUp = create(QStringLiteral("steps.moveUp"), tr("上移(&M)"), QStringLiteral("up"),
                      int(Qt::ALT) + Qt::Key_Up, &StepActions::moveUp);
    m_moveDown = create(QStringLiteral("steps.moveDown"), tr("下移(&O)"), QStringLiteral("down"),
                        int(Qt::ALT) + Qt::Key_Down, &StepActions::moveDown);
    // F9 is the window's, for the current step.
    QAction *const breakpoint =
        create(QStringLiteral("steps.breakpoint"), tr("设置或取消断点(&B)"),
               QStringLiteral("breakpoint"), {}, &StepActions::toggleBreakpoint);
    m_runHere = create(QStringLiteral("steps.runHere"), tr("运行到此处(&R)"),
                       QStringLiteral("run-to"), {}, &StepActions::runHere);
    m_selectionActions = {cutSteps, copySteps, copies, removal, breakpoint};
    m_editActions = {add,     separator(), cutSteps,    copySteps,   m_paste,  copies,
                     removal, separator(), m_selectAll, separator(), m_moveUp, m_moveDown};
    m_contextActions = m_editActions;
    m_contextActions.append({separator(), breakpoint, m_runHere});
}

QAction *StepActions::create(const QString &name, const QString &text, const QString &icon,
                             const QKeySequence &shortcut, void (StepActions::*slot)())
{
    auto *const action = new QAction(symbolIcon(icon), text, this);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [this, slot] {
        Q_EMIT begun();
        (this->*slot)();
    });
    return action;
}

QAction *StepActions::separator()
{
    auto *const action = new QAction(this);
    action->setSeparator(true);
    return action;
}

void StepActions::follow()
{
    const QVector<int> rows = selectedRows();
    for (QAction *const action : qAsConst(m_selectionActions))
        action->setEnabled(!rows.isEmpty());
    enableMoves(rows);
    m_selectAll->setEnabled(!m_bench.document.state().steps.isEmpty());
    m_runHere->setEnabled(m_bench.place.step() != 0 &&
                          m_bench.run.state() != RunSession::State::Running);
}

/// Apart from the rest, since another program may take its time to say what it has copied.
void StepActions::followClipboard()
{
    const QMimeData *const mime = QGuiApplication::clipboard()->mimeData();
    m_paste->setEnabled(mime && mayHoldTask(*mime));
}

/// Steps that stand together at an end of the list cannot go further.
void StepActions::enableMoves(const QVector<int> &rows)
{
    const int last = m_bench.document.state().steps.size() - 1;
    const bool isAny = !rows.isEmpty();
    m_moveUp->setEnabled(isAny && rows.last() >= rows.size());
    m_moveDown->setEnabled(isAny && rows.first() <= last - rows.size());
}

QVector<int> StepActions::selectedRows() const
{
    QVector<int> rows;
    const QModelIndexList selected = m_view.selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void StepActions::addStep()
{
    Q_EMIT catalogWanted();
}

void StepActions::cut()
{
    copy();
    m_edits.cut(m_view.selectedSteps());
}

void StepActions::copy()
{
    QGuiApplication::clipboard()->setMimeData(m_edits.mime(m_view.selectedSteps()).release());
}

void StepActions::paste()
{
    const QMimeData *const mime = QGuiApplication::clipboard()->mimeData();
    if (!mime)
        return;
    if (const auto problem = m_edits.paste(*mime, m_edits.rowBehindCurrent()))
        Q_EMIT refused(*problem);
}

void StepActions::duplicate()
{
    m_edits.duplicate(m_view.selectedSteps(), selectedRows().last() + 1);
}

void StepActions::remove()
{
    m_edits.remove(m_view.selectedSteps());
}

void StepActions::selectAll()
{
    m_view.selectAll();
}

void StepActions::moveUp()
{
    m_edits.move(m_view.selectedSteps(), qMax(0, selectedRows().first() - 1));
}

void StepActions::moveDown()
{
    m_edits.move(m_view.selectedSteps(), selectedRows().last() + 2);
}

void StepActions::toggleBreakpoint()
{
    m_edits.toggleBreakpoints(m_view.selectedSteps());
}

void StepActions::runHere()
{
    m_bench.run.runTo(m_bench.place.step());
}
