#pragma once

#include "refhost/engine/OutputFile.h"
#include "refhost/engine/Problem.h"
#include "refhost/runner/RepeatedLines.h"
#include "refhost/runner/rows/ProgressLine.h"
#include "refhost/runner/rows/RowBatchOutcome.h"

#include <QStringList>

#include <optional>

class Console;
class WarningExplainer;

/// Takes what comes of the rows: prints the lines, notes what went wrong, and counts.
class RowSink
{
public:
    /// `source` is how messages call the input. The lines go to `out`; the notes go to the file
    /// `errors`, or to standard error when it is null, there with an explanation below the first
    /// warning line of each kind. All of them have to outlive the sink.
    /// `plugins` has the file name of the plug-in of each step.
    RowSink(const QString &source, OutputFile &out, OutputFile *errors, const QStringList &plugins,
            WarningExplainer &explainer, const Console &console);

    /// Takes the next outcome. False when no more are wanted.
    bool take(const RowBatchOutcome &outcome);

    /// Takes the line of progress away, and counts the notes that were not shown.
    void finish();

    /// What has been taken so far.
    const RowTally &tally() const { return m_tally; }

    /// Why an output cannot be written, if it cannot.
    const std::optional<Problem> &problem() const { return m_problem; }

private:
    Q_DISABLE_COPY_MOVE(RowSink)

    void write(OutputFile &file, const QByteArray &bytes);
    QString warningLine(const RowNote &note) const;
    void complain(const RowNote &note);
    QString inSource(const QString &line) const;

    QString m_source;
    OutputFile &m_out;
    OutputFile *m_errors;
    QStringList m_plugins;
    WarningExplainer &m_explainer;
    const Console &m_console;
    ProgressLine m_progress;
    RowTally m_tally;
    RepeatedLines m_repeated; ///< on standard error
    std::optional<Problem> m_problem;
};
