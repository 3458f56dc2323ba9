#include "refhost/validator/Probe.h"

#include "refhost/engine/ProgramArguments.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/CheckList.h"
#include "refhost/validator/ParentProcess.h"
#include "refhost/validator/ProbeMessage.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int usageStatus = 2;

/// What the command line asks for.
struct ProbeTask
{
    QString plugin;
    quint32 seed = 1;
    QString keepFolder;
    ParentPipes pipes; ///< none when it was not oprun that started the probe
};

const QCommandLineOption &listOption()
{
    static const QCommandLineOption option(QStringLiteral("list"),
                                           QStringLiteral("Print the list of checks as JSON."));
    return option;
}

const QCommandLineOption &seedOption()
{
    static const QCommandLineOption option(QStringLiteral("seed"),
                                           QStringLiteral("Start random values from this number."),
                                           QStringLiteral("N"), QStringLiteral("1"));
    return option;
}

const QCommandLineOption &attendedOption()
{
    static const QCommandLineOption option(
        QStringLiteral("attended"),
        QStringLiteral("Print a JSON line before each call, the outcome in the last line, and end "
                       "when standard input does."));
    return option;
}

const QCommandLineOption &keepOption()
{
    static const QCommandLineOption option(
        QStringLiteral("keep"), QStringLiteral("Leave tasks that show what is wrong here."),
        QStringLiteral("FOLDER"), QDir::tempPath());
    return option;
}

void print(const QByteArray &text, std::FILE *stream)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stream);
    std::fflush(stream);
}

void printChecks()
{
    QJsonArray list;
    for (const auto &check : allChecks())
        list.append(check->info().toJson());
    const QJsonObject json{{QStringLiteral("checks"), list}};
    print(QJsonDocument(json).toJson(), stdout);
}

/// Prepares the check and runs it; one that cannot be prepared is skipped.
Outcome perform(const Check &check, CheckContext &context)
{
    if (const auto obstacle = check.prepare(context))
        return {Verdict::Skipped, *obstacle};
    return check.run(context);
}

/// Writes the outcome to oprun, or to standard output when oprun has not started the probe.
void writeOutcome(const Outcome &outcome, int output)
{
    if (output >= 0)
        writeToParent(output, outcomeLine(outcome));
    else
        print(QJsonDocument(outcome.toJson()).toJson(), stdout);
}

/// Runs the check and ends the process there and then: how a plug-in behaves when a program ends is
/// not the concern of every check.
[[noreturn]] void runCheck(const Check &check, const ProbeTask &task, int &argc, char **argv)
{
    const auto application = check.makeApplication(argc, argv);
    Q_UNUSED(application)
    CheckContext context(task.plugin, task.seed, task.keepFolder, task.pipes.output);
    writeOutcome(perform(check, context), task.pipes.output);
    std::_Exit(EXIT_SUCCESS);
}

int usageError(const QString &message)
{
    print(QStringLiteral("oprun-probe: %1\n").arg(message).toUtf8(), stderr);
    return usageStatus;
}

} // namespace

int runProbe(int argc, char *argv[])
{
    QCommandLineParser parser;
    parser.addOptions({listOption(), seedOption(), attendedOption(), keepOption()});
    const Result<QStringList> given = programArguments(argc, argv);
    if (!given)
        return usageError(given.problem().toString());
    if (!parser.parse(given.value()))
        return usageError(parser.errorText());
    for (const QCommandLineOption &option : {seedOption(), keepOption()}) {
        if (parser.values(option).size() > 1) {
            return usageError(
                QStringLiteral("--%1 is given twice").arg(option.names().constFirst()));
        }
    }
    if (parser.isSet(listOption())) {
        printChecks();
        return EXIT_SUCCESS;
    }
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 2)
        return usageError(QStringLiteral("expected CHECK PLUGIN or --list"));
    const auto check = makeCheck(arguments.first());
    if (!check)
        return usageError(QStringLiteral("no check \"%1\"").arg(arguments.first()));
    ProbeTask task;
    // Qt would look for a relative path in its own plug-in folders, not here.
    task.plugin = QFileInfo(arguments.last()).absoluteFilePath();
    task.seed = parser.value(seedOption()).toUInt();
    task.keepFolder = parser.value(keepOption());
    if (parser.isSet(attendedOption())) {
        task.pipes = takeStandardStreams();
        endWithParent(task.pipes.input);
    }
    runCheck(*check, task, argc, argv);
}
