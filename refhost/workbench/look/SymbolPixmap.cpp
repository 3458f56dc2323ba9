#include "refhost/workbench/look/SymbolPixmap.h"

#include "refhost/workbench/look/SymbolIcon.h"

#include <QPainter>
#include <QPixmapCache>

namespace {

QPixmap drawn(const QString &name, const QColor &color, int side, qreal ratio)
{
    const int pixels = qMax(1, qRound(side * ratio));
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    symbolIcon(name, color).paint(&painter, pixmap.rect());
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QPixmap symbolPixmap(const QString &name, const QColor &color, int side, qreal ratio)
{
    const QString key = QStringLiteral("symbol %1 %2 %3 %4")
                            .arg(name, color.name(QColor::HexArgb))
                            .arg(side)
                            .arg(ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = drawn(name, color, side, ratio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}
