#pragma once

#include "refhost/engine/Result.h"
#include "refhost/engine/Task.h"

#include <QByteArray>

class OperationCatalog;

/// Reads a task in the form that `packTask` writes, in full or not at all. The bytes may come from
/// anywhere. The problem, which names no file, is that of `openPackedFrame`, or else the first of
/// these: content that no task has, a type of step that the catalogue does not have, a record that
/// its operation does not read from end to end.
Result<Task> unpackTask(const QByteArray &bytes, const OperationCatalog &catalog);
