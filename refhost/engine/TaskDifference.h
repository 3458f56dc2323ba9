#pragma once

#include "refhost/engine/Problem.h"

#include <optional>

class Task;

/// The first thing in `task` that is not the very same in `back`, which is the task as it comes
/// back from JSON: a value, a property, or what else a step has in its record. The order
/// of the variables counts. The host's own state of a step is left out of it.
std::optional<Problem> lostInJson(const Task &task, const Task &back);
