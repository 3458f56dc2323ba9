#pragma once

#include <QString>
#include <QVariant>

/// The value as a detail shows it: as JSON, the beginning of it when it is long.
QString shownValue(const QVariant &value);

/// The text in double quotes, with escapes, the beginning of it when it is long.
QString shownText(const QString &text);
