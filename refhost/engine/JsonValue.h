#pragma once

#include "refhost/engine/Result.h"

#include "VarType.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QVariant>

// Between the values of variables and JSON. Numbers that JSON cannot hold stand as the strings
// "inf", "-inf" and "nan"; inside a list a whole number is an integer, any other number a double.

/// The value of a variable of `type`. A value that does not fit is a problem without a place.
Result<QVariant> variantFromJson(const QJsonValue &json, VarType type);

/// The value of a variable of `type` as a user types it: a text for a string, true or false for a
/// bool, a JSON array for a list or a table.
Result<QVariant> variantFromText(const QString &text, VarType type);

QJsonValue variantToJson(const QVariant &value);

/// That `found`, at `place`, is another kind of JSON value than expected, or missing.
Problem wrongKind(const QString &place, const QJsonValue &found, const QString &expected);

/// `json` as compact JSON text, scalars included.
QString jsonText(const QJsonValue &json);

/// Appends what `jsonText(variantToJson(value))` gives, in UTF-8 and without the detour where the
/// value is plain.
void appendJsonText(QByteArray &text, const QVariant &value);
