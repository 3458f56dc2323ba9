#include "refhost/runner/RunOptions.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/TaskProblem.h"
#include "refhost/runner/FileRoles.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/supervision/Supervisor.h"

#include <QCommandLineParser>
#include <QSet>

#include <algorithm>

namespace {

/// Takes over the start value of one "--set NAME=TEXT".
std::optional<Problem> applySetting(Task &task, const QString &setting)
{
    const QString place = QStringLiteral("--set");
    const int equals = setting.indexOf(QLatin1Char('='));
    if (equals < 0) {
        return Problem{Problem::Reason::UnfitValue,
                       {},
                       place,
                       RunnerText::tr("%1; expected NAME=TEXT").arg(jsonText(setting))};
    }
    const QString name = setting.left(equals);
    if (auto problem = RunOptions::findMissingVariable(place, name, task))
        return problem;
    TaskVariable *const variable = task.variable(name);
    const Result<QVariant> value = variantFromText(setting.mid(equals + 1), variable->type);
    if (!value) {
        Problem problem = value.problem();
        problem.place = place + QLatin1Char(' ') + name;
        return problem;
    }
    variable->value = value.value();
    return std::nullopt;
}

/// Returns the option as the user writes it.
QString optionRole(const QCommandLineOption &option)
{
    return QStringLiteral("--") + option.names().first();
}

/// Returns the problem with a second value for the variable `name`: one would be ignored.
Problem repeatedSetting(const QString &name)
{
    return {Problem::Reason::UnfitValue,
            {},
            QStringLiteral("--set ") + name,
            RunnerText::tr("the variable has a value by another --set; expected one")};
}

/// An option that only makes sense with rows, or never does, if one was given.
std::optional<Problem> findMisplacedOption(const QCommandLineParser &options)
{
    const bool rows = RunOptions::asksForRows(options);
    const QList<QCommandLineOption> misplaced =
        rows ? QList<QCommandLineOption>{RunOptions::trace()}
             : QList<QCommandLineOption>{RunOptions::out(),   RunOptions::errors(),
                                         RunOptions::extra(), RunOptions::onError(),
                                         RunOptions::skip(),  RunOptions::firstLine(),
                                         RunOptions::jobs()};
    for (const QCommandLineOption &option : misplaced) {
        if (options.isSet(option)) {
            return Problem{Problem::Reason::UnfitValue,
                           {},
                           optionRole(option),
                           rows ? RunnerText::tr("cannot go with rows; leave out \"--each\"")
                                : RunnerText::tr("is about rows; expected \"--each FILE\", too")};
        }
    }
    return std::nullopt;
}

} // namespace

QCommandLineOption RunOptions::set()
{
    return {QStringLiteral("set"), QStringLiteral("Start with this value; repeatable."),
            QStringLiteral("NAME=TEXT")};
}

QCommandLineOption RunOptions::print()
{
    return {QStringLiteral("print"),
            QStringLiteral("Print only this variable, its bare value; repeatable."),
            QStringLiteral("NAME")};
}

QCommandLineOption RunOptions::trace()
{
    return {QStringLiteral("trace"), QStringLiteral("Show on standard error what each step did.")};
}

QCommandLineOption RunOptions::strict()
{
    return {QStringLiteral("strict"),
            QStringLiteral("Exit with status 1 when a step logged a warning.")};
}

QCommandLineOption RunOptions::each()
{
    return {QStringLiteral("each"),
            QStringLiteral("Run on each line of this file (\"-\": standard input), a JSON object "
                           "of values for variables, and print one line of JSON for it."),
            QStringLiteral("FILE")};
}

QCommandLineOption RunOptions::lines()
{
    return {QStringLiteral("lines"),
            QStringLiteral("The rows are plain text for this variable; with a single --print the "
                           "output is, too."),
            QStringLiteral("NAME")};
}

QCommandLineOption RunOptions::out()
{
    return {QStringLiteral("out"),
            QStringLiteral("Write the lines to this file, which appears when all rows are done."),
            QStringLiteral("FILE"), QStringLiteral("-")};
}

QCommandLineOption RunOptions::errors()
{
    return {QStringLiteral("errors"),
            QStringLiteral("Write rows that failed, and warnings, to this file as JSON lines "
                           "instead of to standard error."),
            QStringLiteral("FILE")};
}

QCommandLineOption RunOptions::failFast()
{
    return {QStringLiteral("fail-fast"),
            QStringLiteral("Stop at the first row or step that fails.")};
}

QCommandLineOption RunOptions::extra()
{
    return {QStringLiteral("extra"),
            QStringLiteral("Keys of a row that the task does not declare: the row fails (refuse), "
                           "they are dropped (ignore), or they are printed unchanged (keep)."),
            QStringLiteral("KEYS"), QStringLiteral("refuse")};
}

QCommandLineOption RunOptions::onError()
{
    return {QStringLiteral("on-error"),
            QStringLiteral("Where a row failed, print nothing (skip), or a line with the error in "
                           "its place (keep)."),
            QStringLiteral("ACTION"), QStringLiteral("skip")};
}

QCommandLineOption RunOptions::skip()
{
    return {QStringLiteral("skip"), QStringLiteral("Pass over the first rows."),
            QStringLiteral("N"), QStringLiteral("0")};
}

QCommandLineOption RunOptions::firstLine()
{
    return {QStringLiteral("first-line"),
            QStringLiteral("Count lines from this number, for a part of a larger file."),
            QStringLiteral("N"), QStringLiteral("1")};
}

QCommandLineOption RunOptions::jobs()
{
    return {QStringLiteral("jobs"),
            QStringLiteral("Run rows on this many threads; their order stays."),
            QStringLiteral("N"), QStringLiteral("1")};
}

QCommandLineOption RunOptions::timeout()
{
    return {QStringLiteral("timeout"),
            QStringLiteral("End the run, with status 124, when a row takes longer than this; "
                           "without rows when the run does."),
            QStringLiteral("SECONDS")};
}

QList<QCommandLineOption> RunOptions::all()
{
    return {set(),   print(),     Options::json(), trace(),    strict(), each(),
            lines(), out(),       errors(),        failFast(), extra(),  onError(),
            skip(),  firstLine(), jobs(),          timeout()};
}

QString RunOptions::rowFile(const QCommandLineParser &options)
{
    return options.isSet(each()) ? options.value(each()) : QStringLiteral("-");
}

QList<FileRole> RunOptions::files(const QCommandLineParser &options)
{
    const QString printed = RunnerText::tr("standard output");
    if (!asksForRows(options))
        return {writtenRole(printed, QStringLiteral("-"))};
    const QString rows = optionRole(each());
    const QString lines = options.isSet(out()) ? optionRole(out()) : printed;
    return {readRole(rows, rowFile(options)), writtenRole(lines, options.value(out()), rows),
            writtenRole(optionRole(errors()), options.value(errors()))};
}

Result<double> RunOptions::timeoutSeconds(const QCommandLineParser &options)
{
    if (!options.isSet(timeout()))
        return 0.0;
    const auto unfit = [](const QString &message) {
        return Problem{Problem::Reason::UnfitValue, {}, QStringLiteral("--timeout"), message};
    };
    if (!canLimitTime())
        return unfit(RunnerText::tr("this system has no time limit for runs"));
    constexpr double mostSeconds = 1e9;
    const QString text = options.value(timeout());
    bool isNumber = false;
    const double seconds = text.toDouble(&isNumber);
    if (!isNumber || !(seconds > 0) || seconds > mostSeconds) {
        return unfit(RunnerText::tr("%1; expected a number of seconds greater than 0, such as 2.5")
                         .arg(jsonText(text)));
    }
    return seconds;
}

bool RunOptions::asksForRows(const QCommandLineParser &options)
{
    return options.isSet(each()) || options.isSet(lines());
}

std::optional<Problem> RunOptions::apply(const QCommandLineParser &options, Task &task)
{
    if (auto problem = findMisplacedOption(options))
        return problem;
    const QStringList settings = options.values(set());
    QSet<QString> names;
    for (const QString &setting : settings) {
        if (auto problem = applySetting(task, setting))
            return problem;
        const QString name = setting.section(QLatin1Char('='), 0, 0);
        if (names.contains(name))
            return repeatedSetting(name);
        names.insert(name);
    }
    const QStringList printed = options.values(print());
    for (const QString &name : printed) {
        if (auto problem = findMissingVariable(QStringLiteral("--print"), name, task))
            return problem;
    }
    return std::nullopt;
}

std::optional<Problem> RunOptions::findMissingVariable(const QString &option, const QString &name,
                                                       const Task &task)
{
    QStringList names;
    for (const TaskVariable &variable : task.variables)
        names.append(variable.name);
    if (names.contains(name))
        return std::nullopt;
    names.sort();
    return unknownVariable(option, name, names);
}
