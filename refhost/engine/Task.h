#pragma once

#include "VarType.h"
#include "VariableScope.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

class Operation;

/// One variable of a task with its start value.
struct TaskVariable
{
    QString name;
    VarType type = VarType::None;
    QVariant value; ///< invalid for the empty value of the type
};

/// A list of variables and a list of steps. Owns its steps, so it can be moved but not copied.
class Task
{
public:
    Task();
    ~Task();
    Task(Task &&other) noexcept;
    Task &operator=(Task &&other) noexcept;

    QList<TaskVariable> variables;
    std::vector<std::unique_ptr<Operation>> steps;

    /// The variable called `name`, null when there is none. Valid until the list changes.
    TaskVariable *variable(const QString &name);

    /// A task with equal variables and clones of the steps.
    Task clone() const;

    /// A scope with all variables at their start values.
    VariableScope startScope() const;
};
