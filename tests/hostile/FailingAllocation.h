#pragma once

#include <cstddef>

/// Makes memory run out in this process, and watches what is asked of it: replaces the system's
/// allocation functions.
namespace FailingAllocation {

/// The `count`-th allocation from now fails, the first for 1; with `forGood` all later ones, too.
void arm(int count, bool forGood);

/// Lets allocations succeed again. True when one has failed since `arm`.
bool disarm();

/// Starts to watch the sizes that are asked for.
void watch();

/// The largest size asked for since `watch`, in bytes.
std::size_t largest();

} // namespace FailingAllocation
