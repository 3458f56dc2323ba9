#pragma once

#include <QString>

/// What `text.toUpper()` gives, also where letters grow ("ß" to "SS") in time linear in the text.
QString toUpperText(const QString &text);

/// What `text.toLower()` gives, in the same way.
QString toLowerText(const QString &text);
