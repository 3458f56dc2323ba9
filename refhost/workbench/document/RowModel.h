#pragma once

#include <QAbstractTableModel>
#include <QVector>

/// A table whose rows are known by identifiers. When the identifiers become others, views are told
/// which rows went, moved and came, so that selections and the current row stay with what they
/// were on.
class RowModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;

    /// The identifier of a row, 0 when there is no such row.
    int idAt(int row) const { return m_ids.value(row); }
    /// The row of an identifier, -1 when there is none.
    int rowOfId(int id) const { return m_ids.indexOf(id); }

protected:
    /// Makes `ids` the rows. What is in the rows that stay is not looked at.
    void setIds(const QVector<int> &ids);

    /// Tells the views that every cell may have changed.
    void announceAll();

private:
    void removeOthers(const QVector<int> &ids);
    void reorder(const QVector<int> &ids);
    void insertNew(const QVector<int> &ids);

    QVector<int> m_ids;
};
