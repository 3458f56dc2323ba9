#pragma once

#include <QColor>
#include <QIcon>

/// `icon` in one colour, whatever the palette is.
QIcon shadeIcon(const QIcon &icon, const QColor &color);
