#pragma once

#include <QString>

/// Most characters of a value or a row that a message shows.
constexpr int longestExcerpt = 200;

/// Returns the first `longestExcerpt` UTF-16 code units of `text`, or one less, so that no
/// surrogate pair is cut. Returns all of a shorter text.
QString beginningOf(const QString &text);

/// Returns `text` as a message shows it: of a longer one than `longestExcerpt` the beginning and
/// the length.
QString excerpt(const QString &text);

/// Returns a line of a step as a message shows it: of a longer one than `longestExcerpt` the
/// beginning, the length and the end, which may tell what the step did with a long value.
QString lineExcerpt(const QString &line);
