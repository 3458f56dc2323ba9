#include "refhost/runner/rows/RowBatchRunner.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/rows/Interruption.h"
#include "refhost/runner/rows/RowBatch.h"
#include "refhost/runner/rows/RowSource.h"
#include "refhost/runner/supervision/RunProgress.h"

#include <cstring>
#include <utility>

namespace {

Problem tooLong(qint64 line)
{
    return {Problem::Reason::UnfitValue,
            {},
            RunnerText::tr("line %1").arg(line),
            RunnerText::tr("a row of more than %1 bytes").arg(RowSource::longestRow)};
}

/// Returns the line that stands for a row that failed. A plain line could not be told from a value,
/// so it is empty.
QByteArray failureLine(const Problem &problem, const RowFormat &format)
{
    if (format.plainText)
        return "\n";
    return "{\"error\":" + jsonText(problem.toString()).toUtf8() + "}\n";
}

bool hasNul(const QByteArray &bytes)
{
    return std::memchr(bytes.constData(), 0, static_cast<std::size_t>(bytes.size())) != nullptr;
}

Problem nulCharacter(const QByteArray &row, qint64 line)
{
    const int column = QString::fromUtf8(row.constData(), row.indexOf('\0')).size() + 1;
    return {Problem::Reason::UnfitValue,
            {},
            RunnerText::tr("line %1, column %2").arg(line).arg(column),
            RunnerText::tr("a NUL character; expected UTF-8 (text in UTF-16 has to be converted)")};
}

} // namespace

RowBatchRunner::RowBatchRunner(Task task, const RowFormat &format, bool stopsAtFailure,
                               const Interruption &interruption)
    : m_runner(std::move(task), format)
    , m_format(format)
    , m_stopsAtFailure(stopsAtFailure)
    , m_interruption(interruption)
    , m_progress(RunProgress::ofThisThread())
{
}

RowBatchOutcome RowBatchRunner::run(const RowBatch &batch)
{
    RowBatchOutcome outcome;
    if (batch.tooLong)
        fail({}, batch.firstLine, tooLong(batch.firstLine), outcome);
    m_batchHasNul = hasNul(batch.lines);
    qint64 line = batch.firstLine;
    for (int begin = 0; begin < batch.lines.size() && !outcome.isLast; ++line) {
        int end = batch.lines.indexOf('\n', begin);
        if (end < 0)
            end = batch.lines.size();
        const int next = end + 1;
        if (end > begin && batch.lines.at(end - 1) == '\r')
            --end;
        // No copy: the batch outlives the row.
        runRow(QByteArray::fromRawData(batch.lines.constData() + begin, end - begin), line,
               outcome);
        begin = next;
        outcome.isLast = outcome.isLast || m_interruption.requested();
    }
    if (m_stopsAtFailure && outcome.tally.failed > 0)
        outcome.isLast = true;
    return outcome;
}

/// Blank lines between JSON objects are no rows.
bool RowBatchRunner::isNoRow(const QByteArray &row) const
{
    return m_format.lineVariable.isEmpty() && row.trimmed().isEmpty();
}

void RowBatchRunner::fail(const QByteArray &row, qint64 line, const Problem &problem,
                          RowBatchOutcome &outcome) const
{
    ++outcome.tally.rows;
    ++outcome.tally.failed;
    // A copy: the row is a part of the batch.
    outcome.notes.append({line, problem, QByteArray(row.constData(), row.size()), {}});
    if (m_format.keepsFailed)
        outcome.output += failureLine(problem, m_format);
    outcome.isLast = m_stopsAtFailure;
}

void RowBatchRunner::runRow(const QByteArray &row, qint64 line, RowBatchOutcome &outcome)
{
    if (isNoRow(row)) {
        if (m_format.keepsFailed)
            outcome.output += '\n';
        return;
    }
    const RowTally before = outcome.tally;
    m_progress.beginRow(line);
    if (m_batchHasNul && hasNul(row))
        fail(row, line, nulCharacter(row, line), outcome);
    else
        addResult(m_runner.run(row, line), row, line, outcome);
    m_progress.endRow(outcome.tally - before);
}

void RowBatchRunner::addResult(const RowOutcome &result, const QByteArray &row, qint64 line,
                               RowBatchOutcome &outcome) const
{
    if (result.problem) {
        fail(row, line, *result.problem, outcome);
        return;
    }
    ++outcome.tally.rows;
    outcome.tally.warnings += result.warnings.size() - result.failedSteps;
    outcome.tally.failedSteps += result.failedSteps;
    for (const StepWarning &warning : result.warnings)
        outcome.notes.append({line, std::nullopt, {}, warning});
    if (m_stopsAtFailure && result.failedSteps > 0) {
        ++outcome.tally.failed;
        outcome.isLast = true;
        return;
    }
    outcome.output += result.output + '\n';
}
