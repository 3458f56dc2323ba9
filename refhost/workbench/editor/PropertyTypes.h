#pragma once

#include "VarType.h"

#include <QString>

struct PropertySchema;

/// The words for the types that a property is made for, empty when it takes any.
QString typeWordsOf(const PropertySchema &schema);

/// The type of a variable that is made for a property: the first it names; for numbers `Double`,
/// and `String` when it does not say.
VarType preferredType(const PropertySchema &schema);
