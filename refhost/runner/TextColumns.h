#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The columns a terminal takes to show `text`: two for a Chinese character, none for a combining
/// mark.
int displayWidth(const QString &text);

/// The rows as lines with their cells in columns, two spaces apart.
QStringList alignColumns(const QList<QStringList> &rows);
