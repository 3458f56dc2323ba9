#pragma once

#include <QStyledItemDelegate>

/// Draws a row of the catalogue: icon, text, and in a quiet colour what is worth knowing besides.
class CatalogDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
