#include "refhost/workbench/run/RunRecords.h"

namespace {

constexpr int mostRecords = 10000;
constexpr qint64 mostBytes = 512LL * 1024 * 1024;

/// What a value takes besides its content, roughly.
constexpr qint64 elementBytes = 32;

qint64 sizeOf(const QVariant &value)
{
    if (value.userType() == QMetaType::QString)
        return value.toString().size() * qint64(sizeof(QChar));
    qint64 size = elementBytes;
    if (value.userType() == QMetaType::QVariantList) {
        const QVariantList elements = value.toList();
        for (const QVariant &element : elements)
            size += sizeOf(element);
    }
    return size;
}

/// What a record alone keeps in memory. Operands share their values with what was written before.
qint64 sizeOf(const StepRecord &record)
{
    qint64 size = 0;
    for (const WriteRecord &write : record.writes)
        size += sizeOf(write.value);
    for (const QString &line : record.warnings)
        size += line.size() * qint64(sizeof(QChar));
    return size;
}

} // namespace

const StepRecord *RunRecords::last(int step) const
{
    const int round = m_lastRound.value(step);
    if (m_records.isEmpty() || round < m_records.first().round)
        return nullptr;
    return &m_records.at(round - m_records.first().round);
}

void RunRecords::clear()
{
    m_records.clear();
    m_lastRound.clear();
    m_rounds = 0;
    m_size = 0;
}

const StepRecord &RunRecords::add(StepRecord record)
{
    // Several at once, since what is left moves up.
    if (m_records.size() >= mostRecords)
        forgetOldest(mostRecords / 10);
    m_size += sizeOf(record);
    while (m_size > mostBytes && !m_records.isEmpty())
        forgetOldest((m_records.size() + 9) / 10);
    record.round = ++m_rounds;
    m_lastRound.insert(record.step, record.round);
    m_records.append(std::move(record));
    return m_records.last();
}

void RunRecords::forgetOldest(int count)
{
    for (int i = 0; i < count; ++i)
        m_size -= sizeOf(m_records.at(i));
    m_records.remove(0, count);
}
