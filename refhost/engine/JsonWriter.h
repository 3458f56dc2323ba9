#pragma once

#include "refhost/engine/JsonTypes.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

class QJsonValue;

// Writes JSON in UTF-8 that `parseJson` reads back equal. U+FEFF and unpaired surrogates are
// escaped, since other readers take the one for a byte order mark and refuse the others. A double
// has the fewest digits that give the same double. Within an array a whole double ends in ".0",
// which tells it from an integer; elsewhere the reader knows which of the two it expects. The
// negative zero is `-0.0`.

/// Appends `value` without white space. An undefined value and a double that is no finite number
/// become `null`.
void appendJson(QByteArray &text, const JsonValue &value);

/// Appends what `appendJson` appends for `variantToJson(value)`, faster.
void appendJsonText(QByteArray &text, const QVariant &value);

/// Appends a JSON string.
void appendJsonString(QByteArray &text, const QString &string);

/// Returns `value` without white space.
QString jsonText(const JsonValue &value);

/// Returns `value` with a line for each member and element, indented by four spaces a level, and a
/// line break at the end.
QByteArray indentedJson(const JsonValue &value);

/// Returns the same value with the types of this engine.
JsonValue jsonFromQt(const QJsonValue &value);
