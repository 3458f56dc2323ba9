#pragma once

#include <QString>

/// The text as one line of at most `limit` UTF-16 code units, for lists and labels: what breaks
/// lines, control characters and what turns the direction of writing are replaced by signs that can
/// be seen; a text that is longer ends in "…". Takes time for the limit, not for the text.
QString shownLine(const QString &text, int limit);

/// The text as the content of a tooltip that shows it as it is, never as markup, and wraps it. Long
/// texts are cut off.
QString shownToolTip(const QString &text);
