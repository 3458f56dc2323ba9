#pragma once

#include "refhost/workbench/run/StepRecord.h"

#include <QHash>

/// What the steps of a run did. Of a long run, or one of large values, the oldest are forgotten.
class RunRecords
{
public:
    /// The records that are kept, oldest first.
    const QVector<StepRecord> &all() const { return m_records; }
    /// The last one of a step, null when there is none. Valid until the next `add`.
    const StepRecord *last(int step) const;

    void clear();
    /// Adds a record and numbers it.
    const StepRecord &add(StepRecord record);

private:
    void forgetOldest(int count);

    QVector<StepRecord> m_records;
    QHash<int, int> m_lastRound; ///< of each step that has run
    int m_rounds = 0;
    qint64 m_size = 0; ///< of the written values, in bytes
};
