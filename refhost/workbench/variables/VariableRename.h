#pragma once

#include "refhost/workbench/document/TaskState.h"

#include <QString>
#include <QVector>

// Variables by name in a task and its steps, read from the annotations of the operations: as
// references "$name" and "$name.path" in operands, and as bare names. Properties that an editor
// does not show at the moment count as well.

/// A property of a step that names a variable.
struct VariableUse
{
    int step = 0; ///< its identifier
    QString property;
};

/// Where the steps name the variable, in the order of the steps and their properties.
QVector<VariableUse> variableUses(const TaskState &state, const QString &name);

/// The state with another name for the variable of that identifier, and in the steps that name it
/// if `inSteps`. A reference that cannot be written with the new name stays as it is.
TaskState withVariableRenamed(const TaskState &state, int id, const QString &name, bool inSteps);

/// Whether some reference cannot be written with the new name, as "." ends the name in one.
bool breaksReferences(const TaskState &state, const QString &oldName, const QString &newName);

/// Why the variable of that identifier cannot have the name, for a user; empty when it can.
QString nameRefusal(const TaskState &state, int id, const QString &name);

/// A name nobody has: `name` with the next free number at its end.
QString freeVariableName(const TaskState &state, const QString &name);
