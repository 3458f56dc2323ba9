#pragma once

#include "refhost/engine/PropertySchema.h"

#include <QString>

/// The editor of a property: its editor word, or its type where that decides.
QString editorOf(const PropertySchema &property);

/// What may be chosen or referred to, and when the property is shown, in words.
QString remarksOn(const PropertySchema &property);
