#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

// Parses JSON strictly, in linear time: each key at most once in an object, at most 1024 arrays and
// objects within each other, numbers that a double can hold. An unpaired surrogate in an escape is
// kept. A number without fraction and exponent is an integer, but for `-0`, which is a double.
//
// Bytes have to be UTF-8; a byte order mark before them is skipped. The place of a problem is the
// line and the column in UTF-16 code units, both counted from 1; `firstLine` is the line of its
// file on which a text begins.

/// Parses a JSON text of any kind. A problem is of the reason `MalformedJson`.
Result<JsonValue> parseJson(const QByteArray &json);

/// Parses a JSON text of any kind.
Result<JsonValue> parseJson(const QString &json);

/// Parses the JSON text of an object; any other kind is a problem of the reason `WrongKind`. `file`
/// is the name that a problem reports the text under.
Result<JsonObject> parseJsonObject(const QByteArray &json, const QString &file,
                                   qint64 firstLine = 1);

/// Parses the JSON text of an object and calls `take` with each member, in their order, as soon as
/// its value is complete. A later member may be malformed: `take` has been called for those before
/// it then.
std::optional<Problem>
parseJsonMembers(const QByteArray &json, qint64 firstLine,
                 const std::function<void(const QString &key, const JsonValue &value)> &take);
