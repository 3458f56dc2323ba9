#pragma once

#include "refhost/engine/Result.h"
#include "refhost/engine/RowFormat.h"

#include <QString>
#include <QStringList>

class Console;
class QCommandLineParser;
class Task;
class WarningExplainer;

/// What the command line says about running a task on rows.
struct RowRun
{
    QString rows;   ///< the file they come from, "-" for standard input
    QString out;    ///< the file the lines go to, "-" for standard output
    QString errors; ///< the file of what went wrong, empty for standard error
    int jobs = 1;   ///< the number of threads
    bool stopsAtFailure = false;
    qint64 skipped = 0;    ///< the number of rows at the start that are passed over
    qint64 firstLine = 1;  ///< the number of the first line of the file
    bool isStrict = false; ///< a warning counts as a failure for the exit status
    RowFormat format;
    QStringList plugins;   ///< file name of the plug-in of each step
    QStringList stepNames; ///< what messages call each step
};

/// Reads the options; a problem names the first that cannot be used.
Result<RowRun> rowRunFromOptions(const QCommandLineParser &options, const Task &task);

/// Runs the task on all rows, with a summary at the end; the first warning line of each
/// kind is explained. Returns the exit status.
int runRows(const Task &task, const RowRun &run, WarningExplainer &explainer,
            const Console &console);
