#pragma once

#include "refhost/engine/Result.h"

#include <QString>

#include <optional>

// Texts in files, in UTF-8 and to the last code unit: neither a mark at the beginning nor the ends
// of lines are touched. The messages of problems are for users.

/// The text of the file. A problem when it cannot be read or is no UTF-8.
Result<QString> readTextFile(const QString &path);

/// Writes the text. A problem when the file cannot be written, or UTF-8 cannot hold the text since
/// it has surrogates without a partner; a file that was there is as it was then.
std::optional<Problem> writeTextFile(const QString &path, const QString &text);
