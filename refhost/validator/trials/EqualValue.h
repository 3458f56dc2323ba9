#pragma once

#include <QVariant>

/// Whether the two values are of the same type and equal; a number that is none ("nan") is equal to
/// itself here, also inside a list.
bool isEqualValue(const QVariant &left, const QVariant &right);
