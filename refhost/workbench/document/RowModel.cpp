#include "refhost/workbench/document/RowModel.h"

#include <QSet>

namespace {

QSet<int> setOf(const QVector<int> &ids)
{
    return {ids.cbegin(), ids.cend()};
}

} // namespace

int RowModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_ids.size();
}

void RowModel::setIds(const QVector<int> &ids)
{
    if (ids == m_ids)
        return;
    removeOthers(ids);
    reorder(ids);
    insertNew(ids);
}

void RowModel::announceAll()
{
    if (!m_ids.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(m_ids.size() - 1, columnCount() - 1));
}

void RowModel::removeOthers(const QVector<int> &ids)
{
    const QSet<int> kept = setOf(ids);
    for (int row = m_ids.size() - 1; row >= 0; --row) {
        if (kept.contains(m_ids.at(row)))
            continue;
        beginRemoveRows({}, row, row);
        m_ids.remove(row);
        endRemoveRows();
    }
}

/// Brings the rows that stay into the order they have in `ids`.
void RowModel::reorder(const QVector<int> &ids)
{
    const QSet<int> present = setOf(m_ids);
    QVector<int> ordered;
    for (const int id : ids) {
        if (present.contains(id))
            ordered.append(id);
    }
    if (ordered == m_ids)
        return;
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &cell : before)
        after.append(index(ordered.indexOf(m_ids.at(cell.row())), cell.column()));
    m_ids = ordered;
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

void RowModel::insertNew(const QVector<int> &ids)
{
    for (int row = 0; row < ids.size(); ++row) {
        if (row < m_ids.size() && m_ids.at(row) == ids.at(row))
            continue;
        beginInsertRows({}, row, row);
        m_ids.insert(row, ids.at(row));
        endInsertRows();
    }
}
