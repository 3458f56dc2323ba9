#include "refhost/workbench/run/LogFilter.h"

#include "refhost/workbench/run/LogModel.h"

void LogFilter::setWarningsOnly(bool warningsOnly)
{
    m_warningsOnly = warningsOnly;
    invalidateFilter();
}

bool LogFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    const auto *const log = qobject_cast<const LogModel *>(sourceModel());
    return !m_warningsOnly || !log || log->line(row).kind == LogLine::Kind::Warning;
}
