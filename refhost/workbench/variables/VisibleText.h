#pragma once

#include <QString>
#include <QStringView>

// Texts as they are shown: every UTF-16 code unit stands for itself or has one code unit in its
// place, so that positions stay what they are.

/// Whether the code unit would not be seen, or not be told from another, if it were drawn as it is:
/// control characters, unusual spaces, marks of direction. Surrogates are not looked at.
bool isInvisible(QChar unit);

/// What is drawn for a code unit, such as "⇥" for a tabulator, "↵" for a line feed and "←" for a
/// carriage return.
QChar visibleUnit(QChar unit);

/// What is drawn for a text of the same length. A surrogate without its partner becomes U+FFFD.
QString visibleText(QStringView text);

/// Whether all of it can be typed and seen in one line: nothing in it is invisible but wide spaces,
/// no surrogate is without its partner.
bool isPlainLine(const QString &text);

/// A number with separators between the thousands.
QString groupedNumber(qint64 number);
