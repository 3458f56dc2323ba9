#include "refhost/runner/ExplainCommand.h"

#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/TaskFile.h"

#include "Operation.h"

QString ExplainCommand::name() const
{
    return QStringLiteral("explain");
}

QString ExplainCommand::summary() const
{
    return QStringLiteral("Prints the summary and the sentence of each step without running it.");
}

QString ExplainCommand::example() const
{
    return QStringLiteral("oprun explain examples/invoice.json");
}

QStringList ExplainCommand::arguments() const
{
    return {QStringLiteral("TASK")};
}

int ExplainCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                            const QStringList &arguments, Console &console) const
{
    Q_UNUSED(options)
    const Result<Task> task = readTask(arguments.first(), catalog);
    if (!task) {
        console.complain(task.problem().toString());
        return BadInput;
    }
    int index = 0;
    for (const auto &step : task.value().steps) {
        const QString number = stepNumber(index++);
        const QString indent(number.size(), QLatin1Char(' '));
        console.print(number + oneLine(step->toString()));
        console.print(indent + oneLine(step->description()));
    }
    return Success;
}
