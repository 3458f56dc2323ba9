#pragma once

#include "refhost/workbench/document/TaskState.h"

#include <QSet>
#include <QString>
#include <QVector>

#include <optional>

class OperationCatalog;
struct PropertySchema;

// Variables by name in the steps of a task, read from the annotations of the operations: as
// references "$name" and "$name.path" in operands, and as bare names. Properties that an editor
// does not show at the moment count as well.

/// The variable that a value of the property names, as a reference or as a bare name, which may be
/// empty; none when the value is no such name.
std::optional<QString> namedVariable(const PropertySchema &property, const QVariant &value);

/// A property of a step that names a variable.
struct VariableUse
{
    int step = 0; ///< its identifier
    QString property;
};

/// Where the steps name the variable, in the order of the steps and their properties.
QVector<VariableUse> variableUses(const TaskState &state, const QString &name);

/// The names of the variables that the steps read or write. Names that no variable has are among
/// them.
QSet<QString> usedVariables(const QVector<StepState> &steps, const OperationCatalog &catalog);
