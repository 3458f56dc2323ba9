#include "refhost/workbench/editor/VariableItemDelegate.h"

#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/values/TypeWord.h"
#include "refhost/workbench/values/VisibleText.h"

#include <QPainter>

namespace {

constexpr int nameUnits = 60;

QString typeOf(const QModelIndex &index)
{
    return typeWord(static_cast<VarType>(index.data(VariableItemDelegate::TypeRole).toInt()));
}

} // namespace

void VariableItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const int gap = option.fontMetrics.averageCharWidth();
    painter->save();
    painter->setFont(option.font);
    painter->setPen(Shades::quietIn(option));
    painter->drawText(option.rect.adjusted(gap, 0, -gap, 0), Qt::AlignRight | Qt::AlignVCenter,
                      typeOf(index));
    painter->restore();
}

QSize VariableItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    const int gap = option.fontMetrics.averageCharWidth();
    const int typeWidth = option.fontMetrics.horizontalAdvance(typeOf(index));
    return {size.width() + typeWidth + 4 * gap, size.height() + gap / 2};
}

void VariableItemDelegate::initStyleOption(QStyleOptionViewItem *option,
                                           const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = visibleText(option->text, nameUnits);
}
