#pragma once

#include "refhost/engine/Task.h"

#include <QHash>
#include <QPair>

class TaskState;

/// The variables of a run, which follow those of the task.
class RunVariables
{
public:
    const VariableScope &scope() const { return m_scope; }
    VariableScope &scope() { return m_scope; }

    /// The variables of the task at their start values.
    void start(const TaskState &state);

    /// Follows the task as it becomes another: a variable keeps its value under another name and
    /// gets back the one it had when it comes back; a new one, or one of another type, begins at
    /// its start value. Whether anything became other.
    bool follow(const TaskState &before, const TaskState &after);

private:
    void remember(const TaskState &state);
    QVariant valueOf(int id, const TaskVariable &variable) const;

    VariableScope m_scope;
    QHash<QPair<int, int>, QVariant> m_known; ///< the last values, by identifier and type
};
