#include "refhost/runner/ExplainCommand.h"

#include "refhost/engine/TaskReader.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/OneLine.h"

#include "Operation.h"

QString ExplainCommand::name() const
{
    return QStringLiteral("explain");
}

QString ExplainCommand::summary() const
{
    return QStringLiteral("Prints the summary and the sentence of each step without running it.");
}

QStringList ExplainCommand::arguments() const
{
    return {QStringLiteral("TASK.json")};
}

int ExplainCommand::run(const QCommandLineParser &options, const QStringList &arguments,
                        const OperationCatalog &catalog, Console &console) const
{
    Q_UNUSED(options)
    const Result<Task> task = TaskReader(catalog).readFile(arguments.first());
    if (!task) {
        console.complain(task.problem().toString());
        return BadInput;
    }
    int index = 0;
    for (const auto &step : task.value().steps) {
        console.print(QStringLiteral("steps[%1]  ").arg(index++) + oneLine(step->toString()));
        console.print(QStringLiteral("          ") + oneLine(step->description()));
    }
    return Success;
}
