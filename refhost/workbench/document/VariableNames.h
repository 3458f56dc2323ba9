#pragma once

#include "refhost/workbench/document/TaskState.h"

#include <QString>

// Names for the variables of a task.

/// Why the variable of that identifier, or a new one of the identifier 0, cannot have the name, for
/// a user; empty when it can.
QString nameRefusal(const TaskState &state, int id, const QString &name);

/// A name nobody has: `name` with the next free number at its end.
QString freeVariableName(const TaskState &state, const QString &name);
