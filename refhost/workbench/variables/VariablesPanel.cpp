#include "refhost/workbench/variables/VariablesPanel.h"

#include "refhost/workbench/document/VariableNames.h"
#include "refhost/workbench/document/VariableUses.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/variables/CellKind.h"
#include "refhost/workbench/variables/CellTable.h"
#include "refhost/workbench/variables/ListGrid.h"
#include "refhost/workbench/variables/RunValues.h"
#include "refhost/workbench/variables/TextViewer.h"
#include "refhost/workbench/variables/VariableModel.h"
#include "refhost/workbench/window/Workbench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QSet>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr int nameColumns = 14; ///< widths in those of "x"
constexpr int typeColumns = 10;

} // namespace

VariablesPanel::VariablesPanel(Workbench &bench, QWidget *parent)
    : VariablesPanel(bench, std::make_unique<RunValues>(bench.run), parent)
{
}

VariablesPanel::VariablesPanel(Workbench &bench, std::unique_ptr<CurrentValues> values,
                               QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_values(std::move(values))
    , m_model(new VariableModel(bench.document, *m_values, this))
    , m_table(new CellTable(this))
    , m_renamesInSteps(new QCheckBox(tr("重命名时同时更新步骤中的引用(&S)"), this))
    , m_remark(new QLabel(this))
{
    setUpTable();
    createActions();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createBar());
    layout->addWidget(m_table, 1);
    layout->addWidget(createFoot());
    setFocusProxy(m_table);
    connect(m_renamesInSteps, &QCheckBox::toggled, this,
            [this](bool renames) { m_model->setRenamesInSteps(renames); });
    connect(&bench.check, &LiveCheck::updated, this, &VariablesPanel::showUnused);
    connect(&bench.place, &CurrentPlace::wanted, this, [this](const EditPlace &place) {
        if (goTo(place))
            m_table->setFocus();
    });
    connect(&bench.document, &TaskDocument::changed, this, &VariablesPanel::updateActions);
    connect(&bench.document, &TaskDocument::replaced, this, [this] { remark({}); });
    connect(&bench.document.undoStack(), &QUndoStack::indexChanged, this, [this] { remark({}); });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &VariablesPanel::updateActions);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &VariablesPanel::updateActions);
    updateActions();
}

VariablesPanel::~VariablesPanel()
{
    // Before the values, which it shows.
    delete m_table;
    delete m_model;
}

bool VariablesPanel::commitEditing()
{
    return m_table->commitEditing();
}

void VariablesPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_remark->isHidden())
        remark(m_remark->text());
}

void VariablesPanel::setUpTable()
{
    m_table->setObjectName(QStringLiteral("variables.table"));
    m_table->setAccessibleName(tr("变量"));
    m_table->setRules(m_model, m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    QHeaderView *const header = m_table->horizontalHeader();
    const int unit = fontMetrics().horizontalAdvance(QLatin1Char('x'));
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->resizeSection(VariableModel::NameColumn, unit * nameColumns);
    header->resizeSection(VariableModel::TypeColumn, unit * typeColumns);
    // The values share what is left, so that none is out of sight.
    for (const int column : {VariableModel::StartColumn, VariableModel::CurrentColumn})
        header->setSectionResizeMode(column, QHeaderView::Stretch);
    connect(m_table, &CellTable::openWanted, this, &VariablesPanel::openValue);
}

template <typename Slot>
QAction *VariablesPanel::addAction(const QString &name, const QString &symbol, const QString &text,
                                   const QKeySequence &shortcut, Slot slot)
{
    auto *const action = new QAction(symbolIcon(symbol), text, this);
    action->setObjectName(QStringLiteral("variables.") + name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [this, slot] {
        if (m_table->commitEditing())
            slot();
    });
    // In the bar the pictures of the others say enough.
    if (!m_actions.isEmpty())
        action->setPriority(QAction::LowPriority);
    m_actions.append(action);
    QWidget::addAction(action);
    m_table->addAction(action);
    return action;
}

void VariablesPanel::createActions()
{
    addAction(QStringLiteral("add"), QStringLiteral("add"), tr("添加变量(&A)"), Qt::Key_Insert,
              [this] { addVariable(); })
        ->setIconText(tr("添加变量"));
    m_onSelection +=
        addAction(QStringLiteral("duplicate"), QStringLiteral("duplicate"), tr("复制一份(&D)"),
                  int(Qt::CTRL) + Qt::Key_D, [this] { duplicateVariables(); });
    m_onSelection +=
        addAction(QStringLiteral("delete"), QStringLiteral("delete"), tr("删除变量(&E)"),
                  QKeySequence::Delete, [this] { deleteVariables(); });
    addSeparator();
    m_onSelection += addAction(QStringLiteral("rename"), QStringLiteral("edit"), tr("重命名(&M)"),
                               int(Qt::SHIFT) + Qt::Key_F2, [this] { renameVariable(); });
    m_onSelection += addAction(QStringLiteral("open"), QStringLiteral("text"), tr("打开值(&O)…"),
                               Qt::Key_F4, [this] { openCurrent(); });
    m_onSelection += addAction(QStringLiteral("copyValue"), QStringLiteral("copy"),
                               tr("复制值(&C)"), QKeySequence::Copy, [this] { copyValue(); });
    addSeparator();
    m_up = addAction(QStringLiteral("up"), QStringLiteral("up"), tr("上移(&U)"),
                     int(Qt::ALT) + Qt::Key_Up, [this] { moveVariable(-1); });
    m_down = addAction(QStringLiteral("down"), QStringLiteral("down"), tr("下移(&N)"),
                       int(Qt::ALT) + Qt::Key_Down, [this] { moveVariable(1); });
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void VariablesPanel::addSeparator()
{
    auto *const separator = new QAction(this);
    separator->setSeparator(true);
    m_actions.append(separator);
    m_table->addAction(separator);
}

QWidget *VariablesPanel::createBar()
{
    auto *const bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("variables.bar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions(m_actions);
    const int size = fontMetrics().height() * 5 / 4;
    bar->setIconSize({size, size});
    return bar;
}

QWidget *VariablesPanel::createFoot()
{
    auto *const foot = new QWidget(this);
    m_renamesInSteps->setObjectName(QStringLiteral("variables.renamesInSteps"));
    m_renamesInSteps->setChecked(true);
    m_remark->setObjectName(QStringLiteral("variables.remark"));
    m_remark->setTextFormat(Qt::PlainText);
    m_remark->setWordWrap(true);
    m_remark->hide();
    auto *const layout = new QVBoxLayout(foot);
    const int margin = fontMetrics().height() / 3;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_remark);
    layout->addWidget(m_renamesInSteps);
    return foot;
}

void VariablesPanel::updateActions()
{
    const int row = m_table->currentIndex().row();
    const bool isAny = !selectedIds().isEmpty();
    for (QAction *const action : qAsConst(m_onSelection))
        action->setEnabled(isAny);
    m_up->setEnabled(isAny && row > 0);
    m_down->setEnabled(isAny && row >= 0 && row < m_model->rowCount() - 1);
}

void VariablesPanel::showUnused()
{
    QSet<QString> names;
    for (const Finding &finding : m_bench.check.findings()) {
        if (finding.mistake == Mistake::UnusedVariable)
            names.insert(finding.property);
    }
    m_model->setUnused(names);
}

void VariablesPanel::addVariable()
{
    const TaskVariable variable{
        freeVariableName(m_bench.document.state(), tr("变量1")), VarType::String, {}};
    insert(tr("添加变量“%1”").arg(variable.name), m_model->rowCount(), variable);
    m_table->begin(m_table->currentIndex().siblingAtColumn(VariableModel::NameColumn));
}

void VariablesPanel::duplicateVariables()
{
    const QVector<int> ids = selectedIds();
    TaskState state = m_bench.document.state();
    int last = 0;
    for (const int id : ids) {
        TaskVariable variable = state.variable(id)->variable;
        variable.name = freeVariableName(state, variable.name);
        last = newStateId();
        state = state.withVariable(state.variableRow(id) + 1, {last, variable});
    }
    m_bench.document.change(tr("复制变量"), state, {0, {}, last});
    goTo({0, {}, last});
}

void VariablesPanel::deleteVariables()
{
    const QVector<int> ids = selectedIds();
    const TaskState state = m_bench.document.state();
    const int row = m_table->currentIndex().row();
    const int column = m_table->currentIndex().column();
    QSet<int> steps;
    QStringList names;
    for (const int id : ids) {
        names.append(state.variable(id)->variable.name);
        const auto uses = variableUses(state, names.constLast());
        for (const VariableUse &use : uses)
            steps.insert(use.step);
    }
    const QString listed = names.join(tr("”、“"));
    m_bench.document.change(tr("删除变量“%1”").arg(listed), state.withoutVariables(ids),
                            {0, {}, ids.constFirst()});
    m_table->setCurrentIndex(m_model->index(qMin(row, m_model->rowCount() - 1), column));
    if (!steps.isEmpty())
        remark(tr("已删除变量“%1”，还有 %2 个步骤用到。可以撤销。").arg(listed).arg(steps.size()));
}

void VariablesPanel::renameVariable()
{
    m_table->begin(m_table->currentIndex().siblingAtColumn(VariableModel::NameColumn));
}

void VariablesPanel::moveVariable(int by)
{
    const QModelIndex current = m_table->currentIndex();
    const TaskState &state = m_bench.document.state();
    const int row = current.row() + by;
    if (!current.isValid() || row < 0 || row >= state.variables.size())
        return;
    const VariableState moved = state.variables.at(current.row());
    m_bench.document.change(tr("移动变量“%1”").arg(moved.variable.name),
                            state.withoutVariables({moved.id}).withVariable(row, moved),
                            {0, {}, moved.id});
    m_table->scrollTo(m_table->currentIndex());
    updateActions();
}

void VariablesPanel::copyValue()
{
    const QModelIndex current = m_table->currentIndex();
    const bool isValue = current.column() >= VariableModel::StartColumn;
    QGuiApplication::clipboard()->setText(isValue ? cellText(m_model->value(current))
                                                  : current.data(Qt::EditRole).toString());
}

/// Opens the value in the current cell, else the current value of a run or the start value.
void VariablesPanel::openCurrent()
{
    QModelIndex cell = m_table->currentIndex();
    if (cell.column() < VariableModel::StartColumn)
        cell = cell.siblingAtColumn(m_values->areThere() ? VariableModel::CurrentColumn
                                                         : VariableModel::StartColumn);
    openValue(cell);
}

void VariablesPanel::openValue(const QModelIndex &cell)
{
    const VariableState *const state = m_bench.document.state().variable(m_model->idAt(cell.row()));
    const bool isCurrent = cell.column() == VariableModel::CurrentColumn;
    if (!state || (isCurrent && !m_values->areThere()))
        return;
    const TaskVariable &variable = state->variable;
    const QPersistentModelIndex place(cell);
    ValueSetter setter;
    if (!isCurrent || m_values->mayChange())
        setter = [this, place](const QVariant &value) { return m_model->setValue(place, value); };
    const QString title =
        isCurrent ? tr("%1 — 当前值").arg(variable.name) : tr("%1 — 初值").arg(variable.name);
    const QVariant value = m_model->value(cell);
    ValueDialog *dialog = nullptr;
    if (variable.type == VarType::List || variable.type == VarType::Table)
        dialog = new ListGrid(title, variable.type, value, setter, this);
    else if (variable.type == VarType::String)
        dialog = new TextViewer(title, value.toString(), setter, this);
    if (dialog)
        dialog->open();
    else if (setter)
        m_table->begin(cell);
}

QVector<int> VariablesPanel::selectedIds() const
{
    QVector<int> ids;
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        ids.append(m_model->idAt(row.row()));
    return ids;
}

void VariablesPanel::insert(const QString &text, int row, const TaskVariable &variable)
{
    const VariableState state{newStateId(), variable};
    m_bench.document.change(text, m_bench.document.state().withVariable(row, state),
                            {0, {}, state.id});
    goTo({0, {}, state.id});
}

bool VariablesPanel::goTo(const EditPlace &place)
{
    const int row = m_model->rowOfId(place.variable);
    if (place.variable == 0 || row < 0)
        return false;
    const int column = qMax(0, m_table->currentIndex().column());
    m_table->setCurrentIndex(m_model->index(row, column));
    m_table->scrollTo(m_table->currentIndex());
    return true;
}

void VariablesPanel::remark(const QString &text)
{
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Shades::of(colors).warning);
    m_remark->setPalette(colors);
    m_remark->setText(text);
    m_remark->setVisible(!text.isEmpty());
}
