#pragma once

#include "benchmarks/Alphabet.h"
#include "benchmarks/SampleText.h"
#include "benchmarks/Setup.h"

#include <QString>
#include <QVector>

#include <functional>

/// One way of using an operation that is worth measuring, in sizes and alphabets.
class BenchmarkCase
{
public:
    /// Makes the step for texts of `size` units.
    using Prepare = std::function<Setup(SampleText &sample, int size)>;

    BenchmarkCase(const QString &typeId, const QString &name, const Prepare &prepare);

    /// The case without Chinese texts, for what only knows digits.
    BenchmarkCase asciiOnly() const;

    /// The case at `size` only, and without growth.
    BenchmarkCase onlyAt(int size) const;

    /// The case for its growth only: the comparison with Qt would take minutes.
    BenchmarkCase growthOnly() const;

    /// The case as one in which the step has to leave Qt far behind.
    BenchmarkCase beatingQt() const;

    const QString &typeId() const { return m_typeId; }
    const QString &name() const { return m_name; }
    const Prepare &prepare() const { return m_prepare; }
    const QVector<Alphabet> &alphabets() const { return m_alphabets; }
    const QVector<int> &sizes() const { return m_sizes; }
    bool isMeasuredForGrowth() const { return m_isMeasuredForGrowth; }
    bool hasToBeatQt() const { return m_hasToBeatQt; }

private:
    QString m_typeId;
    QString m_name;
    Prepare m_prepare;
    QVector<Alphabet> m_alphabets;
    QVector<int> m_sizes;
    bool m_isMeasuredForGrowth = true;
    bool m_hasToBeatQt = false;
};

/// The sizes that the targets speak of.
constexpr int smallSize = 32;
constexpr int largeSize = 1024 * 1024;

/// Where work that is quadratic in Qt has grown out of all proportion.
constexpr int hugeSize = 24 * largeSize;

/// The sizes between which growth is measured, each twice the one before: large enough to tell
/// linear from quadratic, small enough to stay in the processor's second cache.
constexpr int growthSizes[] = {16 * 1024, 32 * 1024, 64 * 1024, 128 * 1024};
