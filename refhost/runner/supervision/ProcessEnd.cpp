#include "refhost/runner/supervision/ProcessEnd.h"

#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/supervision/RunProgress.h"

#include <algorithm>
#include <csignal>
#include <vector>

namespace {

using Reason = ProcessEnd::Reason;

struct SignalName
{
    int number;
    const char *name;
};

constexpr SignalName signalNames[] = {
    {SIGABRT, "SIGABRT"}, {SIGFPE, "SIGFPE"},   {SIGILL, "SIGILL"},
    {SIGINT, "SIGINT"},   {SIGSEGV, "SIGSEGV"}, {SIGTERM, "SIGTERM"},
#ifdef Q_OS_UNIX
    {SIGALRM, "SIGALRM"}, {SIGBUS, "SIGBUS"},   {SIGHUP, "SIGHUP"},
    {SIGKILL, "SIGKILL"}, {SIGPIPE, "SIGPIPE"}, {SIGSYS, "SIGSYS"},
    {SIGTRAP, "SIGTRAP"}, {SIGXCPU, "SIGXCPU"}, {SIGXFSZ, "SIGXFSZ"},
#endif
};

/// "rows.jsonl: line 3: steps[0] (text.append of libX.so)"
QString placeOf(const ThreadProgress &thread, const RunProgress &run)
{
    const int index = thread.step.load() - 1;
    QString text = run.source.get();
    if (run.hasRows)
        text += RunnerText::tr(": line %1").arg(thread.line.load());
    if (index < 0)
        return text;
    const QString name = run.stepName(index);
    text += RunnerText::tr(": steps[%1]").arg(index);
    return name.isEmpty() ? text : text + RunnerText::tr(" (%1)").arg(name);
}

/// The places of all threads for which `isMeant` holds, in the order of their rows.
template <typename Predicate>
QStringList places(const RunProgress &run, const Predicate &isMeant)
{
    std::vector<const ThreadProgress *> threads;
    const int count = std::min(run.threadCount.load(), static_cast<int>(RunProgress::mostThreads));
    for (int i = 0; i < count; ++i) {
        const ThreadProgress &thread = run.threads.at(static_cast<std::size_t>(i));
        if (isMeant(i, thread))
            threads.push_back(&thread);
    }
    std::sort(threads.begin(), threads.end(),
              [](const auto *left, const auto *right) { return left->line < right->line; });
    QStringList all;
    for (const ThreadProgress *thread : threads)
        all.append(placeOf(*thread, run));
    return all;
}

/// The steps that can be the reason, where some run: the one on the thread that is known to be it,
/// or all that run.
QStringList stepsOf(const ProcessEnd &end, const RunProgress &run)
{
    if (end.thread >= 0)
        return places(run, [&](int i, const ThreadProgress &) { return i == end.thread; });
    const auto runs = [](int, const ThreadProgress &thread) { return thread.step > 0; };
    const auto ends = [&](int i, const ThreadProgress &thread) {
        return thread.isEnding && runs(i, thread);
    };
    const QStringList ending = places(run, ends);
    return ending.isEmpty() ? places(run, runs) : ending;
}

/// How the program ended, to follow "oprun was".
QString ending(const ProcessEnd &end)
{
    switch (end.reason) {
    case Reason::Signal:
        return RunnerText::tr("ended by %1").arg(signalText(end.number));
    case Reason::Exit:
        return RunnerText::tr("ended by exit with status %1").arg(end.number);
    case Reason::Interrupted:
        return RunnerText::tr("interrupted");
    case Reason::Blocked:
    case Reason::TimedOut:
        break;
    }
    return RunnerText::tr("ended by force");
}

/// Why the program was ended by force, as the end of the sentence; empty when it was not.
QString causeText(const ProcessEnd &end, bool onRow)
{
    const QString seconds = QString::number(end.seconds, 'g', 3);
    if (end.reason == Reason::Blocked)
        return RunnerText::tr(", %1 s after the interruption").arg(seconds);
    if (end.reason != Reason::TimedOut)
        return {};
    return onRow ? RunnerText::tr(", since the row took more than %1 s").arg(seconds)
                 : RunnerText::tr(", since the run took more than %1 s").arg(seconds);
}

/// Whether the program ended while it wrote. With a time limit it was a row that took too long.
bool isWriting(const ProcessEnd &end, const RunProgress &run)
{
    return run.isWriting && end.reason != Reason::TimedOut;
}

/// During what the program ended; empty where that is not known.
QString situation(const QStringList &steps, const ProcessEnd &end, const RunProgress &run)
{
    if (isWriting(end, run))
        return RunnerText::tr(" while it wrote its output");
    if (steps.size() == 1)
        return RunnerText::tr(" during this step");
    if (steps.size() > 1)
        return RunnerText::tr(" during one of these steps");
    if (run.isFinished)
        return RunnerText::tr(" after its work was done");
    const QString activity = run.activity.get();
    return activity.isEmpty() ? QString() : RunnerText::tr(" while %1").arg(activity);
}

/// The line that names what ended the process, or held it up.
QString reasonMessage(const ProcessEnd &end, const RunProgress &run)
{
    const QStringList steps = isWriting(end, run) ? QStringList() : stepsOf(end, run);
    QString sentence =
        RunnerText::tr("oprun was %1%2%3")
            .arg(ending(end), situation(steps, end, run), causeText(end, run.hasRows));
    if (steps.isEmpty())
        return sentence;
    return RunnerText::tr("%1: %2").arg(steps.join(QLatin1String("; ")), sentence);
}

/// The same in a word, for the line of counts.
QString endingWord(const ProcessEnd &end)
{
    switch (end.reason) {
    case Reason::Interrupted:
    case Reason::Blocked:
        return RunnerText::tr("interrupted");
    case Reason::TimedOut:
        return RunnerText::tr("timed out");
    case Reason::Signal:
    case Reason::Exit:
        break;
    }
    return RunnerText::tr("crashed");
}

/// The counts of a run on rows, and what of it is lost.
QString tallyMessage(const ProcessEnd &end, const RunProgress &run)
{
    RowTally tally;
    for (const ThreadProgress &thread : run.threads)
        tally += thread.tally();
    QString text = tally.toString();
    if (run.skippedRows > 0)
        text += RunnerText::tr("; %1 skipped").arg(run.skippedRows.load());
    text += RunnerText::tr("; %1").arg(endingWord(end));
    const QString output = run.output.get();
    const qint64 unwritten = tally.rows - run.writtenRows.load();
    if (!output.isEmpty())
        text += RunnerText::tr("; %1 is not written").arg(output);
    else if (unwritten > 0)
        text += RunnerText::tr("; the last %1 of them are not printed").arg(unwritten);
    const QString errors = run.errors.get();
    return errors.isEmpty() ? text : text + RunnerText::tr("; %1 is not written").arg(errors);
}

} // namespace

QString signalText(int number)
{
    QString text = RunnerText::tr("signal %1").arg(number);
    const auto *const found =
        std::find_if(std::begin(signalNames), std::end(signalNames),
                     [&](const SignalName &signal) { return signal.number == number; });
    if (found == std::end(signalNames))
        return text;
    return text + QStringLiteral(" (%1)").arg(QLatin1String(found->name));
}

int ProcessEnd::exitStatus() const
{
    switch (reason) {
    case Reason::Interrupted:
    case Reason::Blocked:
        return ::Interrupted;
    case Reason::TimedOut:
        return ::TimedOut;
    case Reason::Signal:
    case Reason::Exit:
        break;
    }
    return StepCrashed;
}

QStringList ProcessEnd::messages(const RunProgress &run) const
{
    QStringList lines{reasonMessage(*this, run)};
    if (run.hasRows && !run.isFinished)
        lines.append(tallyMessage(*this, run));
    return lines;
}
