#include "refhost/workbench/edits/TaskClipboard.h"

#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/TaskPacker.h"
#include "refhost/engine/TaskUnpacker.h"
#include "refhost/engine/TaskWriter.h"
#include "refhost/workbench/document/VariableUses.h"
#include "refhost/workbench/edits/TaskText.h"

#include "Operation.h"

#include <QMimeData>
#include <QStack>

namespace {

/// Of a value that travels with its variable: UTF-16 code units, and one for each element.
constexpr int smallSize = 1000;

bool isSmall(const QVariant &value)
{
    QStack<QVariant> open; // a loop, since lists can be nested deeper than calls
    open.push(value);
    int size = 0;
    while (!open.isEmpty() && size <= smallSize) {
        const QVariant next = open.pop();
        if (next.userType() == QMetaType::QString)
            size += next.toString().size();
        if (next.userType() != QMetaType::QVariantList)
            continue;
        const QVariantList elements = next.toList();
        size += elements.size();
        for (int i = 0; i < elements.size() && size <= smallSize; ++i)
            open.push(elements.at(i));
    }
    return size <= smallSize;
}

/// The text that comes nearest to the task.
QByteArray nearestJson(const Task &task, const OperationCatalog &catalog)
{
    return indentedJson(taskToJson(task, catalog));
}

} // namespace

QString packedTaskMimeType()
{
    return QStringLiteral("application/x-textoper-task");
}

Task partialTask(const TaskState &state, const QVector<int> &steps, const OperationCatalog &catalog)
{
    const QSet<int> wanted(steps.cbegin(), steps.cend());
    QVector<StepState> chosen;
    for (const StepState &step : state.steps) {
        if (wanted.contains(step.id))
            chosen.append(step);
    }
    Task task;
    for (const StepState &step : qAsConst(chosen))
        task.steps.emplace_back(step.operation->clone(nullptr));
    const QSet<QString> used = usedVariables(chosen, catalog);
    for (const VariableState &variable : state.variables) {
        if (!used.contains(variable.variable.name))
            continue;
        task.variables.append(variable.variable);
        if (!isSmall(variable.variable.value))
            task.variables.last().value = QVariant();
    }
    return task;
}

std::unique_ptr<QMimeData> mimeFromTask(const Task &task, const OperationCatalog &catalog)
{
    auto mime = std::make_unique<QMimeData>();
    const Result<QByteArray> exact = taskToExactJson(task, catalog);
    mime->setText(QString::fromUtf8(exact ? exact.value() : nearestJson(task, catalog)));
    if (exact)
        return mime;
    const Result<QByteArray> packed = packTask(task);
    if (packed)
        mime->setData(packedTaskMimeType(), packed.value());
    return mime;
}

bool mayHoldTask(const QMimeData &mime)
{
    return !mime.hasUrls() && (mime.hasFormat(packedTaskMimeType()) || mime.hasText());
}

Result<Task> taskFromMime(const QMimeData &mime, const OperationCatalog &catalog)
{
    if (mime.hasFormat(packedTaskMimeType())) {
        // A step whose record cannot be read again may still be told by its text.
        Result<Task> task = unpackTask(mime.data(packedTaskMimeType()), catalog);
        if (task)
            return task;
    }
    return taskFromText(mime.text(), catalog);
}
