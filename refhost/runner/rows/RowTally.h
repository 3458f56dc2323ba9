#pragma once

#include <QtGlobal>

/// How many rows were run, and what came of them.
struct RowTally
{
    qint64 rows = 0;
    qint64 failed = 0;
    qint64 warnings = 0;

    RowTally &operator+=(const RowTally &other)
    {
        rows += other.rows;
        failed += other.failed;
        warnings += other.warnings;
        return *this;
    }
};
