#include "refhost/workbench/run/RunSession.h"

#include "refhost/engine/TaskRunner.h"
#include "refhost/engine/ValueType.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/run/ValueCommand.h"

#include "Operation.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

#include <memory>

namespace {

/// As long as a hand does not feel that the window was away.
constexpr int sliceMilliseconds = 20;

} // namespace

RunSession::RunSession(TaskDocument &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &RunSession::runSlice);
    connect(&document, &TaskDocument::changed, this, &RunSession::followDocument);
    connect(&document, &TaskDocument::replaced, this, &RunSession::reset);
    m_variables.start(document.state());
    m_cursor.moveToStart(document.state());
}

int RunSession::nextStep() const
{
    return m_state == State::Finished ? 0 : m_cursor.step();
}

void RunSession::run()
{
    goOn(0);
}

void RunSession::stepOver()
{
    if (!mayGoOn())
        return;
    if (m_state != State::Paused)
        begin();
    setState(State::Running);
    if (m_cursor.step() == 0)
        halt(State::Finished, Halt::End);
    else
        runNext();
    if (m_state == State::Running)
        halt(State::Paused, Halt::Stepped);
}

void RunSession::runTo(int step)
{
    if (canRunTo(step))
        goOn(step);
}

bool RunSession::canRunTo(int step) const
{
    const int row = m_document.state().stepRow(step);
    return mayGoOn() && row >= 0 && (m_state != State::Paused || row > m_cursor.row());
}

void RunSession::pause()
{
    if (m_state != State::Running)
        return;
    if (m_busy)
        m_wish = qMax(m_wish, Wish::Pause);
    else
        halt(State::Paused, Halt::Asked);
}

void RunSession::stop()
{
    if (m_busy)
        m_wish = qMax(m_wish, Wish::Stop);
    else if (m_state == State::Running || m_state == State::Paused)
        halt(State::Finished, Halt::Stopped);
}

void RunSession::reset()
{
    if (m_busy) {
        m_wish = Wish::Reset;
        return;
    }
    m_timer.stop();
    ++m_moment;
    m_records.clear();
    m_variables.start(m_document.state());
    m_cursor.moveToStart(m_document.state());
    setState(State::Ready);
    Q_EMIT valuesChanged();
}

void RunSession::setValue(const QString &variable, const QVariant &value)
{
    const VariableState *const state = m_document.state().variableNamed(variable);
    const bool mayEdit = m_state == State::Paused || m_state == State::Finished;
    if (m_busy || !mayEdit || !state || !fitsType(value, scope().typeOf(variable)))
        return;
    const QVariant before = scope().get(variable);
    if (value == before)
        return;
    m_document.endTyping();
    m_document.undoStack().push(
        new ValueCommand(*this, tr("设置 %1 的当前值").arg(variable), state->id, before, value));
}

void RunSession::begin()
{
    ++m_moment;
    m_records.clear();
    m_variables.start(m_document.state());
    m_cursor.moveToStart(m_document.state());
    m_passing = 0;
}

bool RunSession::mayGoOn() const
{
    if (m_busy || m_state == State::Running)
        return false;
    return m_state == State::Paused || !m_document.state().steps.isEmpty();
}

void RunSession::goOn(int target)
{
    if (!mayGoOn())
        return;
    if (m_state == State::Paused)
        m_passing = m_cursor.step();
    else
        begin();
    m_target = target;
    setState(State::Running);
    m_timer.start(0);
}

void RunSession::runSlice()
{
    QElapsedTimer clock;
    clock.start();
    while (m_state == State::Running && clock.elapsed() < sliceMilliseconds)
        proceed();
    if (m_state != State::Running)
        return;
    m_timer.start(0);
    Q_EMIT valuesChanged();
}

void RunSession::proceed()
{
    const int next = m_cursor.step();
    if (next == 0)
        halt(State::Finished, Halt::End);
    else if (next == m_target)
        halt(State::Paused, Halt::Target);
    else if (next != m_passing && m_document.state().steps.at(m_cursor.row()).breakpoint)
        halt(State::Paused, Halt::Breakpoint);
    else
        runNext();
}

void RunSession::runNext()
{
    // The document may become another while the step runs.
    const StepState step = m_document.state().steps.at(m_cursor.row());
    const int row = m_cursor.row();
    m_passing = 0;
    ++m_moment;
    m_cursor.moveOn(m_document.state());
    {
        const QScopedValueRollback<bool> busy(m_busy, true);
        StepRecord record = perform(*step.operation, row);
        record.step = step.id;
        record.row = row;
        record.operation = step.operation;
        Q_EMIT stepFinished(m_records.add(std::move(record)));
    }
    obey();
}

StepRecord RunSession::perform(const Operation &original, int row)
{
    const std::unique_ptr<Operation> operation(original.clone(nullptr));
    VariableScope &variables = m_variables.scope();
    StepRecord record;
    record.summary = operation->toString();
    record.operands = m_operands.read(*operation, variables);
    record.time = QDateTime::currentDateTime();
    const StepReport report = runStep(*operation, variables, row);
    record.nanoseconds = report.nanoseconds;
    record.warnings = report.warnings;
    if (report.failure)
        record.warnings.append(tr("步骤抛出了异常：%1").arg(*report.failure));
    const QStringList written = variables.writtenNames();
    for (const QString &name : written)
        record.writes.append({name, variables.get(name)});
    return record;
}

/// Does what was asked for while the step ran, or ends the run behind the last step.
void RunSession::obey()
{
    const Wish wish = std::exchange(m_wish, Wish::None);
    if (wish == Wish::Reset)
        reset();
    else if (wish == Wish::Stop)
        halt(State::Finished, Halt::Stopped);
    else if (m_cursor.step() == 0)
        halt(State::Finished, Halt::End);
    else if (wish == Wish::Pause)
        halt(State::Paused, Halt::Asked);
}

void RunSession::halt(State state, Halt reason)
{
    m_timer.stop();
    m_halt = reason;
    m_target = 0;
    Q_EMIT valuesChanged();
    // Also when it was halted before: the next step is another.
    m_state = state;
    Q_EMIT stateChanged();
}

void RunSession::setState(State state)
{
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

void RunSession::followDocument(const TaskState &before)
{
    const TaskState &state = m_document.state();
    const int next = nextStep();
    bool valuesDiffer = false;
    if (m_state == State::Ready) {
        valuesDiffer = !state.variables.isSharedWith(before.variables);
        if (valuesDiffer)
            m_variables.start(state);
        m_cursor.moveToStart(state);
    } else {
        valuesDiffer = m_variables.follow(before, state);
        m_cursor.follow(before, state);
    }
    if (valuesDiffer)
        Q_EMIT valuesChanged();
    if (m_state != State::Running && nextStep() != next)
        Q_EMIT stateChanged();
}

void RunSession::applyValue(int variable, const QVariant &value)
{
    const VariableState *const state = m_document.state().variable(variable);
    if (!state || !fitsType(value, scope().typeOf(state->variable.name)))
        return;
    m_variables.scope().set(state->variable.name, value);
    Q_EMIT valuesChanged();
}
