#pragma once

#include <QString>

/// How often `searched` stands in `text`, from left to right and without overlaps. An empty text
/// stands nowhere.
int occurrences(const QString &text, const QString &searched, Qt::CaseSensitivity sensitivity);
