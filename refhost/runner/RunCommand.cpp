#include "refhost/runner/RunCommand.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskRunner.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/Options.h"

#include "Operation.h"

#include <QCommandLineParser>
#include <QJsonObject>

#include <optional>

namespace {

QCommandLineOption setOption()
{
    return {QStringLiteral("set"), QStringLiteral("Start with this value; repeatable."),
            QStringLiteral("NAME=TEXT")};
}

QCommandLineOption printOption()
{
    return {QStringLiteral("print"),
            QStringLiteral("Print only this variable, its bare value; repeatable."),
            QStringLiteral("NAME")};
}

QCommandLineOption traceOption()
{
    return {QStringLiteral("trace"), QStringLiteral("Show on standard error what each step did.")};
}

QCommandLineOption strictOption()
{
    return {QStringLiteral("strict"),
            QStringLiteral("Exit with status 1 when a step logged a warning.")};
}

Problem unknownVariable(const QString &option, const QString &name, const Task &task)
{
    QStringList names;
    for (const TaskVariable &variable : task.variables)
        names.append(variable.name);
    return {Problem::Reason::UnknownVariable,
            {},
            option,
            QStringLiteral("the task has no variable %1; expected %2")
                .arg(jsonText(name), names.isEmpty() ? QStringLiteral("none at all")
                                                     : names.join(QLatin1String(", ")))};
}

/// Takes over the start value of one "--set NAME=TEXT".
std::optional<Problem> applySetting(Task &task, const QString &setting)
{
    const QString place = QStringLiteral("--set");
    const int equals = setting.indexOf(QLatin1Char('='));
    if (equals < 0) {
        return Problem{Problem::Reason::UnfitValue,
                       {},
                       place,
                       QStringLiteral("%1; expected NAME=TEXT").arg(jsonText(setting))};
    }
    const QString name = setting.left(equals);
    TaskVariable *const variable = task.variable(name);
    if (!variable)
        return unknownVariable(place, name, task);
    const Result<QVariant> value = variantFromText(setting.mid(equals + 1), variable->type);
    if (!value) {
        Problem problem = value.problem();
        problem.place = place + QLatin1Char(' ') + name;
        return problem;
    }
    variable->value = value.value();
    return std::nullopt;
}

std::optional<Problem> checkOptions(const QCommandLineParser &options, Task &task)
{
    const QStringList settings = options.values(setOption());
    for (const QString &setting : settings) {
        if (auto problem = applySetting(task, setting))
            return problem;
    }
    const QStringList printed = options.values(printOption());
    for (const QString &name : printed) {
        if (!task.variable(name))
            return unknownVariable(QStringLiteral("--print"), name, task);
    }
    return std::nullopt;
}

QString valueText(const VariableScope &scope, const QString &name)
{
    return jsonText(variantToJson(scope.get(name)));
}

void traceStep(const StepReport &report, const VariableScope &scope, const Console &console)
{
    const QString number = stepNumber(report.index);
    const QString indent(number.size(), QLatin1Char(' '));
    console.note(number + oneLine(report.step->toString()));
    console.note(indent + oneLine(report.step->description()));
    for (const QString &name : report.written)
        console.note(indent + oneLine(name) + QStringLiteral(" = ") + valueText(scope, name));
    for (const QString &line : report.warnings)
        console.note(indent + QStringLiteral("warning: ") + oneLine(line));
}

void complainOfStep(const StepReport &report, const QString &file, const Console &console)
{
    for (const QString &line : report.warnings) {
        console.complain(
            QStringLiteral("%1: steps[%2] (%3): %4")
                .arg(file, QString::number(report.index), report.step->typeId(), line));
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

} // namespace

QString RunCommand::name() const
{
    return QStringLiteral("run");
}

QString RunCommand::summary() const
{
    return QStringLiteral("Runs a task and prints its variables.");
}

QString RunCommand::example() const
{
    return QStringLiteral("oprun run examples/invoice.json --set number=7 --print result");
}

QStringList RunCommand::arguments() const
{
    return {QStringLiteral("TASK")};
}

void RunCommand::addOptions(QCommandLineParser &parser) const
{
    parser.addOptions({setOption(), printOption(), Options::json(), traceOption(), strictOption()});
}

int RunCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                        const QStringList &arguments, Console &console) const
{
    const QString &file = arguments.first();
    Result<Task> task = TaskReader(catalog).readFile(file);
    if (!task) {
        console.complain(task.problem().toString());
        return BadInput;
    }
    if (const auto problem = checkOptions(options, task.value())) {
        console.complain(problem->toString());
        return BadInput;
    }
    bool warned = false;
    VariableScope scope = task.value().startScope();
    runTask(task.value(), scope, [&](const StepReport &report) {
        warned = warned || !report.warnings.isEmpty();
        if (options.isSet(traceOption()))
            traceStep(report, scope, console);
        else
            complainOfStep(report, file, console);
    });
    printVariables(scope, options.values(printOption()), options.isSet(Options::json()), console);
    return warned && options.isSet(strictOption()) ? Warned : Success;
}
