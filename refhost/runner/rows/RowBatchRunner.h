#pragma once

#include "refhost/engine/RowRunner.h"
#include "refhost/runner/rows/RowBatchOutcome.h"

class Interruption;
struct RowBatch;
struct ThreadProgress;

/// Runs a task on the rows of batches. Made, used and deleted on one thread.
class RowBatchRunner
{
public:
    /// `stopsAtFailure` ends a batch, and all of the output, at the first row that fails.
    RowBatchRunner(Task task, const RowFormat &format, bool stopsAtFailure,
                   const Interruption &interruption);

    /// Runs all rows of the batch, or those before the program was asked to end.
    RowBatchOutcome run(const RowBatch &batch);

private:
    void fail(const QByteArray &row, qint64 line, const Problem &problem,
              RowBatchOutcome &outcome) const;
    void runRow(const QByteArray &row, qint64 line, RowBatchOutcome &outcome);
    bool isNoRow(const QByteArray &row) const;

    void addResult(const RowOutcome &result, const QByteArray &row, qint64 line,
                   RowBatchOutcome &outcome) const;

    RowRunner m_runner;
    RowFormat m_format;
    bool m_stopsAtFailure;
    bool m_batchHasNul = false;
    const Interruption &m_interruption;
    ThreadProgress &m_progress;
};
