#pragma once

#include "VarType.h"

#include <QVariant>

/// The value as one of `type`, where that says the same: "12" and 12, true and "true", a value and
/// a list of it. Otherwise invalid, which is the empty value of the type.
QVariant convertedValue(const QVariant &value, VarType type);
