#pragma once

#include <QStyledItemDelegate>

/// Draws the name of a variable with its type at the right.
class VariableItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The type of the variable, as a number.
    static constexpr int TypeRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
