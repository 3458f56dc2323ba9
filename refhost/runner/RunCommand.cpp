#include "refhost/runner/RunCommand.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/TaskRunner.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/FileRoles.h"
#include "refhost/runner/LanguageChoice.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/PluginChoice.h"
#include "refhost/runner/RepeatedLines.h"
#include "refhost/runner/RunOptions.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/StepTrace.h"
#include "refhost/runner/TaskFile.h"
#include "refhost/runner/WarningExplainer.h"
#include "refhost/runner/rows/RowRun.h"

#include "Operation.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

void complainOfStep(const StepReport &report, const QString &file, RepeatedLines &repeated,
                    WarningExplainer &explainer, const Console &console)
{
    for (const QString &warning : report.warnings) {
        const QString line =
            QStringLiteral("%1: steps[%2] (%3): %4")
                .arg(file, QString::number(report.index), report.step->typeId(), warning);
        if (!repeated.isShown(report.index, line))
            continue;
        console.complain(line);
        explainer.explainOnce(report.step->typeId(), warning);
    }
}

void printVariables(const VariableScope &scope, const QStringList &chosen, bool asJson,
                    Console &console)
{
    const QStringList names = chosen.isEmpty() ? scope.names() : chosen;
    QJsonObject json;
    for (const QString &name : names) {
        const QJsonValue value = variantToJson(scope.get(name));
        if (asJson)
            json.insert(name, value);
        else if (chosen.isEmpty())
            console.print(oneLine(name) + QStringLiteral(" = ") + jsonText(value));
        else
            console.print(value.isString() ? value.toString() : jsonText(value));
    }
    if (asJson)
        console.printJson(json);
}

int runOnce(const Task &task, const QCommandLineParser &options, const QString &file,
            WarningExplainer &explainer, Console &console)
{
    bool warned = false;
    VariableScope scope = task.startScope();
    const bool isTraced = options.isSet(RunOptions::trace());
    StepTrace trace;
    RepeatedLines repeated;
    const auto begin = [&](const Operation &step) {
        if (isTraced)
            trace.begin(step, scope);
    };
    const auto report = [&](const StepReport &done) {
        warned = warned || !done.warnings.isEmpty();
        if (isTraced)
            trace.show(done, scope, explainer, console);
        else
            complainOfStep(done, file, repeated, explainer, console);
    };
    runTask(task, scope, report, begin);
    const QStringList rest = repeated.rest();
    for (const QString &line : rest)
        console.complain(line);
    printVariables(scope, options.values(RunOptions::print()), options.isSet(Options::json()),
                   console);
    return warned && options.isSet(RunOptions::strict()) ? Warned : Success;
}

/// Returns a problem when both the task and the rows are to come from standard input.
std::optional<Problem> findSharedInput(const QCommandLineParser &options, const QString &task)
{
    const QString rows =
        options.isSet(RunOptions::each()) ? options.value(RunOptions::each()) : QStringLiteral("-");
    if (!RunOptions::asksForRows(options) || !isStandardInput(task) || !isStandardInput(rows))
        return std::nullopt;
    return Problem{Problem::Reason::UnfitValue,
                   {},
                   {},
                   RunnerText::tr("standard input cannot be both the task and the rows; expected "
                                  "a file for one of them")};
}

int runOnRows(const Task &task, const QCommandLineParser &options, WarningExplainer &explainer,
              const Console &console)
{
    const Result<RowRun> run = rowRunFromOptions(options, task);
    if (run)
        return runRows(task, run.value(), explainer, console);
    console.complain(run.problem().toString());
    return BadInput;
}

} // namespace

QString RunCommand::name() const
{
    return QStringLiteral("run");
}

QString RunCommand::summary() const
{
    return QStringLiteral("Runs a task, once or on each of many rows, and prints its variables.");
}

QString RunCommand::example() const
{
    return QStringLiteral("oprun run examples/invoice.json --set number=7 --print result");
}

QStringList RunCommand::arguments() const
{
    return {QStringLiteral("TASK")};
}

QList<QCommandLineOption> RunCommand::options() const
{
    return RunOptions::all();
}

QList<FileRole> RunCommand::files(const QCommandLineParser &options,
                                  const QStringList &arguments) const
{
    return QList<FileRole>{readRole(this->arguments().first(), arguments.first())} +
           RunOptions::files(options);
}

int RunCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                        const QStringList &arguments, Console &console) const
{
    const QString &file = arguments.first();
    if (const auto problem = findSharedInput(options, file)) {
        console.complain(problem->toString());
        return BadInput;
    }
    Result<Task> task = readTask(file, catalog);
    if (!task) {
        console.complain(task.problem().toString());
        return BadInput;
    }
    if (const auto problem = RunOptions::apply(options, task.value())) {
        console.complain(problem->toString());
        return BadInput;
    }
    const Result<QStringList> languages = chosenLanguages(options, chosenPlugins(options));
    WarningExplainer explainer(catalog, languages ? languages.value() : QStringList(), console);
    if (RunOptions::asksForRows(options))
        return runOnRows(task.value(), options, explainer, console);
    return runOnce(task.value(), options, taskName(file), explainer, console);
}
