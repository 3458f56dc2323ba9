#pragma once

#include <QString>
#include <QStringList>

/// The names of the library's sources below `project`, relative to it and sorted.
QStringList librarySources(const QString &project);

/// Whether a source is meant by one of the patterns, with "*" and "?" as the shell has them: a
/// pattern fits the name of the file or its path from any folder on. Without patterns all are
/// meant.
bool isMeant(const QString &file, const QStringList &patterns);
