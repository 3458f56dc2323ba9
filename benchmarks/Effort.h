#pragma once

/// How much time goes into one figure.
struct Effort
{
    int repetitions;       ///< how often a figure is measured; the fastest counts
    double repetitionTime; ///< seconds of one measurement, over as many calls as fit in
    double figureTime;     ///< seconds for all of them: long calls are repeated less often
    double callLimit;      ///< seconds of one call above which that call is the figure
};

/// For figures to rely on.
constexpr Effort fullEffort = {7, 0.012, 0.6, 0.3};

/// To see that everything works.
constexpr Effort quickEffort = {3, 0.002, 0.1, 0.05};
