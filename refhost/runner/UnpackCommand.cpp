#include "refhost/runner/UnpackCommand.h"

#include "refhost/engine/TaskWriter.h"

QString UnpackCommand::name() const
{
    return QStringLiteral("unpack");
}

QString UnpackCommand::summary() const
{
    return QStringLiteral("Writes a task to OUT as JSON; OUT may be \"-\".");
}

QString UnpackCommand::example() const
{
    return QStringLiteral("oprun unpack invoice.task invoice.json");
}

Result<QByteArray> UnpackCommand::convert(const Task &task, const OperationCatalog &catalog) const
{
    return taskToExactJson(task, catalog);
}
