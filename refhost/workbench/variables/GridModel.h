#pragma once

#include "refhost/workbench/variables/CellKind.h"
#include "refhost/workbench/variables/CellRules.h"

#include "VarType.h"

#include <QAbstractTableModel>
#include <QItemSelection>
#include <QVariantList>
#include <QVector>

/// The elements of a list, or the rows of a table and their cells. Rows may be of different length:
/// a cell that is not there stays away until it is edited, and what is not edited keeps its type.
/// Every edit can be undone as long as the model lives.
class GridModel : public QAbstractTableModel, public CellRules
{
    Q_OBJECT

public:
    /// `type` is that of a list or a table, `rows` such a value.
    GridModel(VarType type, const QVariantList &rows, bool readOnly, QObject *parent = nullptr);

    const QVariantList &rows() const { return m_rows; }
    bool isTable() const { return m_type == VarType::Table; }
    bool isModified() const { return m_isModified; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &input, int role = Qt::EditRole) override;
    QString refusal(const QModelIndex &cell, const QString &input) const override;

    /// Whether the row reaches as far as the cell.
    bool isThere(const QModelIndex &cell) const;
    /// The element in a cell, invalid when it is not there.
    QVariant value(const QModelIndex &cell) const;
    /// Puts an element into a cell. Cells before it that are not there become empty texts.
    void setValue(const QModelIndex &cell, const QVariant &value);

    // Beside those of the base class, which take one row or column and a number of them.
    using QAbstractTableModel::moveRows;
    using QAbstractTableModel::removeColumns;
    using QAbstractTableModel::removeRows;

    /// A new row in front of the one at `row`: an empty text, in a table as many as there are
    /// columns.
    void insertRow(int row);
    void removeRows(const QVector<int> &rows);
    /// Moves the rows together by `by`, -1 or 1. False, and none is moved, when one of them is at
    /// the end.
    bool moveRows(const QVector<int> &rows, int by);
    /// A new column in front of the one at `column`, in the rows that reach as far.
    void insertColumn(int column);
    void removeColumns(const QVector<int> &columns);
    /// Takes the cell away and all behind it in its row.
    void cutOff(const QModelIndex &cell);

    /// Turns the cells into those of another kind, except for those that are not there.
    void setKind(const QItemSelection &cells, CellKind kind);
    /// Empties the cells.
    void clear(const QItemSelection &cells);
    /// Puts a block of cells from `corner` on, adding rows and columns. A cell keeps its kind where
    /// the text fits it and becomes a text otherwise.
    void paste(const QModelIndex &corner, const QVector<QStringList> &block);
    /// The cells from the first to the last of the selection; those not selected, or not there, are
    /// empty.
    QVector<QStringList> block(const QItemSelection &cells) const;

    void undo();
    void redo();

Q_SIGNALS:
    /// The whole table is another one; the selection is gone.
    void rebuilt();

private:
    static void put(QVariantList &row, int column, const QVariant &value);
    void putAt(QVariantList &rows, int row, int column, const QVariant &value) const;
    QVariant at(int row, int column) const;
    int sizeOf(int row) const;
    int longestRow() const;
    QVariant pasted(int row, int column, const QString &text) const;
    void keepForUndo();
    void rebuild(const QVariantList &rows, int columns);
    QString detail(const QModelIndex &index) const;

    /// All the rows at some time, and the columns that were shown.
    struct Snapshot
    {
        QVariantList rows;
        int columns = 0;
    };

    VarType m_type;
    QVariantList m_rows;
    int m_columns = 1;
    bool m_isReadOnly;
    bool m_isModified = false;
    QVector<Snapshot> m_undo;
    QVector<Snapshot> m_redo;
};
