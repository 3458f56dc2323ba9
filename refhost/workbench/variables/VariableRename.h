#pragma once

#include "refhost/workbench/document/TaskState.h"

#include <QString>

/// The state with another name for the variable of that identifier, and in the steps that name it
/// if `inSteps`. A reference that cannot be written with the new name stays as it is.
TaskState withVariableRenamed(const TaskState &state, int id, const QString &name, bool inSteps);

/// Whether some reference cannot be written with the new name, as "." ends the name in one.
bool breaksReferences(const TaskState &state, const QString &oldName, const QString &newName);
