#pragma once

#include <QStringList>

/// Gives the application a look: "light", "dark", or a style of Qt such as "fusion" with the
/// palette of the system. Whether there is such a look.
bool applyAppearance(const QString &name);

/// All the looks there are.
QStringList appearanceNames();

/// The look that was applied last, empty before the first.
QString currentAppearance();
