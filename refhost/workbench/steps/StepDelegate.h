#pragma once

#include <QStyledItemDelegate>

/// Draws a step in one line: breakpoint, number, icon, summary, badges for what is wrong with it
/// and the time it took.
class StepDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// The tooltip at a place in a row: what a badge stands for, or else the sentence of the step.
    static QString toolTipAt(const QPoint &position, const QStyleOptionViewItem &option,
                             const QModelIndex &index);

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};
