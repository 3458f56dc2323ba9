#pragma once

#include "refhost/validator/CheckRow.h"

/// The checks of what the result of a run depends on: on its operands, and on nothing else.
std::vector<CheckRow> inputChecks();
