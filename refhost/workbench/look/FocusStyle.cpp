#include "refhost/workbench/look/FocusStyle.h"

#include <QAbstractItemView>
#include <QStyleOption>

FocusStyle::FocusStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    const auto *const item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
    const bool isView = qobject_cast<const QAbstractItemView *>(widget);
    // The list of a combo box is a window of its own.
    if (!item || !isView || widget->hasFocus() || widget->window()->windowType() == Qt::Popup) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QStyleOptionViewItem quiet(*item);
    quiet.state.setFlag(State_Active, false);
    QProxyStyle::drawPrimitive(element, &quiet, painter, widget);
}
