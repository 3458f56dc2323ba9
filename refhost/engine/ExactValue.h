#pragma once

#include <QString>
#include <QVariant>

/// Whether the two are of one type and alike in every bit: a null text is not an empty one, -0 not
/// 0, a 64-bit number not a 32-bit one, and a NaN is itself.
bool isSameValue(const QVariant &left, const QVariant &right);

/// What a value is, such as "the 64-bit number 5" or "a null text", for messages.
QString valueWords(const QVariant &value);
