#include "refhost/workbench/variables/GridModel.h"

#include "refhost/engine/ValueType.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/values/NumberText.h"
#include "refhost/workbench/values/ValuePreview.h"
#include "refhost/workbench/variables/ValueInput.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace {

constexpr int rowsForUndo = 4000000; ///< in all states that are kept together
constexpr int statesForUndo = 200;

QVariant emptyText()
{
    return QString(QLatin1String(""));
}

const QVariantList &listIn(const QVariant &value)
{
    return *static_cast<const QVariantList *>(value.constData());
}

bool isTruth(const QVariant &value)
{
    return value.userType() == QMetaType::Bool;
}

VarType previewType(const QVariant &value)
{
    return value.userType() == QMetaType::QVariantList ? VarType::List : VarType::String;
}

} // namespace

GridModel::GridModel(VarType type, const QVariantList &rows, bool readOnly, QObject *parent)
    : QAbstractTableModel(parent)
    // What a step wrote need not be what the type says.
    , m_type(fitsType(rows, type) ? type : VarType::List)
    , m_rows(rows)
    , m_isReadOnly(readOnly)
{
    m_columns = longestRow();
}

int GridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int GridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (orientation == Qt::Horizontal && !isTable())
        return tr("值");
    return groupedNumber(section + 1);
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    const bool isFixed =
        m_isReadOnly || (isThere(index) && cellKindOf(value(index)) == CellKind::Other);
    return QAbstractTableModel::flags(index) | (isFixed ? Qt::NoItemFlags : Qt::ItemIsEditable);
}

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (!isThere(index)) {
        const Shades shades = Shades::of(QGuiApplication::palette());
        return role == Qt::BackgroundRole ? QVariant(QBrush(shades.line, Qt::BDiagPattern))
                                          : QVariant();
    }
    const QVariant shown = value(index);
    switch (role) {
    case Qt::DisplayRole: {
        const bool isBlank = shown == emptyText();
        return isBlank ? QString() : previewOf(shown, previewType(shown)).text;
    }
    case Qt::ToolTipRole:
        return shownToolTip(previewOf(shown, previewType(shown)).toString());
    case Qt::EditRole:
        return inputText(shown);
    case DetailRole:
        return detail(index);
    case ChoicesRole:
        return isTruth(shown) ? QStringList{QStringLiteral("false"), QStringLiteral("true")}
                              : QStringList();
    case OpensRole:
        return needsViewer(shown, previewType(shown));
    default:
        return {};
    }
}

bool GridModel::setData(const QModelIndex &index, const QVariant &input, int role)
{
    if (role != Qt::EditRole || !refusal(index, input.toString()).isEmpty())
        return false;
    const CellKind kind = isThere(index) ? cellKindOf(value(index)) : CellKind::Text;
    setValue(index, cellFromInput(input.toString(), kind).value());
    return true;
}

QString GridModel::refusal(const QModelIndex &cell, const QString &input) const
{
    if (!isThere(cell))
        return {};
    const Result<QVariant> read = cellFromInput(input, cellKindOf(value(cell)));
    return read ? QString() : read.problem().message;
}

bool GridModel::isThere(const QModelIndex &cell) const
{
    return cell.isValid() && cell.row() < m_rows.size() && cell.column() < sizeOf(cell.row());
}

QVariant GridModel::value(const QModelIndex &cell) const
{
    return isThere(cell) ? at(cell.row(), cell.column()) : QVariant();
}

void GridModel::setValue(const QModelIndex &cell, const QVariant &value)
{
    keepForUndo();
    putAt(m_rows, cell.row(), cell.column(), value);
    Q_EMIT dataChanged(index(cell.row(), 0), index(cell.row(), m_columns - 1));
}

void GridModel::insertRow(int row)
{
    keepForUndo();
    QVariantList cells;
    for (int i = 0; i < m_columns; ++i)
        cells.append(emptyText());
    beginInsertRows({}, row, row);
    m_rows.insert(row, isTable() ? QVariant(cells) : emptyText());
    endInsertRows();
}

void GridModel::removeRows(const QVector<int> &rows)
{
    QVector<int> sorted = rows;
    std::sort(sorted.begin(), sorted.end());
    QVariantList left;
    left.reserve(m_rows.size());
    for (int row = 0; row < m_rows.size(); ++row) {
        if (!std::binary_search(sorted.cbegin(), sorted.cend(), row))
            left.append(m_rows.at(row));
    }
    keepForUndo();
    rebuild(left, m_columns);
}

bool GridModel::moveRows(const QVector<int> &rows, int by)
{
    QVector<int> sorted = rows;
    std::sort(sorted.begin(), sorted.end());
    const bool isUp = by < 0;
    if (sorted.isEmpty() || (isUp ? sorted.first() == 0 : sorted.last() == m_rows.size() - 1))
        return false;
    if (!isUp)
        std::reverse(sorted.begin(), sorted.end());
    QVariantList moved = m_rows;
    for (const int row : qAsConst(sorted))
        moved.swapItemsAt(row, row + by);
    keepForUndo();
    rebuild(moved, m_columns);
    return true;
}

void GridModel::insertColumn(int column)
{
    QVariantList wider = m_rows;
    for (QVariant &row : wider) {
        QVariantList cells = row.toList();
        if (cells.size() < column)
            continue;
        cells.insert(column, emptyText());
        row = cells;
    }
    keepForUndo();
    rebuild(wider, m_columns + 1);
}

void GridModel::removeColumns(const QVector<int> &columns)
{
    QVariantList narrower = m_rows;
    for (QVariant &row : narrower) {
        const QVariantList cells = row.toList();
        QVariantList left;
        for (int column = 0; column < cells.size(); ++column) {
            if (!columns.contains(column))
                left.append(cells.at(column));
        }
        row = left;
    }
    keepForUndo();
    rebuild(narrower, qMax(1, m_columns - columns.size()));
}

void GridModel::cutOff(const QModelIndex &cell)
{
    if (!isTable() || !isThere(cell))
        return;
    keepForUndo();
    m_rows[cell.row()] = listIn(m_rows.at(cell.row())).mid(0, cell.column());
    Q_EMIT dataChanged(index(cell.row(), 0), index(cell.row(), m_columns - 1));
}

void GridModel::setKind(const QItemSelection &cells, CellKind kind)
{
    QVariantList changed = m_rows;
    for (const QItemSelectionRange &range : cells) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= qMin(range.right(), sizeOf(row) - 1);
                 ++column)
                putAt(changed, row, column, convertedCell(at(row, column), kind));
        }
    }
    keepForUndo();
    m_rows = changed;
    Q_EMIT dataChanged(index(0, 0), index(m_rows.size() - 1, m_columns - 1));
}

void GridModel::clear(const QItemSelection &cells)
{
    QVariantList changed = m_rows;
    for (const QItemSelectionRange &range : cells) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= qMin(range.right(), sizeOf(row) - 1);
                 ++column)
                putAt(changed, row, column,
                      convertedCell(emptyText(), cellKindOf(at(row, column))));
        }
    }
    keepForUndo();
    m_rows = changed;
    Q_EMIT dataChanged(index(0, 0), index(m_rows.size() - 1, m_columns - 1));
}

void GridModel::paste(const QModelIndex &corner, const QVector<QStringList> &block)
{
    const int top = qMax(0, corner.row());
    const int left = qMax(0, corner.column());
    QVariantList changed = m_rows;
    int columns = m_columns;
    for (int i = 0; i < block.size(); ++i) {
        // A list has one column; what is beside it has no place there.
        const int width = isTable() ? block.at(i).size() : 1;
        while (changed.size() <= top + i)
            changed.append(isTable() ? QVariant(QVariantList()) : emptyText());
        for (int k = 0; k < width; ++k)
            putAt(changed, top + i, left + k, pasted(top + i, left + k, block.at(i).at(k)));
        columns = qMax(columns, left + width);
    }
    keepForUndo();
    rebuild(changed, columns);
}

QVector<QStringList> GridModel::block(const QItemSelection &cells) const
{
    if (cells.isEmpty())
        return {};
    QRect all;
    for (const QItemSelectionRange &range : cells)
        all |= QRect(QPoint(range.left(), range.top()), QPoint(range.right(), range.bottom()));
    QStringList empty;
    for (int i = 0; i < all.width(); ++i)
        empty.append(QString());
    QVector<QStringList> block(all.height(), empty);
    for (const QItemSelectionRange &range : cells) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= qMin(range.right(), sizeOf(row) - 1);
                 ++column)
                block[row - all.top()][column - all.left()] = cellText(at(row, column));
        }
    }
    return block;
}

void GridModel::undo()
{
    if (m_undo.isEmpty())
        return;
    m_redo.append({m_rows, m_columns});
    const Snapshot before = m_undo.takeLast();
    rebuild(before.rows, before.columns);
}

void GridModel::redo()
{
    if (m_redo.isEmpty())
        return;
    m_undo.append({m_rows, m_columns});
    const Snapshot after = m_redo.takeLast();
    rebuild(after.rows, after.columns);
}

void GridModel::put(QVariantList &row, int column, const QVariant &value)
{
    while (row.size() <= column)
        row.append(emptyText());
    row[column] = value;
}

void GridModel::putAt(QVariantList &rows, int row, int column, const QVariant &value) const
{
    if (!isTable()) {
        rows[row] = value;
        return;
    }
    QVariantList cells = rows.at(row).toList();
    rows[row] = QVariant(); // so that the cells are not copied
    put(cells, column, value);
    rows[row] = cells;
}

QVariant GridModel::at(int row, int column) const
{
    return isTable() ? listIn(m_rows.at(row)).at(column) : m_rows.at(row);
}

int GridModel::sizeOf(int row) const
{
    return isTable() ? listIn(m_rows.at(row)).size() : 1;
}

int GridModel::longestRow() const
{
    int longest = 1;
    for (int row = 0; row < m_rows.size() && isTable(); ++row)
        longest = qMax(longest, sizeOf(row));
    return longest;
}

QVariant GridModel::pasted(int row, int column, const QString &text) const
{
    if (row < m_rows.size() && column < sizeOf(row)) {
        const CellKind kind = cellKindOf(at(row, column));
        const Result<QVariant> read = cellFromInput(text, kind);
        if (read && !text.isEmpty())
            return read.value();
    }
    return text;
}

void GridModel::keepForUndo()
{
    m_isModified = true;
    m_redo.clear();
    m_undo.append({m_rows, m_columns});
    const int kept = qBound(1, rowsForUndo / qMax(1, m_rows.size()), statesForUndo);
    if (m_undo.size() > kept)
        m_undo.remove(0, m_undo.size() - kept);
}

void GridModel::rebuild(const QVariantList &rows, int columns)
{
    beginResetModel();
    m_rows = rows;
    m_columns = qMax(columns, longestRow());
    endResetModel();
    Q_EMIT rebuilt();
}

QString GridModel::detail(const QModelIndex &index) const
{
    const QVariant shown = value(index);
    const CellKind kind = cellKindOf(shown);
    const QString size = previewOf(shown, previewType(shown)).detail;
    return kind == CellKind::Text || kind == CellKind::List ? size
                                                            : cellKindLabels().value(int(kind));
}
