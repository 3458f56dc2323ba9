#pragma once

#include "refhost/engine/Result.h"
#include "refhost/workbench/document/TaskState.h"

#include <QString>
#include <QVector>

#include <memory>

class OperationCatalog;
class QMimeData;

// Steps on their way through the clipboard and between windows: as the text of a JSON task, which
// other programs take as well, and where JSON does not say all of it also as a packed task.

/// The kind of data that holds a packed task.
QString packedTaskMimeType();

/// Those steps with the variables they use, as a task of its own. A variable keeps its start value
/// when that is small, so that nobody mails a whole log.
Task partialTask(const TaskState &state, const QVector<int> &steps,
                 const OperationCatalog &catalog);

/// The steps with their variables, for others to paste.
std::unique_ptr<QMimeData> mimeFromTask(const Task &task, const OperationCatalog &catalog);

/// Whether there may be steps in it. A file, which a window opens, is nothing to paste.
bool mayHoldTask(const QMimeData &mime);

/// The task in it, in whatever form. The problem is that of the text.
Result<Task> taskFromMime(const QMimeData &mime, const OperationCatalog &catalog);
