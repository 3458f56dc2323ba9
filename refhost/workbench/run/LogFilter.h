#pragma once

#include <QSortFilterProxyModel>

/// Leaves only the warnings of the log when it is asked to.
class LogFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setWarningsOnly(bool warningsOnly);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    bool m_warningsOnly = false;
};
