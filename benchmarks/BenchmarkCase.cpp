#include "benchmarks/BenchmarkCase.h"

BenchmarkCase::BenchmarkCase(const QString &typeId, const QString &name, const Prepare &prepare)
    : m_typeId(typeId)
    , m_name(name)
    , m_prepare(prepare)
    , m_alphabets{Alphabet::Ascii, Alphabet::Chinese}
    , m_sizes{smallSize, 4 * 1024, largeSize}
{
}

BenchmarkCase BenchmarkCase::asciiOnly() const
{
    BenchmarkCase other = *this;
    other.m_alphabets = {Alphabet::Ascii};
    return other;
}

BenchmarkCase BenchmarkCase::onlyAt(int size) const
{
    BenchmarkCase other = *this;
    other.m_sizes = {size};
    other.m_isMeasuredForGrowth = false;
    return other;
}

BenchmarkCase BenchmarkCase::growthOnly() const
{
    BenchmarkCase other = *this;
    other.m_sizes.clear();
    return other;
}

BenchmarkCase BenchmarkCase::beatingQt() const
{
    BenchmarkCase other = *this;
    other.m_hasToBeatQt = true;
    return other;
}
