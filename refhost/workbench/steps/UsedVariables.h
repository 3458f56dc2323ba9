#pragma once

#include "refhost/workbench/document/TaskState.h"

#include <QSet>
#include <QString>
#include <QVector>

class OperationCatalog;

/// The names of the variables that the steps read or write, as their annotations and settings tell.
/// Names that no variable has are among them.
QSet<QString> usedVariables(const QVector<StepState> &steps, const OperationCatalog &catalog);
