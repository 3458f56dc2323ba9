#pragma once

#include "refhost/validator/CheckRow.h"

/// The checks of the host's operand language: an operand is a literal, "$name" or "$name.member". A
/// plug-in may read its operands in another way, so they run with the option "operands" only.
std::vector<CheckRow> operandChecks();
