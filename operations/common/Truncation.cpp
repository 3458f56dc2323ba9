#include "operations/common/Truncation.h"

#include <limits>

int truncateToInt(double number)
{
    using Limits = std::numeric_limits<int>;
    // One beyond the largest int is a number a double holds exactly. A NaN fails both comparisons.
    const bool fits = number >= Limits::min() && number < Limits::max() + 1.0;
    return fits ? static_cast<int>(number) : Limits::min();
}
