#pragma once

#include <QColor>
#include <QIcon>

/// `icon` in one colour, except where it is selected.
QIcon shadeIcon(const QIcon &icon, const QColor &color);
