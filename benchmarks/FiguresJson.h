#pragma once

#include "benchmarks/Figures.h"
#include "benchmarks/Target.h"

#include <QJsonObject>
#include <QVector>

/// Everything that was measured and judged, for programs. Times are in nanoseconds.
QJsonObject figuresJson(const Figures &figures, const QVector<Target> &targets);
