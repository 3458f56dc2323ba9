#pragma once

#include <QIconEngine>

/// An engine whose pictures are what it paints on nothing.
class PaintedIconEngine : public QIconEngine
{
public:
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
};
