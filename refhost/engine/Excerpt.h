#pragma once

#include <QString>

/// Most characters of a value or a row that a message shows.
constexpr int longestExcerpt = 200;

/// Returns the first `longestExcerpt` UTF-16 code units of `text`, or one less, so that no surrogate
/// pair is cut. Returns all of a shorter text.
QString beginningOf(const QString &text);

/// Returns `text` as a message shows it: of a longer one than `longestExcerpt` the beginning and the
/// length.
QString excerpt(const QString &text);
