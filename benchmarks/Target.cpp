#include "benchmarks/Target.h"

#include "benchmarks/BenchmarkCase.h"

#include <algorithm>

namespace {

/// Where the bare work takes less than this, in nanoseconds, on a large text, it does not look at
/// the text at all; such a step is a small one, whatever the size.
constexpr double smallWork = 5000.0;

bool isSmall(const Comparison &comparison)
{
    return comparison.size == smallSize ||
           (comparison.size == largeSize && comparison.bare < smallWork);
}

Target::Miss figureOf(const Comparison &comparison, double value)
{
    return {comparison.subject, comparison.size, value};
}

Target smallSteps(const QVector<Comparison> &comparisons)
{
    Target target{QStringLiteral("Small steps take at most 2.5 times as long as Qt"), 2.5, true};
    for (const Comparison &comparison : comparisons) {
        if (isSmall(comparison))
            target.judge(figureOf(comparison, comparison.toBare()));
    }
    return target;
}

Target largeTexts(const QVector<Comparison> &comparisons)
{
    Target target{QStringLiteral("Steps on 1 Mi units take at most 1.1 times as long as Qt"), 1.1,
                  true};
    for (const Comparison &comparison : comparisons) {
        if (comparison.size == largeSize && !isSmall(comparison))
            target.judge(figureOf(comparison, comparison.toBare()));
    }
    return target;
}

Target farFaster(const QVector<Comparison> &comparisons)
{
    Target target{QStringLiteral("Replacing with another length and finding a short absent text, "
                                 "on 1 Mi units and more, are at least 5 times as fast as Qt"),
                  5.0, false};
    for (const Comparison &comparison : comparisons) {
        if (comparison.size >= largeSize && comparison.hasToBeatQt)
            target.judge(figureOf(comparison, 1.0 / comparison.toBare()));
    }
    return target;
}

Target linearGrowth(const QVector<Growth> &growths)
{
    Target target{QStringLiteral("Twice the text takes at most 2.3 times as long"), 2.3, true};
    for (const Growth &growth : growths) {
        if (growth.isStep)
            target.judge({growth.subject, growth.points.last().size, growth.ratioPerDoubling()});
    }
    return target;
}

} // namespace

void Target::judge(const Miss &figure)
{
    ++judged;
    if (isUpperLimit ? figure.value <= limit : figure.value >= limit)
        return;
    const auto worse = [this](const Miss &one, const Miss &other) {
        return isUpperLimit ? one.value > other.value : one.value < other.value;
    };
    misses.insert(std::upper_bound(misses.begin(), misses.end(), figure, worse), figure);
}

QVector<Target> judgedTargets(const Figures &figures)
{
    return {largeTexts(figures.comparisons), farFaster(figures.comparisons),
            linearGrowth(figures.growths), smallSteps(figures.comparisons)};
}
