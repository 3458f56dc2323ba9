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

    /// Goes on with the gutter below the last row, from `top` on.
    static void paintEmptyGutter(QWidget &viewport, int top);

    /// The tooltip at a place in a row: what a badge stands for, or else the sentence of the step.
    static QString toolTipAt(const QPoint &position, const QStyleOptionViewItem &option,
                             const QModelIndex &index);

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    static QString toolTipOf(bool isOfRun, const QStringList &lines);
};
