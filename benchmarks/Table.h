#pragma once

#include "benchmarks/Figures.h"
#include "benchmarks/Target.h"

#include <QString>

// The figures as lines of a table for people.

/// The head of the table of comparisons, and one of its lines.
QString comparisonHead();
QString comparisonLine(const Comparison &comparison);

/// The head of the table of growths, and one of its lines.
QString growthHead();
QString growthLine(const Growth &growth);

/// Whether a target was met, in how many lines, and the worst of those that miss it.
QString targetLines(const Target &target);
