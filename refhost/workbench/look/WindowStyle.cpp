#include "refhost/workbench/look/WindowStyle.h"

#include "refhost/workbench/look/Shades.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace {

void drawFrame(QPainter &painter, const QStyleOption &option)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

WindowStyle::WindowStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    const auto *const item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
    const bool isView = qobject_cast<const QAbstractItemView *>(widget);
    // The list of a combo box is a window of its own.
    if (!item || !isView || widget->hasFocus() || widget->window()->windowType() == Qt::Popup) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_IndicatorCheckBox && isDark(option->palette))
            drawFrame(*painter, *option);
        return;
    }
    QStyleOptionViewItem quiet(*item);
    quiet.state.setFlag(State_Active, false);
    QProxyStyle::drawPrimitive(element, &quiet, painter, widget);
}
