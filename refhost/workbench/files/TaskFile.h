#pragma once

#include "refhost/engine/Result.h"
#include "refhost/engine/Task.h"

#include <QByteArray>
#include <QString>

class OperationCatalog;

/// The forms in which a task stands in a file.
enum class TaskForm {
    Json,  ///< a text for people and version control
    Packed ///< exact to the last bit
};

/// A task as it was read from a file.
struct TaskFile
{
    Task task;
    TaskForm form = TaskForm::Json;
    QByteArray stamp;
};

/// Reads a file of either form, which its content tells. The problem names the file.
Result<TaskFile> readTaskFile(const QString &path, const OperationCatalog &catalog);

/// The content of a file that reads back as the very same task. What JSON cannot say exactly is a
/// problem of the reason `BeyondJson`.
Result<QByteArray> taskBytes(const Task &task, TaskForm form, const OperationCatalog &catalog);

/// The task as JSON, as far as JSON can say it.
QByteArray roughJson(const Task &task, const OperationCatalog &catalog);

/// The form that the name of a file asks for, `otherwise` when its suffix is another one.
TaskForm formOfName(const QString &path, TaskForm otherwise);

/// The suffix of files of that form, without a point.
QString suffixOf(TaskForm form);

/// What tells one content of a file from another.
QByteArray stampOf(const QByteArray &bytes);

/// The stamp of the file at `path` as it is now, empty when it cannot be read.
QByteArray stampOfFile(const QString &path);
