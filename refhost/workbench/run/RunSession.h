#pragma once

#include "refhost/workbench/run/StepRecord.h"

#include "VariableScope.h"

#include <QObject>
#include <QVector>

class TaskDocument;

/// Runs the steps of a document one after the other and can be halted between any two of them. All
/// happens on the thread of the window, as plug-ins demand; between the steps the window lives.
///
/// A run follows the document: a step that is edited, added, moved or removed while the run is
/// halted is run as it is then.
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

    /// The document has to outlive the session.
    explicit RunSession(TaskDocument &document, QObject *parent = nullptr);

    State state() const { return m_state; }

    /// The step that would run next, 0 when there is none. In `Ready` the first.
    int nextStep() const;

    /// The variables as they are now: the start values in `Ready`.
    const VariableScope &scope() const { return m_scope; }

    /// What the steps have done since the run began, oldest first.
    const QVector<StepRecord> &records() const { return m_records; }
    /// The last record of a step in this run, null when it has not run. Valid until the next step.
    const StepRecord *lastRecord(int step) const;

    /// Goes on to the next breakpoint or to the end; begins a run when none is under way.
    void run();
    /// Runs one step and halts.
    void stepOver();
    /// Goes on and halts before that step.
    void runTo(int step);
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
    void stateChanged();
    /// A step has run; the record is the last of `records`.
    void stepFinished(const StepRecord &record);
    /// Values of `scope` may be others.
    void valuesChanged();

private:
    TaskDocument &m_document;
    State m_state = State::Ready;
    VariableScope m_scope;
    QVector<StepRecord> m_records;
};
