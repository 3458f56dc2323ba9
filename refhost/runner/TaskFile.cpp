#include "refhost/runner/TaskFile.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/TaskReader.h"

#include <QFile>

namespace {

Result<QByteArray> readStandardInput()
{
    constexpr int descriptor = 0;
    QFile file;
    const bool isOpen = file.open(descriptor, QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    if (isOpen && file.error() == QFileDevice::NoError)
        return bytes;
    return Problem{Problem::Reason::UnreadableFile,
                   {},
                   {},
                   EngineText::tr("cannot be read (%1)").arg(file.errorString())};
}

Result<Task> readStandardInput(const OperationCatalog &catalog)
{
    const Result<QByteArray> bytes = readStandardInput();
    return bytes ? TaskReader(catalog).readBytes(bytes.value()) : Result<Task>(bytes.problem());
}

} // namespace

bool isStandardInput(const QString &name)
{
    return name == QLatin1String("-") || name == QLatin1String("/dev/stdin") ||
           name == QLatin1String("/dev/fd/0") || name == QLatin1String("/proc/self/fd/0");
}

QString taskName(const QString &name)
{
    return name == QLatin1String("-") ? EngineText::tr("standard input") : name;
}

Result<Task> readTask(const QString &name, const OperationCatalog &catalog)
{
    if (name != QLatin1String("-"))
        return TaskReader(catalog).readFile(name);
    Result<Task> task = readStandardInput(catalog);
    if (task)
        return task;
    Problem problem = task.problem();
    problem.file = taskName(name);
    return problem;
}
