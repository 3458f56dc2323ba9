#pragma once

#include <QString>
#include <QStringView>

// Texts as they are shown: with signs in the place of invisible characters.

/// The text as one line of at most `limit` units (UTF-16 code units) of it, and "…" when there are
/// more, for lists and labels: a sign of one unit stands as it is, a name between "‹" and "›".
/// Takes time for the limit, not for the text.
QString visibleText(const QString &text, int limit);

/// What is drawn for a text whose positions stay what they are, of the same length. An invisible
/// character whose sign is a name becomes "▯", a surrogate without its partner U+FFFD.
QString visibleUnits(QStringView text);

/// Whether all of it can be typed and seen in one line: nothing in it is invisible but wide spaces.
bool isPlainLine(const QString &text);
