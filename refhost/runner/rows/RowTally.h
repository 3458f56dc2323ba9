#pragma once

#include <QString>
#include <QtGlobal>

/// How many rows were run, and what came of them.
struct RowTally
{
    qint64 rows = 0;
    qint64 failed = 0;
    qint64 warnings = 0;
    qint64 failedSteps = 0; ///< steps that threw, in rows of any outcome

    RowTally &operator+=(const RowTally &other)
    {
        rows += other.rows;
        failed += other.failed;
        warnings += other.warnings;
        failedSteps += other.failedSteps;
        return *this;
    }

    RowTally operator-(const RowTally &other) const
    {
        return {rows - other.rows, failed - other.failed, warnings - other.warnings,
                failedSteps - other.failedSteps};
    }

    /// Returns the counts as the last line of a run shows them.
    QString toString() const;
};
