#include "refhost/runner/rows/RowSink.h"

#include "refhost/engine/Excerpt.h"
#include "refhost/engine/JsonWriter.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/StepNames.h"
#include "refhost/runner/WarningExplainer.h"
#include "refhost/runner/supervision/RunProgress.h"

namespace {

/// Adds the row that failed: as text, or its bytes in Base64 where it is none.
void addRow(JsonObject &json, const QByteArray &row)
{
    // With its size: without it Qt stops at a NUL.
    const QString text = QString::fromUtf8(row.constData(), row.size());
    if (text.toUtf8() == row)
        json.insert(QStringLiteral("row"), text);
    else
        json.insert(QStringLiteral("rowBase64"), QString::fromLatin1(row.toBase64()));
}

/// The note as a line of a file of errors.
QByteArray noteLine(const RowNote &note, const QStringList &plugins)
{
    JsonObject json{{QStringLiteral("line"), note.line}};
    if (note.problem) {
        json.insert(QStringLiteral("problem"), note.problem->toString());
        addRow(json, note.row);
    } else {
        json.insert(QStringLiteral("step"), note.warning.step);
        json.insert(QStringLiteral("type"), note.warning.typeId);
        if (note.warning.isFailure)
            json.insert(QStringLiteral("plugin"), plugins.value(note.warning.step));
        json.insert(note.warning.isFailure ? QStringLiteral("threw") : QStringLiteral("warning"),
                    note.warning.line);
    }
    QByteArray text;
    appendJson(text, json);
    return text + '\n';
}

/// Returns what a message on standard error says of the row that failed.
QString rowText(const QByteArray &row)
{
    // A character has four bytes at most.
    const QByteArray begin = row.left(4 * longestExcerpt + 4);
    const QString text = QString::fromUtf8(begin.constData(), begin.size());
    const QString shown = beginningOf(text);
    if (begin.size() == row.size() && shown.size() == text.size())
        return RunnerText::tr("; the row: %1").arg(text);
    return RunnerText::tr("; the row of %1 bytes begins: %2")
        .arg(QString::number(row.size()), shown);
}

} // namespace

RowSink::RowSink(const QString &source, OutputFile &out, OutputFile *errors,
                 const QStringList &plugins, WarningExplainer &explainer, const Console &console)
    : m_source(source)
    , m_out(out)
    , m_errors(errors)
    , m_plugins(plugins)
    , m_explainer(explainer)
    , m_console(console)
    , m_progress(!out.isStandardOutput())
{
}

bool RowSink::take(const RowBatchOutcome &outcome)
{
    write(m_out, outcome.output);
    if (m_problem)
        return false;
    if (!outcome.notes.isEmpty())
        m_progress.clear();
    for (const RowNote &note : outcome.notes) {
        if (m_errors)
            write(*m_errors, noteLine(note, m_plugins));
        else
            complain(note);
    }
    m_tally += outcome.tally;
    RunProgress::current().writtenRows = m_tally.rows;
    m_progress.show(m_tally);
    return !m_problem && !outcome.isLast;
}

void RowSink::write(OutputFile &file, const QByteArray &bytes)
{
    if (m_problem || bytes.isEmpty())
        return;
    RunProgress &progress = RunProgress::current();
    progress.isWriting = true;
    m_problem = file.write(bytes);
    progress.isWriting = false;
}

/// Returns what a message says of a warning or a failed step.
QString RowSink::warningLine(const RowNote &note) const
{
    const StepWarning &warning = note.warning;
    const QString place = RunnerText::tr("line %1").arg(note.line);
    const QString line = lineExcerpt(warning.line);
    if (warning.isFailure)
        return failureMessage(place, warning.step, warning.typeId, m_plugins.value(warning.step),
                              line);
    return QStringLiteral("%1: steps[%2] (%3): %4")
        .arg(place, QString::number(warning.step), warning.typeId, line);
}

void RowSink::complain(const RowNote &note)
{
    const QString line = note.problem ? note.problem->toString() : warningLine(note);
    if (!m_repeated.isShown(note.problem ? -1 : note.warning.step, line))
        return;
    m_console.complain(inSource(note.problem ? line + rowText(note.row) : line));
    if (!note.problem && !note.warning.isFailure)
        m_explainer.explainKindOnce(note.warning.typeId, note.warning.line);
}

QString RowSink::inSource(const QString &line) const
{
    return QStringLiteral("%1: %2").arg(m_source, line);
}

void RowSink::finish()
{
    m_progress.clear();
    const QStringList lines = m_repeated.rest();
    for (const QString &line : lines)
        m_console.complain(
            inSource(line + RunnerText::tr("; \"--errors FILE\" keeps all of them")));
}
