#pragma once

#include <QColor>
#include <QIcon>
#include <QIconEngine>

/// Draws the shape of another icon in one colour; where it is selected, in that of selected text.
class ShadeIconEngine : public QIconEngine
{
public:
    ShadeIconEngine(const QIcon &shape, const QColor &color);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    QIcon m_shape;
    QColor m_color;
};
