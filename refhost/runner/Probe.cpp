#include "refhost/runner/Probe.h"

#include "refhost/runner/RunnerText.h"
#include "refhost/runner/ValidateOptions.h"
#include "refhost/runner/rows/Interruption.h"
#include "refhost/runner/supervision/ProcessEnd.h"
#include "refhost/validator/ProbeMessage.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTimer>

#include <csignal>

namespace {

const QString programName = QStringLiteral("oprun-probe");

Problem unusable(const QString &path, const QString &message)
{
    return {Problem::Reason::UnreadableFile, path, {}, message};
}

/// What a process of the probe says: its lines on standard output, the last line on standard error.
/// Everything is read as it comes, however much it is.
class ProbeTalk
{
public:
    explicit ProbeTalk(QProcess &process)
    {
        QObject::connect(&process, &QProcess::readyReadStandardOutput, [&] { readLines(process); });
        QObject::connect(&process, &QProcess::readyReadStandardError, [&] {
            m_errorTail = (m_errorTail + process.readAllStandardError()).right(longestTail);
        });
    }

    /// The outcome, nothing when the probe has told none.
    std::optional<Outcome> outcome() const { return outcomeIn(m_lastLine); }

    /// What the probe did when it ended, empty when it has told nothing.
    QString activity() const { return activityIn(m_lastLine).value_or(QString()); }

    /// The last line on standard error.
    QString lastErrorLine() const
    {
        const QByteArray trimmed = m_errorTail.trimmed();
        return QString::fromUtf8(trimmed.mid(trimmed.lastIndexOf('\n') + 1));
    }

private:
    static constexpr int longestTail = 500;

    /// Keeps the last complete line, and the beginning of the next one.
    void readLines(QProcess &process)
    {
        m_unfinished += process.readAllStandardOutput();
        const int end = m_unfinished.lastIndexOf('\n');
        if (end < 0)
            return;
        const int begin = end > 0 ? m_unfinished.lastIndexOf('\n', end - 1) + 1 : 0;
        m_lastLine = m_unfinished.mid(begin, end - begin);
        m_unfinished.remove(0, end + 1);
    }

    QByteArray m_unfinished;
    QByteArray m_lastLine;
    QByteArray m_errorTail;
};

/// How the process ended that gave no outcome.
QString endingOf(const QProcess &process)
{
    if (process.exitStatus() == QProcess::NormalExit)
        return QStringLiteral("ended without a result, with status %1").arg(process.exitCode());
    // Of a process that a signal has ended, Qt gives the number of the signal.
    return QStringLiteral("ended by ") + signalText(process.exitCode());
}

void addCircumstances(Outcome &outcome, const ProbeTalk &talk)
{
    if (!talk.activity().isEmpty())
        outcome.remark(QStringLiteral("while: ") + talk.activity());
    if (!talk.lastErrorLine().isEmpty())
        outcome.remark(QStringLiteral("it said: ") + talk.lastErrorLine());
}

/// Kills the process and all that it has started.
void killProbe(QProcess &process)
{
#ifdef Q_OS_UNIX
    if (process.processId() > 0)
        ::kill(-static_cast<pid_t>(process.processId()), SIGKILL);
#endif
    process.kill();
}

/// Ends the process when oprun is asked to end. The end of its input tells the probe to remove what
/// it would keep and to end.
void endOnRequest(QProcess &process, QEventLoop &loop, const Interruption &interruption)
{
    constexpr int patience = 1000; // milliseconds
    if (interruption.wakeUpDescriptor() < 0)
        return;
    auto *const notifier =
        new QSocketNotifier(interruption.wakeUpDescriptor(), QSocketNotifier::Read, &loop);
    QObject::connect(notifier, &QSocketNotifier::activated, &loop, [&, notifier] {
        notifier->setEnabled(false);
        process.closeWriteChannel();
        QTimer::singleShot(patience, &loop, [&] { killProbe(process); });
    });
}

/// Waits for the end of the process, reading meanwhile what it writes. False when it does not end
/// in time.
bool endsInTime(QProcess &process, int timeoutSeconds, const Interruption &interruption)
{
    constexpr int second = 1000;
    QEventLoop loop;
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    QTimer::singleShot(timeoutSeconds * second, &loop, &QEventLoop::quit);
    endOnRequest(process, loop, interruption);
    if (process.state() != QProcess::NotRunning)
        loop.exec();
    return process.state() == QProcess::NotRunning;
}

/// Waits for the process and returns its outcome, or makes one of the way it ended.
Outcome awaitOutcome(QProcess &process, const ProbeTalk &talk, int timeoutSeconds,
                     const Interruption &interruption)
{
    if (!process.waitForStarted())
        return {Verdict::Crashed, QStringLiteral("not started: ") + process.errorString()};
    const bool inTime = endsInTime(process, timeoutSeconds, interruption);
    if (!inTime) {
        killProbe(process);
        process.waitForFinished();
    }
    // An outcome that was told counts, however the process ends afterwards.
    if (const auto outcome = talk.outcome())
        return *outcome;
    if (inTime)
        return {Verdict::Crashed, endingOf(process)};
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

CheckReport Probe::run(const CheckInfo &check, const QString &file, const ValidateOptions &options,
                       const Interruption &interruption) const
{
    QElapsedTimer timer;
    timer.start();
    QProcess process;
    const ProbeTalk talk(process);
    // Standard input stays open until oprun ends: its end tells the probe to end as well.
    process.start(m_program,
                  {check.id, file, QStringLiteral("--attended"), QStringLiteral("--seed"),
                   QString::number(options.seed), QStringLiteral("--keep"), options.keepFolder});
    Outcome outcome = awaitOutcome(process, talk, options.timeoutSeconds, interruption);
    if (outcome.verdict() == Verdict::Crashed || outcome.verdict() == Verdict::TimedOut)
        addCircumstances(outcome, talk);
    return {check, outcome, timer.elapsed()};
}
