#include "refhost/workbench/variables/ListGrid.h"

#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/values/NumberText.h"
#include "refhost/workbench/variables/CellKind.h"
#include "refhost/workbench/variables/CellTable.h"
#include "refhost/workbench/variables/GridModel.h"
#include "refhost/workbench/variables/SpreadsheetText.h"
#include "refhost/workbench/variables/TextViewer.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

#include <set>

namespace {

constexpr int columnWidth = 18; ///< in widths of "x"

} // namespace

ListGrid::ListGrid(const QString &title, VarType type, const QVariant &value, ValueSetter setter,
                   QWidget *parent)
    : ValueDialog(title, std::move(setter), parent)
    , m_model(new GridModel(type, value.toList(), isReadOnly(), this))
    , m_table(new CellTable(this))
    , m_kind(new QComboBox(this))
    , m_size(new QLabel(this))
{
    setObjectName(QStringLiteral("grid"));
    m_table->setObjectName(QStringLiteral("grid.table"));
    m_table->setAccessibleName(title);
    m_table->setRules(m_model, m_model);
    m_table->horizontalHeader()->setDefaultSectionSize(fontMetrics().averageCharWidth() *
                                                       columnWidth);
    m_table->horizontalHeader()->setStretchLastSection(type == VarType::List);
    content()->addWidget(createBar());
    content()->addWidget(m_table, 1);
    content()->addLayout(createFoot());
    connect(m_table, &CellTable::openWanted, this, &ListGrid::openCell);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ListGrid::showState);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &ListGrid::showState);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &ListGrid::showState);
    connect(m_model, &GridModel::rebuilt, this, &ListGrid::showState);
    goTo(0, 0);
    m_table->setFocus();
    showState();
}

QVariant ListGrid::value() const
{
    return m_model->rows();
}

bool ListGrid::isModified() const
{
    return m_model->isModified();
}

void ListGrid::copy()
{
    const auto block = m_model->block(m_table->selectionModel()->selection());
    if (block.isEmpty())
        return;
    const bool isOne = block.size() == 1 && block.constFirst().size() == 1;
    QGuiApplication::clipboard()->setText(isOne ? block.constFirst().constFirst()
                                                : textOfCells(block));
}

void ListGrid::paste()
{
    const QModelIndex corner = m_table->currentIndex();
    const auto block = cellsOfText(QGuiApplication::clipboard()->text());
    if (block.isEmpty())
        return;
    const int row = qMax(0, corner.row());
    const int column = qMax(0, corner.column());
    m_model->paste(corner, block);
    goTo(row, column);
}

bool ListGrid::commitEditing()
{
    return m_table->commitEditing();
}

QToolBar *ListGrid::createBar()
{
    auto *const bar = new QToolBar(this);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    if (!isReadOnly()) {
        addRowActions(*bar);
        if (m_model->isTable())
            addColumnActions(*bar);
        bar->addSeparator();
    }
    addAction(bar, QStringLiteral("grid.copy"), QStringLiteral("copy"), tr("复制"),
              QKeySequence::Copy, [this] { copy(); });
    if (!isReadOnly())
        addCellActions(*bar);
    addAction(nullptr, QStringLiteral("grid.open"), QStringLiteral("edit"), tr("打开单元格…"),
              Qt::Key_F4, [this] { openCell(m_table->currentIndex()); });
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    return bar;
}

template <typename Edit>
void ListGrid::addAction(QToolBar *bar, const QString &name, const QString &symbol,
                         const QString &text, const QKeySequence &shortcut, Edit edit)
{
    auto *const action = new QAction(symbolIcon(symbol), text, this);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [this, edit] {
        if (m_table->commitEditing())
            edit();
    });
    // Of these the picture says enough.
    if (symbol != QLatin1String("add") && symbol != QLatin1String("table"))
        action->setPriority(QAction::LowPriority);
    m_table->addAction(action);
    if (bar)
        bar->addAction(action);
}

void ListGrid::addRowActions(QToolBar &bar)
{
    addAction(&bar, QStringLiteral("grid.addRow"), QStringLiteral("add"), tr("添加行"),
              int(Qt::CTRL) + Qt::Key_Insert, [this] { addRow(); });
    addAction(&bar, QStringLiteral("grid.removeRows"), QStringLiteral("delete"), tr("删除行"),
              int(Qt::CTRL) + Qt::Key_Delete, [this] {
                  const QModelIndex current = m_table->currentIndex();
                  m_model->removeRows(selectedRows());
                  goTo(current.row(), current.column());
              });
    addAction(&bar, QStringLiteral("grid.up"), QStringLiteral("up"), tr("上移行"),
              int(Qt::ALT) + Qt::Key_Up, [this] { moveRows(-1); });
    addAction(&bar, QStringLiteral("grid.down"), QStringLiteral("down"), tr("下移行"),
              int(Qt::ALT) + Qt::Key_Down, [this] { moveRows(1); });
}

void ListGrid::addColumnActions(QToolBar &bar)
{
    bar.addSeparator();
    addAction(&bar, QStringLiteral("grid.addColumn"), QStringLiteral("table"), tr("添加列"), {},
              [this] { addColumn(); });
    addAction(nullptr, QStringLiteral("grid.removeColumns"), QStringLiteral("delete"), tr("删除列"),
              {}, [this] {
                  const QModelIndex current = m_table->currentIndex();
                  m_model->removeColumns(selectedColumns());
                  goTo(current.row(), current.column());
              });
    addAction(nullptr, QStringLiteral("grid.cutOff"), QStringLiteral("cut"), tr("从此格起截去本行"),
              {}, [this] { m_model->cutOff(m_table->currentIndex()); });
}

void ListGrid::addCellActions(QToolBar &bar)
{
    addAction(&bar, QStringLiteral("grid.paste"), QStringLiteral("paste"), tr("粘贴"),
              QKeySequence::Paste, [this] { paste(); });
    addAction(&bar, QStringLiteral("grid.undo"), QStringLiteral("undo"), tr("撤销"),
              QKeySequence::Undo, [this] {
                  const QModelIndex current = m_table->currentIndex();
                  m_model->undo();
                  goTo(current.row(), current.column());
              });
    addAction(&bar, QStringLiteral("grid.redo"), QStringLiteral("redo"), tr("重做"),
              QKeySequence::Redo, [this] {
                  const QModelIndex current = m_table->currentIndex();
                  m_model->redo();
                  goTo(current.row(), current.column());
              });
    addAction(nullptr, QStringLiteral("grid.clear"), QStringLiteral("delete"), tr("清空单元格"),
              QKeySequence::Delete,
              [this] { m_model->clear(m_table->selectionModel()->selection()); });
}

QLayout *ListGrid::createFoot()
{
    m_kind->setObjectName(QStringLiteral("grid.kind"));
    m_kind->addItems(cellKindLabels());
    m_kind->setToolTip(tr("所选单元格的类型"));
    auto *const label = new QLabel(tr("单元格类型(&K)"), this);
    label->setBuddy(m_kind);
    label->setVisible(!isReadOnly());
    m_kind->setVisible(!isReadOnly());
    connect(m_kind, qOverload<int>(&QComboBox::activated), this, &ListGrid::setKind);
    m_size->setObjectName(QStringLiteral("grid.size"));
    auto *const foot = new QHBoxLayout;
    foot->addWidget(label);
    foot->addWidget(m_kind);
    foot->addStretch(1);
    foot->addWidget(m_size);
    return foot;
}

void ListGrid::addRow()
{
    const QModelIndex current = m_table->currentIndex();
    const int row = current.isValid() ? current.row() + 1 : m_model->rowCount();
    m_model->insertRow(row);
    goTo(row, 0);
}

void ListGrid::addColumn()
{
    const QModelIndex current = m_table->currentIndex();
    const int column = current.isValid() ? current.column() + 1 : m_model->columnCount();
    m_model->insertColumn(column);
    goTo(current.row(), column);
}

void ListGrid::moveRows(int by)
{
    const QModelIndex current = m_table->currentIndex();
    const QVector<int> rows = selectedRows();
    const int column = current.column();
    const int first = current.row();
    if (!m_model->moveRows(rows, by))
        return;
    goTo(first + by, column);
    QItemSelection moved;
    for (const int row : rows) {
        const QModelIndex begin = m_model->index(row + by, 0);
        moved.select(begin, begin.siblingAtColumn(m_model->columnCount() - 1));
    }
    if (rows.size() > 1)
        m_table->selectionModel()->select(moved, QItemSelectionModel::ClearAndSelect);
}

void ListGrid::openCell(const QModelIndex &cell)
{
    const CellKind kind = cellKindOf(m_model->value(cell));
    const bool isText = kind == CellKind::Text || !m_model->isThere(cell);
    if (!cell.isValid() || (!isText && kind != CellKind::List))
        return;
    const QPersistentModelIndex place(cell);
    const auto setter = [this, place](const QVariant &value) {
        if (!place.isValid())
            return tr("这个单元格已经不存在。");
        m_model->setValue(place, value);
        return QString();
    };
    const QString title = tr("%1 — 第 %2 行").arg(windowTitle(), groupedNumber(cell.row() + 1));
    const ValueSetter usable = isReadOnly() ? ValueSetter() : ValueSetter(setter);
    ValueDialog *dialog = nullptr;
    if (isText)
        dialog = new TextViewer(title, m_model->value(cell).toString(), usable, this);
    else
        dialog = new ListGrid(title, VarType::List, m_model->value(cell), usable, this);
    dialog->open();
}

void ListGrid::setKind(int kind)
{
    if (m_table->commitEditing())
        m_model->setKind(m_table->selectionModel()->selection(), static_cast<CellKind>(kind));
    showState();
}

QVector<int> ListGrid::selectedRows() const
{
    std::set<int> rows;
    for (const QItemSelectionRange &range : m_table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(row);
    }
    return {rows.cbegin(), rows.cend()};
}

QVector<int> ListGrid::selectedColumns() const
{
    std::set<int> columns;
    for (const QItemSelectionRange &range : m_table->selectionModel()->selection()) {
        for (int column = range.left(); column <= range.right(); ++column)
            columns.insert(column);
    }
    return {columns.cbegin(), columns.cend()};
}

void ListGrid::goTo(int row, int column)
{
    const QModelIndex cell = m_model->index(qBound(0, row, m_model->rowCount() - 1),
                                            qBound(0, column, m_model->columnCount() - 1));
    m_table->setCurrentIndex(cell);
}

void ListGrid::showState()
{
    const QModelIndex current = m_table->currentIndex();
    const bool isThere = m_model->isThere(current);
    m_kind->setEnabled(isThere);
    m_kind->setCurrentIndex(isThere ? static_cast<int>(cellKindOf(m_model->value(current))) : -1);
    const QString rows = groupedNumber(m_model->rowCount());
    m_size->setText(m_model->isTable()
                        ? tr("%1 行，%2 列").arg(rows, groupedNumber(m_model->columnCount()))
                        : tr("%1 项").arg(rows));
}
