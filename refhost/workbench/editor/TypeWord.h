#pragma once

#include "VarType.h"

#include <QString>
#include <QVariant>

struct PropertySchema;

/// The word for a type as a user reads it.
QString typeWord(VarType type);

/// The words for the types that a property is made for, empty when it takes any.
QString typeWordsOf(const PropertySchema &schema);

/// The type of a variable that is made for a property: the first it names; for numbers `Double`,
/// and `String` when it does not say.
VarType preferredType(const PropertySchema &schema);

/// A value of a variable of that type in a few words; an invalid one as the empty value it means.
QString valuePreview(const QVariant &value, VarType type);
