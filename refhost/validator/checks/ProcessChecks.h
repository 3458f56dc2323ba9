#pragma once

#include "refhost/validator/CheckRow.h"

/// The checks of what a plug-in does to the process: its settings, its output, its memory.
std::vector<CheckRow> processChecks();
