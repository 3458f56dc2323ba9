#pragma once

#include "refhost/validator/CheckRow.h"

/// Returns the checks of what a plug-in does to the process: its settings, its output, its memory.
std::vector<CheckRow> processChecks();

/// Returns the checks that the result of a run depends on its operands, and on nothing else.
std::vector<CheckRow> inputChecks();

/// Returns the checks of the host's operand language: an operand is a literal, "$name" or
/// "$name.member". A plug-in may read its operands in another way, so these checks run with the
/// option "operands" only.
std::vector<CheckRow> operandChecks();
