#pragma once

#include "refhost/engine/Problem.h"

#include <QSize>
#include <QString>

#include <optional>

class QWidget;

/// Draws a window of that size, in logical pixels, without showing it, and writes the picture as a
/// PNG file, whole or not at all.
std::optional<Problem> writeScreenshot(QWidget &window, const QSize &size, const QString &file);
