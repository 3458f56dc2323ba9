#pragma once

#include "refhost/runner/rows/RowTally.h"

#include <QElapsedTimer>

/// One line on standard error that tells how far the rows are, where that is a terminal on which
/// nothing else is printed.
class ProgressLine
{
public:
    /// `isAlone` is whether the lines of the rows go elsewhere than to standard output.
    explicit ProgressLine(bool isAlone);

    /// Shows the line, now and then.
    void show(const RowTally &tally);

    /// Takes the line away, so that something else can be written.
    void clear();

    /// Takes away a line that another process may have shown.
    static void clearLine();

private:
    bool m_isWanted;
    bool m_isShown = false;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
};
