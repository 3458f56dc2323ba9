#pragma once

#include <QString>
#include <QStringView>

// Characters of a text that nobody would see, or take for another: white space but the plain space,
// control and format characters, halves of surrogate pairs, and what Qt's documents keep for their
// own use. Wherever the window shows such a character it does so by one sign.

/// How many units (UTF-16 code units) the invisible character at `index` has; 0 when the character
/// there is an ordinary one.
int invisibleSize(QStringView text, int index);

/// The sign for an invisible character: one unit such as "↵" for a line feed and "⇥" for a
/// tabulator, or else a name such as "ZWSP" or "U+D83D".
QString invisibleSign(QStringView character);
