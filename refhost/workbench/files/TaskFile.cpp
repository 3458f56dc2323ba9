#include "refhost/workbench/files/TaskFile.h"

#include "refhost/engine/FileBytes.h"
#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/PackedFrame.h"
#include "refhost/engine/TaskPacker.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskWriter.h"

#include "Operation.h"

#include <QCryptographicHash>
#include <QFileInfo>

Result<TaskFile> readTaskFile(const QString &path, const OperationCatalog &catalog)
{
    const Result<QByteArray> bytes = readFileBytes(path);
    if (!bytes)
        return bytes.problem();
    Result<Task> task = TaskReader(catalog).readBytes(bytes.value());
    if (!task) {
        Problem problem = task.problem();
        problem.file = path;
        return problem;
    }
    const TaskForm form = isPackedTask(bytes.value()) ? TaskForm::Packed : TaskForm::Json;
    return TaskFile{std::move(task.value()), form, stampOf(bytes.value())};
}

Result<QByteArray> taskBytes(const Task &task, TaskForm form, const OperationCatalog &catalog)
{
    return form == TaskForm::Packed ? packTask(task) : taskToExactJson(task, catalog);
}

QByteArray roughJson(const Task &task, const OperationCatalog &catalog)
{
    return indentedJson(taskToJson(task, catalog));
}

TaskForm formOfName(const QString &path, TaskForm otherwise)
{
    const QString suffix = QFileInfo(path).suffix();
    for (const TaskForm form : {TaskForm::Json, TaskForm::Packed}) {
        if (suffix.compare(suffixOf(form), Qt::CaseInsensitive) == 0)
            return form;
    }
    return otherwise;
}

QString suffixOf(TaskForm form)
{
    return form == TaskForm::Packed ? QStringLiteral("task") : QStringLiteral("json");
}

QByteArray stampOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray stampOfFile(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return {};
    const Result<QByteArray> bytes = readFileBytes(path);
    return bytes ? stampOf(bytes.value()) : QByteArray();
}
