#pragma once

#include <QIcon>
#include <QString>

/// The icon of an action from the window's own set, drawn at any size in the text colour of the
/// palette: ":/symbols/NAME.svg".
QIcon symbolIcon(const QString &name);
