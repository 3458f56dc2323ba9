#pragma once

#include "refhost/engine/Task.h"

#include <QVector>

#include <memory>
#include <vector>

class Operation;

/// One step of a task in the window. Its operation never changes, since earlier states of the task
/// share it: an edited step is another operation under the same identifier.
struct StepState
{
    int id = 0;
    std::shared_ptr<const Operation> operation;
    bool breakpoint = false;
};

/// One variable of a task in the window.
struct VariableState
{
    int id = 0;
    TaskVariable variable;
};

/// A task as it is at one moment: a value, cheap to copy and to keep. Steps and variables carry
/// identifiers, which stay theirs when they are edited, moved or renamed, and are never used again
/// for others. The functions that edit return another state and leave this one alone; identifiers
/// and rows that are not there are passed over.
class TaskState
{
public:
    QVector<StepState> steps;
    QVector<VariableState> variables;

    /// The state of a task: its own operations and variables under new identifiers.
    static TaskState fromTask(Task task);

    /// A task with clones of the operations, which a caller may run or change.
    Task toTask() const;

    /// The place of a step, -1 when there is none of that identifier.
    int stepRow(int id) const;
    /// The step, null when there is none of that identifier. Valid until the state changes.
    const StepState *step(int id) const;
    int variableRow(int id) const;
    const VariableState *variable(int id) const;
    /// The variable of that name, compared exactly; null when there is none.
    const VariableState *variableNamed(const QString &name) const;
    /// The names of all variables, in their order.
    QStringList variableNames() const;

    TaskState withSteps(int row, const QVector<StepState> &inserted) const;
    TaskState withoutSteps(const QVector<int> &ids) const;
    /// The steps, in their present order, in front of what stands at `row` now.
    TaskState withStepsMoved(const QVector<int> &ids, int row) const;
    TaskState withProperty(int id, const QString &name, const QVariant &value) const;
    TaskState withBreakpoint(int id, bool breakpoint) const;

    TaskState withVariable(int row, const VariableState &inserted) const;
    TaskState withoutVariables(const QVector<int> &ids) const;
    /// The variable of that identifier replaced.
    TaskState withVariableChanged(int id, const TaskVariable &variable) const;
};

/// A new identifier.
int newStateId();

/// A new step with that operation, which it takes over.
StepState newStep(std::unique_ptr<Operation> operation);

/// A new step like `step`, under an identifier of its own.
StepState duplicate(const StepState &step);

/// Whether two states are the same task to a user: equal variables, steps with equal properties.
/// Identifiers and breakpoints do not count.
bool sameTask(const TaskState &left, const TaskState &right);
