#pragma once

#include <QStringList>

#include <functional>
#include <optional>

class Operation;
class Task;
class VariableScope;

/// What one step of a run did.
struct StepReport
{
    int index = 0;                   ///< place in the task, counted from 0
    const Operation *step = nullptr; ///< belongs to the task
    QStringList written;             ///< the variables it wrote; their values are in the scope
    QStringList warnings;            ///< the lines it logged
    std::optional<QString> failure;  ///< what it threw; the values it wrote before stay
    qint64 nanoseconds = 0;          ///< what its `doOperation` took
};

/// Runs one step on `scope`; afterwards `writtenNames` of the scope are those of this step, and the
/// step keeps no pointer to the scope. `index` is the place of the step in its task.
StepReport runStep(Operation &step, VariableScope &scope, int index = 0);

/// Runs the steps of `task` in order on `scope`, and calls `report` after each, and `begin`, where
/// there is one, before it, while the scope is as the step will find it. The steps keep no pointer
/// to the scope afterwards. A step that throws ends no run; its report says so.
void runTask(const Task &task, VariableScope &scope,
             const std::function<void(const StepReport &)> &report,
             const std::function<void(const Operation &)> &begin = {});
