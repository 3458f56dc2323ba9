#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/MessageCapture.h"
#include "refhost/engine/Result.h"
#include "refhost/engine/RowFormat.h"
#include "refhost/engine/Task.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

class RowMembers;

/// A line that a step logged, or what it threw.
struct StepWarning
{
    int step = 0; ///< place in the task, counted from 0
    QString typeId;
    QString line;
    bool isFailure = false; ///< `line` is what the step threw
};

/// What came of one row.
struct RowOutcome
{
    QByteArray output; ///< without a line break; nothing when there is a problem
    QList<StepWarning> warnings;
    int failedSteps = 0;            ///< how many of the warnings are failures
    std::optional<Problem> problem; ///< why the row failed; names the line, but no file
};

/// Runs a task on one row after the other, each on fresh values: the task's own, overridden by
/// those of the row. Made, used and deleted on one thread; any number of them may work side by
/// side.
class RowRunner
{
public:
    /// The format's variables have to be the task's.
    RowRunner(Task task, const RowFormat &format);

    /// Runs the task on `row`, a line without its break. `line` is its number for problems.
    RowOutcome run(const QByteArray &row, qint64 line);

private:
    Q_DISABLE_COPY_MOVE(RowRunner)

    void reset();
    std::optional<Problem> take(const QByteArray &row, qint64 line);
    std::optional<Problem> takeObject(const QByteArray &row, qint64 line);
    std::optional<Problem> takeMember(const QString &name, const JsonValue &json, VarType type,
                                      RowMembers &members, qint64 line);
    std::optional<Problem> takeText(const QByteArray &row, qint64 line);
    void runSteps(RowOutcome &outcome);
    void runStep(const Operation &step, int index, RowOutcome &outcome);
    Result<QByteArray> output(qint64 line) const;
    Result<QByteArray> plainOutput(qint64 line) const;

    Task m_task;
    RowFormat m_format;
    VariableScope m_scope;
    QList<TaskVariable> m_start; ///< every variable with the value a row starts with
    QByteArray m_extra;          ///< members of the row that come out unchanged, with commas
    QList<QByteArray> m_keys;    ///< of the printed variables, with what stands around them in JSON
    MessageCapture m_capture;
};
