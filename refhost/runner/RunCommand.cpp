#include "refhost/runner/RunCommand.h"

#include "refhost/engine/Excerpt.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/TaskRunner.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/FileRoles.h"
#include "refhost/runner/LanguageChoice.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/RepeatedLines.h"
#include "refhost/runner/RunOptions.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/StepNames.h"
#include "refhost/runner/StepTrace.h"
#include "refhost/runner/TaskFile.h"
#include "refhost/runner/WarningExplainer.h"
#include "refhost/runner/rows/Interruption.h"
#include "refhost/runner/rows/RowRun.h"
#include "refhost/runner/supervision/RunProgress.h"

#include "Operation.h"

#include <QCommandLineParser>

namespace {

/// What a run without rows needs besides its task.
struct SingleRun
{
    QString file;
    QStringList plugins; ///< of each step
    bool isTraced = false;
    bool stopsAtFailure = false;
};

/// How it ended.
struct SingleEnd
{
    bool hasWarned = false;
    bool hasFailed = false;
    bool isComplete = true; ///< all steps have run
    int status = Success;   ///< where not all have

    void stop(int reason)
    {
        isComplete = false;
        status = reason;
    }
};

/// What the messages on the steps need.
struct StepMessages
{
    const SingleRun &run;
    WarningExplainer &explainer;
    const Console &console;
    RepeatedLines repeated = {};
};

void complainOfStep(const StepReport &report, StepMessages &messages)
{
    for (const QString &warning : report.warnings) {
        const QString line = QStringLiteral("%1: steps[%2] (%3): %4")
                                 .arg(messages.run.file, QString::number(report.index),
                                      report.step->typeId(), lineExcerpt(warning));
        if (!messages.repeated.isShown(report.index, line))
            continue;
        messages.console.complain(line);
        messages.explainer.explainOnce(report.step->typeId(), warning);
    }
}

/// Tells what the step did: all of it with a trace, otherwise what went wrong.
void report(const StepReport &step, const VariableScope &scope, const StepTrace &trace,
            StepMessages &messages)
{
    const SingleRun &run = messages.run;
    if (run.isTraced)
        trace.show(step, scope, messages.explainer, messages.console);
    else
        complainOfStep(step, messages);
    if (step.failure) {
        messages.console.complain(failureMessage(run.file, step.index, step.step->typeId(),
                                                 run.plugins.at(step.index), *step.failure));
    }
}

/// Runs the steps up to the end, a failure that stops them, or a signal.
SingleEnd runSteps(const Task &task, VariableScope &scope, StepMessages &messages)
{
    const Interruption interruption(RunProgress::current().isSupervised);
    const SingleRun &run = messages.run;
    StepTrace trace;
    SingleEnd end;
    const int count = static_cast<int>(task.steps.size());
    for (int i = 0; i < count && end.isComplete; ++i) {
        if (interruption.requested()) {
            messages.console.complain(RunnerText::tr("%1: interrupted before steps[%2]")
                                          .arg(run.file, QString::number(i)));
            end.stop(Interrupted);
            break;
        }
        Operation &step = *task.steps.at(static_cast<std::size_t>(i));
        if (run.isTraced)
            trace.begin(step, scope);
        const StepReport done = runStep(step, scope, i);
        report(done, scope, trace, messages);
        end.hasWarned = end.hasWarned || !done.warnings.isEmpty();
        end.hasFailed = end.hasFailed || done.failure;
        if (end.hasFailed && run.stopsAtFailure)
            end.stop(StepFailed);
    }
    const QStringList rest = messages.repeated.rest();
    for (const QString &line : rest)
        messages.console.complain(line);
    return end;
}

/// Prints an object of the chosen variables, in ascending order as all of them are.
void printJson(const VariableScope &scope, QStringList chosen, Console &console)
{
    chosen.removeDuplicates();
    chosen.sort();
    const QStringList names = chosen.isEmpty() ? scope.names() : chosen;
    JsonObject json;
    for (const QString &name : names)
        json.append(name, variantToJson(scope.get(name)));
    console.printJson(json);
}

void printVariables(const VariableScope &scope, const QStringList &chosen, bool asJson,
                    Console &console)
{
    if (asJson)
        return printJson(scope, chosen, console);
    const QStringList names = chosen.isEmpty() ? scope.names() : chosen;
    for (const QString &name : names) {
        const JsonValue value = variantToJson(scope.get(name));
        if (chosen.isEmpty())
            console.print(oneLine(name) + QStringLiteral(" = ") + jsonText(value));
        else
            console.print(value.isString() ? value.toString() : jsonText(value));
    }
}

int runOnce(const Task &task, const SingleRun &run, const QCommandLineParser &options,
            WarningExplainer &explainer, Console &console)
{
    VariableScope scope = task.startScope();
    StepMessages messages{run, explainer, console};
    const SingleEnd end = runSteps(task, scope, messages);
    if (!end.isComplete)
        return end.status;
    printVariables(scope, options.values(RunOptions::print()), options.isSet(Options::json()),
                   console);
    if (end.hasFailed)
        return StepFailed;
    return end.hasWarned && options.isSet(RunOptions::strict()) ? Warned : Success;
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

int runOnRows(const Task &task, const QStringList &plugins, const QCommandLineParser &options,
              WarningExplainer &explainer, const Console &console)
{
    Result<RowRun> run = rowRunFromOptions(options, task);
    if (run) {
        run.value().plugins = plugins;
        run.value().stepNames = stepNames(task, plugins);
        return runRows(task, run.value(), explainer, console);
    }
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

Result<double> RunCommand::timeoutSeconds(const QCommandLineParser &options) const
{
    return RunOptions::timeoutSeconds(options);
}

bool RunCommand::isForPrograms(const QCommandLineParser &options) const
{
    return options.isSet(RunOptions::errors()) ||
           options.value(RunOptions::onError()) == QLatin1String("keep");
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
    WarningExplainer explainer(catalog, messageLanguages(options), console);
    const QStringList plugins = pluginsOfSteps(task.value(), catalog);
    if (RunOptions::asksForRows(options))
        return runOnRows(task.value(), plugins, options, explainer, console);
    const QString name = taskName(file);
    RunProgress::current().setSteps(name, stepNames(task.value(), plugins));
    const SingleRun run{name, plugins, options.isSet(RunOptions::trace()),
                        options.isSet(RunOptions::failFast())};
    return runOnce(task.value(), run, options, explainer, console);
}
