#pragma once

#include "VarType.h"

#include <QString>
#include <QVariant>
#include <QVariantList>

/// `value` as a variable of `type` holds it. `*ok`, when given, is always written; when it becomes
/// false the result is the type's empty value. An empty value (a null `QVariant`, an empty text)
/// becomes the type's empty value and is no failure. For a type that is not known the value is
/// handed back as it is.
///
/// Numbers and texts part ways: the number 3.7 becomes the integer 4, the text "3.7" becomes 3. A
/// table never fails: what cannot be read as one is an empty table.
QVariant convertToVarType(const QVariant &value, VarType type, bool *ok);

/// Reads a word for true or false, white space around it and letter case aside; an empty text is
/// false. Returns false for any other text and leaves `*value` alone.
bool parseBoolText(const QString &text, bool *value);

/// Reads a list such as "[1, x, 2.5]": items between commas, trimmed, empty ones left out, each a
/// `double` where it reads as one and else a text. Quotes mean nothing. Returns false for a text
/// that is not in brackets and leaves `*out` alone.
bool parseBracketList(const QString &text, QVariantList *out);

/// Reads a table from JSON text, an array of arrays; every cell becomes a text, an empty one where
/// it is no JSON string. Anything else is an empty table.
QVariantList parseJsonTable(const QString &text);
