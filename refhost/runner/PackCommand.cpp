#include "refhost/runner/PackCommand.h"

#include "refhost/engine/TaskPacker.h"
#include "refhost/engine/TaskUnpacker.h"

QString PackCommand::name() const
{
    return QStringLiteral("pack");
}

QString PackCommand::summary() const
{
    return QStringLiteral("Writes a task to OUT in its packed form; OUT may be \"-\".");
}

QString PackCommand::example() const
{
    return QStringLiteral("oprun pack examples/invoice.json invoice.task");
}

Result<QByteArray> PackCommand::convert(const Task &task, const OperationCatalog &catalog) const
{
    Result<QByteArray> packed = packTask(task);
    if (!packed)
        return packed;
    // An operation may write a record that it does not read.
    const Result<Task> back = unpackTask(packed.value(), catalog);
    return back ? packed : back.problem();
}
