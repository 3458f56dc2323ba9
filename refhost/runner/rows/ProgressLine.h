#pragma once

#include "refhost/runner/rows/RowTally.h"

#include <QElapsedTimer>

/// One line on standard error that tells how far the rows are, where that is a terminal.
class ProgressLine
{
public:
    ProgressLine();

    /// Shows the line, now and then.
    void show(const RowTally &tally);

    /// Takes the line away, so that something else can be written.
    void clear();

private:
    bool m_isTerminal;
    bool m_isShown = false;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
};
