#pragma once

#include "refhost/engine/Result.h"
#include "refhost/engine/Task.h"

#include <QString>

class OperationCatalog;

/// Returns whether a file of that name is read from standard input: "-", or a path that the system
/// has for it.
bool isStandardInput(const QString &name);

/// Returns how messages call the task that is read from `name`: "standard input" for "-".
QString taskName(const QString &name);

/// Reads the task in the file `name`, or on standard input for "-". A problem names the file.
Result<Task> readTask(const QString &name, const OperationCatalog &catalog);
