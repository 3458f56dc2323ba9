#include "refhost/workbench/run/ShadeIconEngine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

ShadeIconEngine::ShadeIconEngine(const QIcon &shape, const QColor &color)
    : m_shape(shape)
    , m_color(color)
{
}

void ShadeIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                            QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
    picture.setDevicePixelRatio(1);
    painter->drawPixmap(rect, picture);
}

QPixmap ShadeIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    m_shape.paint(&painter, picture.rect(), Qt::AlignCenter, QIcon::Normal, state);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    const bool isSelected = mode == QIcon::Selected;
    const QPalette palette = QGuiApplication::palette();
    painter.fillRect(picture.rect(),
                     isSelected ? palette.color(QPalette::HighlightedText) : m_color);
    return picture;
}

QIconEngine *ShadeIconEngine::clone() const
{
    return new ShadeIconEngine(*this);
}
