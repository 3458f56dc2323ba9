#pragma once

#include "refhost/engine/RowRunner.h"
#include "refhost/runner/rows/RowTally.h"

#include <QByteArray>
#include <QList>

#include <optional>

/// What there is to say about a row.
struct RowNote
{
    qint64 line = 0;
    std::optional<Problem> problem; ///< why the row failed
    QByteArray row;                 ///< the row that failed
    StepWarning warning;            ///< of a row that did not fail
};

/// What came of the rows of a batch.
struct RowBatchOutcome
{
    QByteArray output;    ///< a line for each row that did not fail
    QList<RowNote> notes; ///< in the order of the rows
    RowTally tally;
    bool isLast = false; ///< whatever comes after it is not to be printed
};
