#include "refhost/workbench/catalog/CatalogDelegate.h"

#include "refhost/workbench/catalog/CatalogModel.h"
#include "refhost/workbench/look/Shades.h"

#include <QApplication>
#include <QPainter>

void CatalogDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const bool isGroup = !index.parent().isValid();
    if (isGroup)
        item.font.setBold(true);
    item.fontMetrics = QFontMetrics(item.font);
    const QStyle &style = option.widget ? *option.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, option.widget);
    const QString second = index.data(CatalogRole::Second).toString();
    if (second.isEmpty())
        return;
    QRect rest = style.subElementRect(QStyle::SE_ItemViewItemText, &item, option.widget);
    const int gap = item.fontMetrics.height() * 3 / 4;
    rest.setLeft(rest.left() + item.fontMetrics.horizontalAdvance(item.text) + gap);
    rest.setRight(option.rect.right() - gap / 2);
    if (rest.width() < 2 * item.fontMetrics.height())
        return;
    painter->save();
    painter->setFont(option.font);
    painter->setPen(Shades::quietIn(option));
    painter->drawText(rest, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(second, Qt::ElideRight, rest.width()));
    painter->restore();
}

QSize CatalogDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), qMax(size.height(), option.fontMetrics.height() * 7 / 4)};
}
