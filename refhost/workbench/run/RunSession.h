#pragma once

#include "refhost/workbench/run/RunCursor.h"
#include "refhost/workbench/run/RunRecords.h"
#include "refhost/workbench/run/RunVariables.h"

#include <QObject>
#include <QTimer>

class Operation;
class TaskDocument;

/// Runs the steps of a document one after the other and can be halted between any two of them. All
/// happens on the thread of the window, as plug-ins demand; between the steps the window lives.
///
/// A run follows the document: a step that is edited, added, moved or removed while the run is
/// halted is run as it is then. A step that lets the window live while it runs finishes first;
/// what was asked for meanwhile is done after it.
class RunSession : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Ready,   ///< nothing has run, the variables are at their start values
        Running, ///< between two steps, going on by itself
        Paused,  ///< halted before `nextStep`
        Finished ///< the last step has run, or the run was stopped
    };
    Q_ENUM(State)

    /// Why a run is `Paused` or `Finished`.
    enum class Halt { Stepped, Asked, Breakpoint, Target, End, Stopped };
    Q_ENUM(Halt)

    /// The document has to outlive the session.
    explicit RunSession(TaskDocument &document, QObject *parent = nullptr);

    State state() const { return m_state; }
    /// Why the run halted last; of use while it is `Paused` or `Finished`.
    Halt lastHalt() const { return m_halt; }

    /// The step that would run next, 0 when there is none. In `Ready` the first, in `Finished`
    /// none.
    int nextStep() const;

    /// The variables as they are now: the start values in `Ready`.
    const VariableScope &scope() const { return m_variables.scope(); }

    /// What the steps have done since the run began, oldest first; of very many the last ones.
    const QVector<StepRecord> &records() const { return m_records.all(); }
    /// The last record of a step in this run, null when it has not run. Valid until the next step.
    const StepRecord *lastRecord(int step) const { return m_records.last(step); }

    /// Goes on to the next breakpoint, past one it is halted at, or to the end; begins a run when
    /// none is under way.
    void run();
    /// Runs one step and halts; begins a run when none is under way.
    void stepOver();
    /// Goes on and halts before that step, unless it is the next or lies behind: begins a run when
    /// none is under way.
    void runTo(int step);
    /// Whether `runTo` would do anything.
    bool canRunTo(int step) const;
    /// Halts before the next step.
    void pause();
    /// Ends the run; values and records stay to be looked at.
    void stop();
    /// Forgets the run: the variables are at their start values again.
    void reset();

    /// Gives a variable another value while the run is paused or over, as a step of undo. The value
    /// has to fit the type of the variable.
    void setValue(const QString &variable, const QVariant &value);

Q_SIGNALS:
    /// The state, or the next step of a run that is not running, is another one.
    void stateChanged();
    /// A step has run; the record is the last of `records`. What slots ask for is done afterwards.
    void stepFinished(const StepRecord &record);
    /// Values of `scope` may be others. Comes not after each step but when the window lives again.
    void valuesChanged();

private:
    friend class ValueCommand;

    enum class Wish { None, Pause, Stop, Reset };

    void begin();
    bool mayGoOn() const;
    void goOn(int target);
    void runSlice();
    void proceed();
    void runNext();
    StepRecord perform(const Operation &original, int row);
    void obey();
    void halt(State state, Halt reason);
    void setState(State state);
    void followDocument(const TaskState &before);
    void applyValue(int variable, const QVariant &value);

    TaskDocument &m_document;
    QTimer m_timer; ///< between two slices of a run
    State m_state = State::Ready;
    Halt m_halt = Halt::End;
    RunCursor m_cursor;
    RunVariables m_variables;
    RunRecords m_records;
    OperandTrace m_operands;
    int m_target = 0;    ///< the step to halt before
    int m_passing = 0;   ///< the step whose breakpoint does not count
    bool m_busy = false; ///< while a step runs or is told of
    Wish m_wish = Wish::None;
    int m_moment = 0; ///< counts the steps and runs, so that a value knows whether it is stale
};
