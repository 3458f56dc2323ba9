#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/Result.h"

#include "VarType.h"

#include <QByteArray>
#include <QVariant>

#include <functional>

/// Returns the value of a variable of `type` for the member of a row, as `variantFromJson` does.
/// Where nothing is lost, it also converts a scalar of another kind: a number, true or false to a
/// string of the same characters, a string to the number or the truth value that it spells.
/// `written` returns the JSON text of the value. A value that does not fit is a problem without a
/// place.
Result<QVariant> variantFromRow(const JsonValue &json, VarType type,
                                const std::function<QByteArray()> &written);
