#pragma once

#include <QString>
#include <QStringList>

/// What is wrong with the lines a page shows of an output, empty when nothing is. A line "..." or
/// "…" stands for any lines left out; times and versions may be others.
QString differenceToShown(const QStringList &shown, const QString &printed);

/// Whether these lines show that a command could not do its work, or found something wrong.
bool showTrouble(const QStringList &shown);
