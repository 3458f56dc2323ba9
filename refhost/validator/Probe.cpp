#include "refhost/validator/Probe.h"

#include "refhost/engine/ProgramArguments.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/CheckList.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int usageStatus = 2;

/// What the command line asks for.
struct ProbeTask
{
    QString plugin;
    quint32 seed = 1;
    QString resultFile;
    QString progressFile;
    QString keepFolder;
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

const QCommandLineOption &resultOption()
{
    static const QCommandLineOption option(
        QStringLiteral("result"),
        QStringLiteral("Write the outcome to this file instead of standard output."),
        QStringLiteral("FILE"));
    return option;
}

const QCommandLineOption &progressOption()
{
    static const QCommandLineOption option(
        QStringLiteral("progress"), QStringLiteral("Note in this file what is just being done."),
        QStringLiteral("FILE"));
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

/// Writes the outcome to the file, or to standard output when there is none. False when it cannot.
bool writeOutcome(const Outcome &outcome, const QString &resultFile)
{
    const QByteArray text = QJsonDocument(outcome.toJson()).toJson();
    if (resultFile.isEmpty()) {
        print(text, stdout);
        return true;
    }
    QSaveFile file(resultFile);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

/// Runs the check and ends the process there and then: how a plug-in behaves when a program ends is
/// not the concern of every check.
[[noreturn]] void runCheck(const Check &check, const ProbeTask &task, int &argc, char **argv)
{
    const auto application = check.makeApplication(argc, argv);
    Q_UNUSED(application)
    CheckContext context(task.plugin, task.seed, task.progressFile, task.keepFolder);
    const bool written = writeOutcome(perform(check, context), task.resultFile);
    std::_Exit(written ? EXIT_SUCCESS : usageStatus);
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
    parser.addOptions({listOption(), seedOption(), resultOption(), progressOption(), keepOption()});
    const Result<QStringList> given = programArguments(argc, argv);
    if (!given)
        return usageError(given.problem().toString());
    if (!parser.parse(given.value()))
        return usageError(parser.errorText());
    for (const QCommandLineOption &option :
         {seedOption(), resultOption(), progressOption(), keepOption()}) {
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
    task.resultFile = parser.value(resultOption());
    task.progressFile = parser.value(progressOption());
    task.keepFolder = parser.value(keepOption());
    runCheck(*check, task, argc, argv);
}
