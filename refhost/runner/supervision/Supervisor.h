#pragma once

#include <functional>

/// Runs `work` in a child process, waits for it, and returns the exit status `work` returns there.
/// Returns in both processes, in the child when the work is done. A child that ends before is
/// reported on standard error with the step it ran, its temporary files are removed, and the status
/// is that of `ProcessEnd`.
///
/// Signals that ask the program to end are passed on to the child, which is killed if it does not
/// end within `graceSeconds`. It is killed as well once a row, or the whole of a run without rows,
/// takes longer than `timeoutSeconds`; 0 is no limit.
///
/// Where the system has no fork, or allows no further process, the work is done in this process:
/// then a step that calls `exit` is reported, and nothing else of the above holds.
int supervise(const std::function<int()> &work, double timeoutSeconds);

/// The time between a signal that asks the program to end and the end of a child that goes on.
constexpr double graceSeconds = 1;

/// Returns whether `supervise` can end a run that takes too long.
bool canLimitTime();
