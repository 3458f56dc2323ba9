#include "refhost/runner/ValidateCommand.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/LibraryFile.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/PluginValidation.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/TextColumns.h"
#include "refhost/runner/ValidateOptions.h"
#include "refhost/runner/ValidationReport.h"
#include "refhost/runner/rows/Interruption.h"

#include <QCommandLineParser>
#include <QJsonArray>

#include <algorithm>

namespace {

int usageError(const Console &console, const QString &message)
{
    console.complain(RunnerText::tr("validate: %1. Try \"oprun validate --help\".").arg(message));
    return BadInput;
}

/// What about the command line does not fit, empty when all does.
QString misuse(const QCommandLineParser &parser, const ValidateOptions &options,
               const QStringList &files)
{
    if (parser.isSet(Options::plugin()))
        return RunnerText::tr("--plugin is for other commands; expected PLUGIN after the command");
    if (options.list && !files.isEmpty())
        return RunnerText::tr("%1; expected no plug-in with --list").arg(jsonText(files.first()));
    if (!options.list && files.isEmpty())
        return RunnerText::tr("no plug-in; expected PLUGIN... or --list");
    return {};
}

/// The first identifier of no check, empty when all are known.
QString unknownCheck(const ValidateOptions &options, const QList<CheckInfo> &checks)
{
    for (const QString &id : options.only) {
        const auto isIt = [&](const CheckInfo &check) { return check.id == id; };
        if (std::none_of(checks.begin(), checks.end(), isIt))
            return id;
    }
    return {};
}

void printList(const QList<CheckInfo> &checks, bool asJson, Console &console)
{
    QJsonArray json;
    QList<QStringList> rows;
    for (const CheckInfo &check : checks) {
        json.append(check.toJson());
        rows.append({check.id, QString::number(check.level), check.sentence});
    }
    const QStringList lines = alignColumns(rows);
    if (asJson) {
        console.printJson({{QStringLiteral("checks"), json}});
        return;
    }
    for (const QString &line : lines)
        console.print(line);
}

/// Validates the plug-ins one after the other and prints their reports. Returns the exit status.
int validate(const QStringList &files, const Probe &probe, const ValidateOptions &options,
             Console &console)
{
    const Interruption interruption;
    // The worst first.
    const QList<int> statuses{PluginNotLoaded, PluginCrashed, CheckFailed, Success};
    int worst = statuses.size() - 1;
    QJsonArray json;
    for (const QString &file : files) {
        const ValidationReport report(file, validatePlugin(file, probe, options, interruption));
        if (interruption.requested()) {
            console.complain(RunnerText::tr("validate: interrupted, nothing is reported"));
            return EndedBySignal + interruption.signalNumber();
        }
        worst = std::min(worst, statuses.indexOf(report.exitStatus()));
        json.append(report.toJson(options));
        if (options.json)
            continue;
        if (&file != &files.first())
            console.print(QString());
        const QStringList lines = report.lines(options);
        for (const QString &line : lines)
            console.print(line);
    }
    if (options.json)
        console.printJson({{QStringLiteral("plugins"), json}});
    return statuses.at(worst);
}

} // namespace

QString ValidateCommand::name() const
{
    return QStringLiteral("validate");
}

QString ValidateCommand::summary() const
{
    return QStringLiteral("Checks plug-ins for their authors.");
}

QString ValidateCommand::example() const
{
    return QStringLiteral("oprun validate plugins/libTextOperPlugin.so");
}

QStringList ValidateCommand::arguments() const
{
    return {QStringLiteral("[PLUGIN]...")};
}

QList<QCommandLineOption> ValidateCommand::options() const
{
    return ValidateOptions::all();
}

int ValidateCommand::run(const QCommandLineParser &parser, const QStringList &arguments,
                         Console &console) const
{
    const auto options = ValidateOptions::read(parser);
    if (!options)
        return usageError(console, options.problem().toString());
    const QString mistake = misuse(parser, options.value(), arguments);
    if (!mistake.isEmpty())
        return usageError(console, mistake);
    const auto probe = Probe::find();
    if (!probe) {
        console.complain(probe.problem().toString());
        return BadInput;
    }
    const QString unknown = unknownCheck(options.value(), probe.value().checks());
    if (!unknown.isEmpty()) {
        QStringList ids;
        for (const CheckInfo &check : probe.value().checks())
            ids.append(check.id);
        const QString message = RunnerText::tr("--only: no check %1; expected %2")
                                    .arg(jsonText(unknown), listText(ids));
        return usageError(console, withSuggestion(message, nearestName(unknown, ids)));
    }
    if (options.value().list) {
        printList(probe.value().checks(), options.value().json, console);
        return Success;
    }
    for (const QString &file : arguments) {
        const Problem missing{Problem::Reason::PluginNotLoaded, file, {}, missingFileReason(file)};
        if (!missing.message.isEmpty()) {
            console.complain(missing.toString());
            return PluginNotLoaded;
        }
    }
    return validate(arguments, probe.value(), options.value(), console);
}
