#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

/// A symbol of the window's own set in a colour with a meaning, for badges in lists: `side` is its
/// width and height in pixels independent of the device, `ratio` the pixels of the device in one.
QPixmap symbolPixmap(const QString &name, const QColor &color, int side, qreal ratio);
