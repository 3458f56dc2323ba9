#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/PropertySchema.h"
#include "refhost/engine/Result.h"

#include <QVariant>

// Between the properties of a step and JSON.

/// The value for a property as a task file gives it. A choice may be given by its label or its
/// number, a numeric operand also as a number. A value that does not fit is a problem without a
/// place.
Result<QVariant> propertyFromJson(const JsonValue &json, const PropertySchema &schema);

/// The value as a task file gives it: a choice by its label where it has one.
JsonValue propertyToJson(const QVariant &value, const PropertySchema &schema);
