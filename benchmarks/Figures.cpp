#include "benchmarks/Figures.h"

#include <cmath>

double Growth::ratioPerDoubling() const
{
    const double doublings = points.size() - 1;
    return std::pow(points.last().time / points.first().time, 1.0 / doublings);
}
