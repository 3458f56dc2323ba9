#pragma once

#include "refhost/engine/check/Finding.h"

#include <QAbstractTableModel>

struct Workbench;

/// The findings of the check as a table.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NumberColumn, PlaceColumn, MessageColumn, ColumnCount };

    /// The workbench has to outlive the model.
    explicit FindingsModel(Workbench &bench, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    const Finding &finding(int row) const { return m_rows.at(row).finding; }
    /// The step a row is about, 0 for the task.
    int stepOf(int row) const { return m_rows.at(row).step; }

private:
    struct Row
    {
        Finding finding;
        int step = 0;
    };

    void update();
    QString cellText(const Row &row, int column) const;
    QString placeText(const Row &row) const;

    Workbench &m_bench;
    QVector<Row> m_rows;
};
