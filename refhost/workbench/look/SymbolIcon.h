#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

/// An icon from the window's own set, ":/symbols/NAME.svg", drawn at any size: that of an action in
/// the text colour of the palette, a badge in a colour with a meaning, except where it is selected.
QIcon symbolIcon(const QString &name, const QColor &color = {});
