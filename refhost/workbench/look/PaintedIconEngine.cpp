#include "refhost/workbench/look/PaintedIconEngine.h"

#include <QPainter>
#include <QPixmap>

QPixmap PaintedIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
}
