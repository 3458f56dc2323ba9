#pragma once

#include "refhost/engine/FactBook.h"
#include "refhost/engine/check/Finding.h"

#include <QList>

class OperationCatalog;
class Task;

/// Looks for likely mistakes in a task without running it, by the annotations of its operations:
/// what an editor would not have offered, what will find nothing, and what a user may have taken
/// for something else. In the order of the steps and their properties; those of the task itself
/// last. The catalogue has to be the one the task was read with. With `book`, facts that no
/// annotation tells are used, too.
QList<Finding> checkTask(const Task &task, const OperationCatalog &catalog,
                         const FactBook &book = {});
