#pragma once

#include <QString>

// How a cursor goes through a text. Positions count UTF-16 code units; halves of a surrogate pair
// are never parted. Words longer than 2^20 units are walked in parts, so that a key never takes
// long.

/// The positions one character on and back; at an end the end.
int nextPosition(const QString &text, int position);
int previousPosition(const QString &text, int position);

/// The beginning of the next word, and of the word at or before a position.
int nextWord(const QString &text, int position);
int previousWord(const QString &text, int position);

/// The beginning and the end of the word around a position.
int wordStart(const QString &text, int position);
int wordEnd(const QString &text, int position);
