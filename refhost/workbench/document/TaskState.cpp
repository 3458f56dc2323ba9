#include "refhost/workbench/document/TaskState.h"

#include "Operation.h"

#include <QMetaProperty>
#include <QSet>

#include <algorithm>

namespace {

template <typename State>
int rowOf(const QVector<State> &states, int id)
{
    const auto found = std::find_if(states.cbegin(), states.cend(),
                                    [id](const State &state) { return state.id == id; });
    return found == states.cend() ? -1 : static_cast<int>(found - states.cbegin());
}

template <typename State>
const State *stateOf(const QVector<State> &states, int id)
{
    const int row = rowOf(states, id);
    return row < 0 ? nullptr : &states.at(row);
}

template <typename State>
void removeStates(QVector<State> &states, const QVector<int> &ids)
{
    const QSet<int> named(ids.cbegin(), ids.cend());
    const auto isNamed = [&named](const State &state) { return named.contains(state.id); };
    states.erase(std::remove_if(states.begin(), states.end(), isNamed), states.end());
}

/// Whether the properties, all that can be edited, are equal. A text that was emptied counts as one
/// that was never there.
bool sameProperties(const Operation &left, const Operation &right)
{
    const QMetaObject &meta = *left.metaObject();
    for (int i = Operation::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        if (property.read(&left) != right.property(property.name()))
            return false;
    }
    return true;
}

bool sameStep(const StepState &left, const StepState &right)
{
    if (left.operation == right.operation)
        return true;
    return left.operation->typeId() == right.operation->typeId() &&
           sameProperties(*left.operation, *right.operation);
}

bool sameVariable(const VariableState &left, const VariableState &right)
{
    const TaskVariable &a = left.variable;
    const TaskVariable &b = right.variable;
    return a.name == b.name && a.type == b.type && a.value == b.value &&
           a.value.isValid() == b.value.isValid();
}

} // namespace

TaskState TaskState::fromTask(Task task)
{
    TaskState state;
    for (auto &step : task.steps)
        state.steps.append(newStep(std::move(step)));
    for (const TaskVariable &variable : qAsConst(task.variables))
        state.variables.append({newStateId(), variable});
    return state;
}

Task TaskState::toTask() const
{
    Task task;
    for (const VariableState &state : variables)
        task.variables.append(state.variable);
    for (const StepState &state : steps)
        task.steps.emplace_back(state.operation->clone(nullptr));
    return task;
}

int TaskState::stepRow(int id) const
{
    return rowOf(steps, id);
}

const StepState *TaskState::step(int id) const
{
    return stateOf(steps, id);
}

int TaskState::variableRow(int id) const
{
    return rowOf(variables, id);
}

const VariableState *TaskState::variable(int id) const
{
    return stateOf(variables, id);
}

const VariableState *TaskState::variableNamed(const QString &name) const
{
    const auto found =
        std::find_if(variables.cbegin(), variables.cend(),
                     [&name](const VariableState &state) { return state.variable.name == name; });
    return found == variables.cend() ? nullptr : &*found;
}

QStringList TaskState::variableNames() const
{
    QStringList names;
    names.reserve(variables.size());
    for (const VariableState &state : variables)
        names.append(state.variable.name);
    return names;
}

TaskState TaskState::withSteps(int row, const QVector<StepState> &inserted) const
{
    TaskState next = *this;
    const int first = qBound(0, row, steps.size());
    for (int i = 0; i < inserted.size(); ++i)
        next.steps.insert(first + i, inserted.at(i));
    return next;
}

TaskState TaskState::withoutSteps(const QVector<int> &ids) const
{
    TaskState next = *this;
    removeStates(next.steps, ids);
    return next;
}

TaskState TaskState::withStepsMoved(const QVector<int> &ids, int row) const
{
    const QSet<int> named(ids.cbegin(), ids.cend());
    QVector<StepState> moved;
    int target = 0;
    for (int i = 0; i < steps.size(); ++i) {
        if (named.contains(steps.at(i).id))
            moved.append(steps.at(i));
        else if (i < row)
            ++target;
    }
    return withoutSteps(ids).withSteps(target, moved);
}

TaskState TaskState::withProperty(int id, const QString &name, const QVariant &value) const
{
    TaskState next = *this;
    const int row = stepRow(id);
    if (row < 0)
        return next;
    std::shared_ptr<Operation> edited(steps.at(row).operation->clone(nullptr));
    edited->setProperty(name.toUtf8().constData(), value);
    next.steps[row].operation = std::move(edited);
    return next;
}

TaskState TaskState::withBreakpoint(int id, bool breakpoint) const
{
    TaskState next = *this;
    const int row = stepRow(id);
    if (row >= 0)
        next.steps[row].breakpoint = breakpoint;
    return next;
}

TaskState TaskState::withVariable(int row, const VariableState &inserted) const
{
    TaskState next = *this;
    next.variables.insert(qBound(0, row, variables.size()), inserted);
    return next;
}

TaskState TaskState::withoutVariables(const QVector<int> &ids) const
{
    TaskState next = *this;
    removeStates(next.variables, ids);
    return next;
}

TaskState TaskState::withVariableChanged(int id, const TaskVariable &variable) const
{
    TaskState next = *this;
    const int row = variableRow(id);
    if (row >= 0)
        next.variables[row].variable = variable;
    return next;
}

int newStateId()
{
    static int last = 0;
    return ++last;
}

StepState newStep(std::unique_ptr<Operation> operation)
{
    return {newStateId(), std::shared_ptr<const Operation>(std::move(operation)), false};
}

StepState duplicate(const StepState &step)
{
    return {newStateId(), step.operation, false};
}

bool sameTask(const TaskState &left, const TaskState &right)
{
    return std::equal(left.steps.cbegin(), left.steps.cend(), right.steps.cbegin(),
                      right.steps.cend(), sameStep) &&
           std::equal(left.variables.cbegin(), left.variables.cend(), right.variables.cbegin(),
                      right.variables.cend(), sameVariable);
}
