#pragma once

#include "refhost/engine/Problem.h"

#include <QByteArray>

#include <optional>

// What the first bytes of a file tell of its format, so that a file of another format is refused
// with one message instead of one for each row. A file whose first row can be used passes.

/// Returns a problem if `head`, the first bytes of a file, is no text in UTF-8: text in another
/// encoding, an archive, a compressed file. The problem names no file.
std::optional<Problem> findForeignEncoding(const QByteArray &head);

/// Returns a problem if the first row in `head` begins a file of another form than one JSON object
/// on each line: an array, an object over several lines, CSV, other text. `head` holds at least one
/// row in full, or the first 64 KiB of it. The problem names no file.
std::optional<Problem> findForeignRows(const QByteArray &head);
