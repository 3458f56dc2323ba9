#include "refhost/workbench/catalog/CatalogPanel.h"

#include "refhost/workbench/catalog/CatalogDelegate.h"
#include "refhost/workbench/catalog/CatalogFilter.h"
#include "refhost/workbench/catalog/CatalogModel.h"
#include "refhost/workbench/edits/StepEdits.h"
#include "refhost/workbench/look/EmptyHint.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QClipboard>
#include <QDockWidget>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSignalBlocker>
#include <QTreeView>
#include <QVBoxLayout>

CatalogPanel::CatalogPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_model(new CatalogModel(bench.library, this))
    , m_rows(new CatalogFilter(this))
    , m_filter(new QLineEdit(this))
    , m_tree(new QTreeView(this))
{
    m_rows->setSourceModel(m_model);
    createFilter();
    createTree();
    auto *const layout = new QVBoxLayout(this);
    const int gap = fontMetrics().height() / 4;
    layout->setContentsMargins(0, gap, 0, 0);
    layout->setSpacing(gap);
    layout->addWidget(m_filter);
    layout->addWidget(m_tree);
    setFocusProxy(m_filter);
    connectModel();
    restore();
}

void CatalogPanel::createFilter()
{
    m_filter->setObjectName(QStringLiteral("catalog.filter"));
    m_filter->setAccessibleName(tr("筛选操作"));
    m_filter->setPlaceholderText(tr("筛选操作"));
    m_filter->setClearButtonEnabled(true);
    m_filter->addAction(symbolIcon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &CatalogPanel::setFilter);
}

void CatalogPanel::createTree()
{
    m_tree->setObjectName(QStringLiteral("catalog.tree"));
    m_tree->setAccessibleName(tr("操作"));
    m_tree->setModel(m_rows);
    m_tree->setItemDelegate(new CatalogDelegate(m_tree));
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setDragDropMode(QAbstractItemView::DragOnly);
    m_tree->setDefaultDropAction(Qt::CopyAction);
    m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tree->setTextElideMode(Qt::ElideRight);
    m_tree->setIndentation(fontMetrics().height());
    const int icon = fontMetrics().height() * 5 / 4;
    m_tree->setIconSize({icon, icon});
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->installEventFilter(this);
    auto *const hint = new EmptyHint({}, *m_rows, *m_tree);
    hint->setObjectName(QStringLiteral("catalog.hint"));
    connect(m_tree, &QTreeView::doubleClicked, this, &CatalogPanel::add);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &CatalogPanel::showMenu);
}

void CatalogPanel::connectModel()
{
    connect(m_tree, &QTreeView::expanded, this,
            [this](const QModelIndex &group) { noteExpansion(group, true); });
    connect(m_tree, &QTreeView::collapsed, this,
            [this](const QModelIndex &group) { noteExpansion(group, false); });
    connect(m_model, &CatalogModel::aboutToRebuild, this, &CatalogPanel::remember);
    connect(m_model, &CatalogModel::rebuilt, this, &CatalogPanel::restore);
}

void CatalogPanel::focusFilter()
{
    if (auto *const dock = qobject_cast<QDockWidget *>(parentWidget())) {
        dock->show();
        dock->raise();
    }
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

bool CatalogPanel::eventFilter(QObject *watched, QEvent *event)
{
    // The menu key is for the current row, wherever the mouse is.
    if (watched == m_tree && event->type() == QEvent::ContextMenu) {
        showMenu(m_tree->visualRect(m_tree->currentIndex()).center());
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (watched == m_filter ? filterKey(key) : treeKey(key))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

/// Whether the key means something besides editing the filter.
bool CatalogPanel::filterKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        add(m_rows->firstMatch());
        return true;
    case Qt::Key_Down:
        m_tree->setFocus(Qt::TabFocusReason);
        if (!m_tree->currentIndex().isValid())
            m_tree->setCurrentIndex(m_rows->index(0, 0));
        return true;
    case Qt::Key_Escape:
        if (m_filter->text().isEmpty())
            return false;
        m_filter->clear();
        return true;
    default:
        return false;
    }
}

bool CatalogPanel::treeKey(int key)
{
    const QModelIndex current = m_tree->currentIndex();
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_rows->hasChildren(current))
            m_tree->setExpanded(current, !m_tree->isExpanded(current));
        add(current);
        return true;
    case Qt::Key_Up:
        if (current.isValid() && current != m_rows->index(0, 0))
            return false;
        m_filter->setFocus(Qt::BacktabFocusReason);
        return true;
    default:
        return false;
    }
}

void CatalogPanel::setFilter(const QString &text)
{
    m_rows->setText(text);
    showMatches();
}

/// All groups are open while there is a filter; without one those are that the user left open.
void CatalogPanel::showMatches()
{
    const QSignalBlocker blocker(m_tree);
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        const QModelIndex group = m_rows->index(row, 0);
        const bool isClosed = m_collapsed.contains(group.data().toString());
        m_tree->setExpanded(group, m_rows->isActive() || !isClosed);
    }
    if (m_rows->isActive())
        m_tree->setCurrentIndex(m_rows->firstMatch());
    showHint();
}

void CatalogPanel::showHint()
{
    auto *const hint = m_tree->findChild<EmptyHint *>(QStringLiteral("catalog.hint"));
    hint->setText(m_rows->isActive() ? tr("没有匹配的操作") : tr("没有加载任何插件"));
}

void CatalogPanel::noteExpansion(const QModelIndex &group, bool isExpanded)
{
    if (m_rows->isActive())
        return;
    if (isExpanded)
        m_collapsed.remove(group.data().toString());
    else
        m_collapsed.insert(group.data().toString());
}

void CatalogPanel::remember()
{
    m_current = m_tree->currentIndex().data(CatalogRole::TypeId).toString();
}

void CatalogPanel::restore()
{
    showMatches();
    const QModelIndex current = indexOf(m_current);
    // Going to a row would open its group.
    if (current.isValid() && m_tree->isExpanded(current.parent()))
        m_tree->setCurrentIndex(current);
}

QModelIndex CatalogPanel::indexOf(const QString &typeId) const
{
    if (typeId.isEmpty() || m_rows->rowCount() == 0)
        return {};
    return m_rows
        ->match(m_rows->index(0, 0), CatalogRole::TypeId, typeId, 1,
                Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive)
        .value(0);
}

/// Adds a step behind the current one, where the row is that of an operation.
void CatalogPanel::add(const QModelIndex &index)
{
    const StepEdits edits(m_bench);
    edits.add(index.data(CatalogRole::TypeId).toString(), edits.rowBehindCurrent());
}

void CatalogPanel::showMenu(const QPoint &position)
{
    const QModelIndex index = m_tree->indexAt(position);
    const QString reason = index.data(CatalogRole::Reason).toString();
    auto *const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("catalog.menu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!index.data(CatalogRole::TypeId).toString().isEmpty()) {
        menu->addAction(symbolIcon(QStringLiteral("add")), tr("添加步骤(&A)"), this,
                        [this, row = QPersistentModelIndex(index)] { add(row); });
    }
    if (!reason.isEmpty()) {
        menu->addAction(symbolIcon(QStringLiteral("copy")), tr("复制原因(&C)"), this,
                        [reason] { QGuiApplication::clipboard()->setText(reason); });
    }
    if (menu->isEmpty())
        delete menu;
    else
        menu->popup(m_tree->viewport()->mapToGlobal(position));
}
