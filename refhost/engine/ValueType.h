#pragma once

#include "VarType.h"

#include <QVariant>

/// Whether the value is just what a variable of `type` holds; for `VarType::None`, whether it is
/// invalid.
bool fitsType(const QVariant &value, VarType type);
