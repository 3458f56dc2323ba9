#pragma once

#include <QString>
#include <QStringView>
#include <QVector>

// Characters of a text that nobody would see, or take for another: white space but the plain space,
// control and format characters, halves of surrogate pairs, and what Qt's documents keep for their
// own use. A line feed is one too; an editor shows it by the line that it ends.

/// How many units (UTF-16 code units) the special character at `index` has; 0 when the character
/// there is an ordinary one.
int specialSize(QStringView text, int index);

/// The mark that stands for a special character, such as "NBSP" or "U+D83D".
QString specialMark(QStringView character);

/// A text on one line, each special character as its mark in angle quotes. At most `limit` units of
/// the text, and "…" when there are more.
QString visibleText(const QString &text, int limit);

/// Special characters that a menu offers to insert.
QVector<char16_t> offeredCharacters();
