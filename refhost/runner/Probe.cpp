#include "refhost/runner/Probe.h"

#include "refhost/engine/FileBytes.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/ValidateOptions.h"
#include "refhost/runner/supervision/ProcessEnd.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

namespace {

const QString programName = QStringLiteral("oprun-probe");

Problem unusable(const QString &path, const QString &message)
{
    return {Problem::Reason::UnreadableFile, path, {}, message};
}

/// The last line that came on standard error; the rest is thrown away as it comes, however much
/// there is.
class LastWords
{
public:
    explicit LastWords(QProcess &process)
    {
        process.setStandardInputFile(QProcess::nullDevice());
        process.setStandardOutputFile(QProcess::nullDevice());
        QObject::connect(&process, &QProcess::readyReadStandardError, [&] {
            m_tail = (m_tail + process.readAllStandardError()).right(longest);
        });
    }

    QString text() const
    {
        const QByteArray trimmed = m_tail.trimmed();
        return QString::fromUtf8(trimmed.mid(trimmed.lastIndexOf('\n') + 1));
    }

private:
    static constexpr int longest = 500;

    QByteArray m_tail;
};

/// How the process ended that gave no outcome.
QString endingOf(const QProcess &process)
{
    if (process.exitStatus() == QProcess::NormalExit)
        return QStringLiteral("ended without a result, with status %1").arg(process.exitCode());
    // Of a process that a signal has ended, Qt gives the number of the signal.
    return QStringLiteral("ended by ") + signalText(process.exitCode());
}

void addCircumstances(Outcome &outcome, const QString &progressFile, const LastWords &lastWords)
{
    QFile progress(progressFile);
    if (progress.open(QIODevice::ReadOnly) && progress.size() > 0)
        outcome.remark(QStringLiteral("while: ") + QString::fromUtf8(progress.readAll()));
    if (!lastWords.text().isEmpty())
        outcome.remark(QStringLiteral("it said: ") + lastWords.text());
}

/// Waits for the end of the process, taking what it says meanwhile. False when it does not come in
/// time.
bool endsInTime(QProcess &process, int timeoutSeconds)
{
    constexpr int second = 1000;
    QEventLoop loop;
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    QTimer::singleShot(timeoutSeconds * second, &loop, &QEventLoop::quit);
    if (process.state() != QProcess::NotRunning)
        loop.exec();
    return process.state() == QProcess::NotRunning;
}

/// Waits for the process and reads the outcome, or makes one of the way it ended.
Outcome awaitOutcome(QProcess &process, const QString &resultFile, int timeoutSeconds)
{
    if (!process.waitForStarted())
        return {Verdict::Crashed, QStringLiteral("not started: ") + process.errorString()};
    const bool inTime = endsInTime(process, timeoutSeconds);
    // What was found is found; afterwards the process only ends.
    if (const auto json = readFileBytes(resultFile)) {
        if (const auto outcome = Outcome::fromJson(QJsonDocument::fromJson(json.value()).object()))
            return *outcome;
    }
    if (inTime)
        return {Verdict::Crashed, endingOf(process)};
    process.kill();
    process.waitForFinished();
    return {Verdict::TimedOut, QStringLiteral("ended after %1 s").arg(timeoutSeconds)};
}

} // namespace

Result<Probe> Probe::find()
{
    // Beside this program where both are built; installed, apart from what users start.
    const QString folder = QCoreApplication::applicationDirPath();
    const QString installed =
        QDir::cleanPath(folder + QStringLiteral("/../") + QStringLiteral(PROBE_FOLDER));
    Probe probe;
    probe.m_program = QStandardPaths::findExecutable(programName, {folder, installed});
    const QString expected = folder + QLatin1Char('/') + programName;
    if (probe.m_program.isEmpty()) {
        return unusable(expected, RunnerText::tr("not there, or no program; expected the one that "
                                                 "runs the checks"));
    }
    QProcess process;
    process.start(probe.m_program, {QStringLiteral("--list")});
    process.waitForFinished();
    const auto json = QJsonDocument::fromJson(process.readAllStandardOutput());
    if (!json.isObject())
        return unusable(expected, RunnerText::tr("does not list the checks it knows"));
    const QJsonArray list = json.object().value(QStringLiteral("checks")).toArray();
    for (const QJsonValue &check : list)
        probe.m_checks.append(CheckInfo::fromJson(check.toObject()));
    return probe;
}

CheckReport Probe::run(const CheckInfo &check, const QString &file,
                       const ValidateOptions &options) const
{
    QElapsedTimer timer;
    timer.start();
    const QTemporaryDir folder;
    const QString resultFile = folder.filePath(QStringLiteral("result.json"));
    const QString progressFile = folder.filePath(QStringLiteral("progress.txt"));
    QProcess process;
    const LastWords lastWords(process);
    process.start(m_program,
                  {check.id, file, QStringLiteral("--seed"), QString::number(options.seed),
                   QStringLiteral("--result"), resultFile, QStringLiteral("--progress"),
                   progressFile, QStringLiteral("--keep"), options.keepFolder});
    Outcome outcome = awaitOutcome(process, resultFile, options.timeoutSeconds);
    if (outcome.verdict() == Verdict::Crashed || outcome.verdict() == Verdict::TimedOut)
        addCircumstances(outcome, progressFile, lastWords);
    return {check, outcome, timer.elapsed()};
}
