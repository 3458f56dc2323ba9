#pragma once

#include "refhost/workbench/run/LogLine.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>

/// The lines of the log as a table. When there are too many the oldest go.
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NumberColumn, TextColumn, WritesColumn, TimeColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    const LogLine &line(int row) const { return m_lines.at(row); }
    void append(const QVector<LogLine> &lines);
    void clear();

    /// The line as it is copied and saved.
    QString plainText(int row) const;

private:
    QString cellText(const LogLine &line, int column) const;
    QVariant decoration(const LogLine &line) const;
    QIcon iconOf(const Operation &operation) const;

    QVector<LogLine> m_lines;
    mutable QHash<QString, QIcon> m_icons; ///< by the resource and the name they are drawn from
};
