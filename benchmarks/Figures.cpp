#include "benchmarks/Figures.h"

#include <algorithm>

double Growth::largestRatio() const
{
    double largest = 0.0;
    for (int i = 1; i < points.size(); ++i)
        largest = std::max(largest, points.at(i).time / points.at(i - 1).time);
    return largest;
}
