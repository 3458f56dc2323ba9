#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/Result.h"

#include "VarType.h"

#include <QString>
#include <QVariant>

// Between the values of variables and JSON. Numbers that JSON cannot hold stand as the strings
// "inf", "-inf" and "nan"; inside a list a number without fraction and exponent is an integer, any
// other number a double.

/// The value of a variable of `type`. A value that does not fit is a problem without a place.
Result<QVariant> variantFromJson(const JsonValue &json, VarType type);

/// The value of a variable of `type` as a user types it: a text for a string, true or false for a
/// bool, a JSON array for a list or a table.
Result<QVariant> variantFromText(const QString &text, VarType type);

/// Returns the value in JSON. What JSON has no kind for becomes its text.
JsonValue variantToJson(const QVariant &value);

/// That `found`, at `place`, is another kind of JSON value than expected, or missing.
Problem wrongKind(const QString &place, const JsonValue &found, const QString &expected);
