#include "refhost/engine/Task.h"

#include "Operation.h"

#include <algorithm>

Task::Task() = default;
Task::~Task() = default;
Task::Task(Task &&other) noexcept = default;
Task &Task::operator=(Task &&other) noexcept = default;

TaskVariable *Task::variable(const QString &name)
{
    const auto found = std::find_if(variables.begin(), variables.end(),
                                    [&](const auto &variable) { return variable.name == name; });
    return found == variables.end() ? nullptr : &*found;
}

Task Task::clone() const
{
    Task copy;
    copy.variables = variables;
    for (const auto &step : steps)
        copy.steps.emplace_back(step->clone(nullptr));
    return copy;
}

VariableScope Task::startScope() const
{
    VariableScope scope;
    for (const TaskVariable &variable : variables)
        scope.declare(variable.name, variable.type, variable.value);
    return scope;
}
