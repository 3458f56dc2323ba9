#pragma once

#include "benchmarks/BenchmarkCase.h"
#include "benchmarks/Figures.h"
#include "benchmarks/Stopwatch.h"

#include <QString>
#include <QVector>

#include <functional>

class Operation;
class OperationCatalog;

/// Measures cases with the operations of a catalogue. Every step is checked before it is measured;
/// the first that is wrong ends the measuring.
class Suite
{
public:
    /// Is called with each figure as soon as it is there.
    using ComparisonSink = std::function<void(const Comparison &)>;
    using GrowthSink = std::function<void(const Growth &)>;

    Suite(const OperationCatalog &catalog, const Effort &effort);

    /// Measures every case in all its sizes and alphabets. False when a step is wrong.
    bool compare(const QVector<BenchmarkCase> &cases, const ComparisonSink &sink);

    /// Measures how a plain copy grows, and every case. False when a step is wrong.
    bool grow(const QVector<BenchmarkCase> &cases, const GrowthSink &sink);

    /// What is wrong, in one line.
    const QString &problem() const { return m_problem; }

private:
    const Operation *prototype(const BenchmarkCase &measured);
    bool compare(const BenchmarkCase &measured, Alphabet alphabet, int size,
                 const ComparisonSink &sink);
    Growth copyGrowth() const;
    bool grow(const BenchmarkCase &measured, Alphabet alphabet, const GrowthSink &sink);
    bool isRight(const QString &difference, const Subject &subject, int size);

    const OperationCatalog &m_catalog;
    Stopwatch m_stopwatch;
    QString m_problem;
};
