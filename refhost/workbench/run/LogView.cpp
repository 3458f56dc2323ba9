#include "refhost/workbench/run/LogView.h"

#include "refhost/workbench/run/LogFilter.h"
#include "refhost/workbench/run/LogModel.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QPainter>

LogView::LogView(const LogModel &log, LogFilter &shown, QWidget *parent)
    : QTreeView(parent)
    , m_log(log)
    , m_shown(shown)
{
    setModel(&shown);
}

/// Spans kept by a view cost the more the longer the log is; these are only painted.
void LogView::drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                      const QModelIndex &index) const
{
    if (m_log.line(m_shown.mapToSource(index).row()).kind == LogLine::Kind::Step) {
        QTreeView::drawRow(painter, options, index);
        return;
    }
    QStyleOptionViewItem row = options;
    row.showDecorationSelected = true;
    row.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    row.state.setFlag(QStyle::State_HasFocus, hasFocus() && index.row() == currentIndex().row());
    row.rect.setLeft(-header()->offset());
    row.rect.setWidth(header()->length());
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &row, painter, this);
    const auto cell = [&](int column, int left, int right) {
        QStyleOptionViewItem option = row;
        option.rect.setLeft(left);
        option.rect.setRight(right);
        itemDelegate()->paint(painter, option, index.siblingAtColumn(column));
    };
    const int textLeft = columnViewportPosition(LogModel::TextColumn);
    cell(LogModel::NumberColumn, row.rect.left(), textLeft - 1);
    cell(LogModel::TextColumn, textLeft, row.rect.right());
}

/// The keyboard comes in at the last line, which is the one in sight.
void LogView::focusInEvent(QFocusEvent *event)
{
    const int rows = model()->rowCount();
    if (rows > 0 && !currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
        selectionModel()->setCurrentIndex(model()->index(rows - 1, 0),
                                          QItemSelectionModel::NoUpdate);
    QTreeView::focusInEvent(event);
}
