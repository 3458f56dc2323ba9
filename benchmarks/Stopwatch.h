#pragma once

#include "benchmarks/Effort.h"

#include <functional>
#include <vector>

/// Measures pieces of work beside each other, so that what disturbs the machine disturbs them all:
/// their repetitions take turns in random order. Figures are nanoseconds of processor time for one
/// call. There is one stopwatch at a time.
class Stopwatch
{
public:
    using Work = std::function<void()>;

    explicit Stopwatch(const Effort &effort);

    /// One call of each, without any preparation.
    std::vector<double> once(const std::vector<Work> &works) const;

    /// The fastest of several repetitions for each. `calls` are the figures of `once`: those above
    /// the limit are taken as they are.
    std::vector<double> repeated(const std::vector<Work> &works,
                                 const std::vector<double> &calls) const;

    /// Whether a call of that figure is too long to be repeated.
    bool isTooLong(double call) const;

private:
    int repetitions(double call) const;

    Effort m_effort;
};
