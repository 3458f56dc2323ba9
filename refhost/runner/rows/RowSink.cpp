#include "refhost/runner/rows/RowSink.h"

#include "refhost/runner/Console.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// Adds the row that failed: as text, or its bytes in Base64 where it is none.
void addRow(QJsonObject &json, const QByteArray &row)
{
    const QString text = QString::fromUtf8(row);
    if (text.toUtf8() == row)
        json.insert(QStringLiteral("row"), text);
    else
        json.insert(QStringLiteral("rowBase64"), QString::fromLatin1(row.toBase64()));
}

/// The note as a line of a file of errors.
QByteArray noteLine(const RowNote &note)
{
    QJsonObject json{{QStringLiteral("line"), note.line}};
    if (note.problem) {
        json.insert(QStringLiteral("problem"), note.problem->toString());
        addRow(json, note.row);
    } else {
        json.insert(QStringLiteral("step"), note.warning.step);
        json.insert(QStringLiteral("type"), note.warning.typeId);
        json.insert(QStringLiteral("warning"), note.warning.line);
    }
    return QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

RowSink::RowSink(const QString &source, OutputFile &out, OutputFile *errors, const Console &console)
    : m_source(source)
    , m_out(out)
    , m_errors(errors)
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
            write(*m_errors, noteLine(note));
        else
            complain(note);
    }
    m_tally += outcome.tally;
    m_progress.show(m_tally);
    return !m_problem && !outcome.isLast;
}

void RowSink::write(OutputFile &file, const QByteArray &bytes)
{
    if (!m_problem && !bytes.isEmpty())
        m_problem = file.write(bytes);
}

void RowSink::complain(const RowNote &note) const
{
    if (note.problem) {
        Problem problem = *note.problem;
        problem.file = m_source;
        m_console.complain(problem.toString() + QStringLiteral("; the row: ") +
                           QString::fromUtf8(note.row));
        return;
    }
    m_console.complain(QStringLiteral("%1: line %2: steps[%3] (%4): %5")
                           .arg(m_source, QString::number(note.line),
                                QString::number(note.warning.step), note.warning.typeId,
                                note.warning.line));
}
