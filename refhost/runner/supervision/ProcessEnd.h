#pragma once

#include <QString>
#include <QStringList>

struct RunProgress;

/// How a process ended before its work was done.
struct ProcessEnd
{
    enum class Reason {
        Signal,      ///< a signal ended it
        Exit,        ///< it called `exit`
        Interrupted, ///< a signal asked the program to end, and it did
        Blocked,     ///< the same, but it did not end in time
        TimedOut     ///< a row, or the run, took longer than `--timeout` allows
    };

    Reason reason = Reason::Signal;
    int number = 0;     ///< of the signal, or the exit status
    double seconds = 0; ///< the time it was given, with `Blocked` and `TimedOut`
    int thread = -1;    ///< the thread whose row took too long, -1 for any

    /// Returns the exit status of oprun for this end.
    int exitStatus() const;

    /// Returns the lines that tell of this end: the plug-in, the step and the row first; for a run
    /// on rows what is done, too.
    QStringList messages(const RunProgress &run) const;
};

/// Returns "signal 11 (SIGSEGV)"; the number alone for a signal without a common name.
QString signalText(int number);
