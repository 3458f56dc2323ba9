#pragma once

#include "refhost/engine/Problem.h"
#include "refhost/engine/Task.h"

#include <QSet>
#include <QString>

#include <optional>

/// Holds the variables of a task, one after the other, to what every task keeps to: each has a name
/// of its own and a type, and a value, if any, that fits the type.
class VariableCheck
{
public:
    /// The problem of the next variable, with its place; none when there is nothing to say.
    std::optional<Problem> check(const TaskVariable &variable);

private:
    QSet<QString> m_names;
};
