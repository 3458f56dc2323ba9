#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Some whole lines of the input.
struct RowBatch
{
    qint64 number = 0;    ///< place among the batches, counted from 0
    qint64 firstLine = 1; ///< the number of its first line in the input, counted from 1
    QByteArray lines;     ///< each with its line break, but perhaps the last
    bool tooLong = false; ///< instead: one line that was passed over, longer than a row may be
};
