#pragma once

#include "refhost/engine/JsonTypes.h"

#include <QRandomGenerator>

/// Makes random JSON values of all kinds; the seed decides which. The values favour the borders of
/// numbers and the code units that are hard to write.
class RandomJson
{
public:
    explicit RandomJson(quint32 seed)
        : m_random(seed)
    {
    }

    /// Returns a value of any kind, with arrays and objects at most five levels deep.
    JsonValue value(int depth = 0);

    /// Returns an array that a variable of the type list holds: strings, integers, doubles,
    /// booleans and such arrays.
    JsonValue list(int depth = 0);

    QString string();
    JsonValue integer();
    JsonValue finiteDouble();

private:
    int below(int limit) { return static_cast<int>(m_random.bounded(limit)); }
    JsonValue scalar();
    JsonValue wideInteger();
    JsonValue object(int depth);

    QRandomGenerator m_random;
};

/// Whether `right` is `left` as it comes back from text: of the same kind, alike in every bit, the
/// members in the same order. A double that is whole and no element of an array may come back as an
/// integer of the same value.
bool isSameJson(const JsonValue &left, const JsonValue &right);
