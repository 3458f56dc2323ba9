#pragma once

#include <QString>

#include <atomic>
#include <optional>

class Operation;

/// Runs `doOperation` of the step at `index`, counted from 0, in its task. Returns nothing when the
/// step returned; otherwise a text of what it threw, such as "std::runtime_error: disk full". No
/// exception of a step leaves this function, except std::bad_alloc while that text is composed.
std::optional<QString> runGuarded(const Operation &step, int index);

/// Makes `runGuarded` store in `mark` which step the calling thread runs: the index plus 1, and 0
/// between two steps. Null ends that. The mark has to outlive the steps.
void markStepsOfThisThread(std::atomic<int> *mark);
