#pragma once

#include "refhost/engine/Result.h"

#include <QVariant>

#include <optional>

class QDataStream;

// The values of variables in a packed task: each with its kind in front, and nothing is rounded.
// Not the form of Qt for QVariant, which makes an object of any type that a file names.

/// Writes `value`. One of a type no list holds, and lists too deep within each other, are problems
/// without a place; the stream is of no use then.
std::optional<Problem> writePackedValue(QDataStream &stream, const QVariant &value);

/// Reads what `writePackedValue` wrote, from bytes of any origin: takes no more memory than a small
/// multiple of what is there. Problems have no place.
Result<QVariant> readPackedValue(QDataStream &stream);
