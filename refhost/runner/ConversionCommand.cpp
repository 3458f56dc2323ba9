#include "refhost/runner/ConversionCommand.h"

#include "refhost/engine/FileBytes.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/FileRoles.h"
#include "refhost/runner/TaskFile.h"

namespace {

int complain(const Problem &problem, const Console &console)
{
    console.complain(problem.toString());
    return BadInput;
}

} // namespace

QStringList ConversionCommand::arguments() const
{
    return {QStringLiteral("TASK"), QStringLiteral("OUT")};
}

QList<FileRole> ConversionCommand::files(const QCommandLineParser &options,
                                         const QStringList &arguments) const
{
    Q_UNUSED(options)
    const QStringList roles = this->arguments();
    return {readRole(roles.at(0), arguments.at(0)),
            writtenRole(roles.at(1), arguments.at(1), roles.at(0))};
}

int ConversionCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                               const QStringList &arguments, Console &console) const
{
    Q_UNUSED(options)
    const QString &in = arguments.at(0);
    const Result<Task> task = readTask(in, catalog);
    if (!task)
        return complain(task.problem(), console);
    const Result<QByteArray> bytes = convert(task.value(), catalog);
    if (!bytes) {
        Problem problem = bytes.problem();
        problem.file = taskName(in);
        return complain(problem, console);
    }
    if (const auto problem = writeFileBytes(arguments.at(1), bytes.value()))
        return complain(*problem, console);
    return Success;
}
