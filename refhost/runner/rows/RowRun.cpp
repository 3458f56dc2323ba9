#include "refhost/runner/rows/RowRun.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OutputFile.h"
#include "refhost/engine/Task.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/RunOptions.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/rows/BatchPool.h"
#include "refhost/runner/rows/Interruption.h"
#include "refhost/runner/rows/RowBatchRunner.h"
#include "refhost/runner/rows/RowFormatGuess.h"
#include "refhost/runner/rows/RowSink.h"
#include "refhost/runner/rows/RowSource.h"
#include "refhost/runner/supervision/RunProgress.h"

#include <QCommandLineParser>
#include <QMap>

#include <memory>
#include <new>
#include <vector>

namespace {

constexpr int mostJobs = 256;

Problem unfitOption(const QString &option, const QString &message)
{
    return {Problem::Reason::UnfitValue, {}, option, message};
}

/// Reads the value of `option`, a whole number from `least` to `most`.
template <typename Number>
std::optional<Problem> readNumber(const QCommandLineParser &options,
                                  const QCommandLineOption &option, Number least, Number most,
                                  Number &number)
{
    bool isNumber = false;
    const QString text = options.value(option);
    const qint64 value = text.toLongLong(&isNumber);
    if (!isNumber || value < least || value > most) {
        return unfitOption(QStringLiteral("--") + option.names().first(),
                           RunnerText::tr("%1; expected a whole number from %2 to %3")
                               .arg(jsonText(text), QString::number(least), QString::number(most)));
    }
    number = static_cast<Number>(value);
    return std::nullopt;
}

std::optional<Problem> readNumbers(const QCommandLineParser &options, RowRun &run)
{
    // Line numbers are written to JSON, so they have to be exact as floating-point numbers.
    constexpr qint64 mostLines = 1000000000000000; // 10^15
    if (auto problem = readNumber(options, RunOptions::jobs(), 1, mostJobs, run.jobs))
        return problem;
    if (auto problem = readNumber(options, RunOptions::skip(), qint64(0), mostLines, run.skipped))
        return problem;
    return readNumber(options, RunOptions::firstLine(), qint64(1), mostLines, run.firstLine);
}

/// Reads "--extra".
std::optional<Problem> readExtra(const QCommandLineParser &options, RowRun &run)
{
    const QMap<QString, RowFormat::Extra> choices{
        {QStringLiteral("refuse"), RowFormat::Extra::Refuse},
        {QStringLiteral("ignore"), RowFormat::Extra::Ignore},
        {QStringLiteral("keep"), RowFormat::Extra::Keep}};
    const QString choice = options.value(RunOptions::extra());
    const QString place = QStringLiteral("--extra");
    if (!choices.contains(choice)) {
        return unfitOption(
            place, RunnerText::tr("%1; expected refuse, ignore or keep").arg(jsonText(choice)));
    }
    if (options.isSet(RunOptions::extra()) && options.isSet(RunOptions::lines())) {
        return unfitOption(place, RunnerText::tr("is about rows of JSON; leave out \"--lines\""));
    }
    run.format.extra = choices.value(choice);
    return std::nullopt;
}

/// Reads "--on-error".
std::optional<Problem> readFailureChoice(const QCommandLineParser &options, RowRun &run)
{
    const QString choice = options.value(RunOptions::onError());
    run.format.keepsFailed = choice == QLatin1String("keep");
    if (!run.format.keepsFailed && choice != QLatin1String("skip")) {
        return unfitOption(QStringLiteral("--on-error"),
                           RunnerText::tr("%1; expected skip or keep").arg(jsonText(choice)));
    }
    if (run.format.keepsFailed && run.stopsAtFailure) {
        return unfitOption(QStringLiteral("--fail-fast"),
                           RunnerText::tr("cannot go with \"--on-error keep\""));
    }
    return std::nullopt;
}

/// The first of the two that there is.
std::optional<Problem> firstOf(std::optional<Problem> first, std::optional<Problem> second)
{
    return first ? std::move(first) : std::move(second);
}

/// The work of one thread on clones of its own.
BatchPool::WorkMaker makerFor(const Task &task, const RowRun &run, Interruption &interruption)
{
    // Shared, since a function can be copied and a task cannot.
    const auto own = std::make_shared<Task>(task.clone());
    return [own, run, &interruption]() -> BatchPool::Work {
        const auto runner = std::make_shared<RowBatchRunner>(std::move(*own), run.format,
                                                             run.stopsAtFailure, interruption);
        return [runner](const RowBatch &batch) { return runner->run(batch); };
    };
}

void runHere(const Task &task, const RowRun &run, Interruption &interruption, RowSource &source,
             RowSink &sink)
{
    const BatchPool::Work work = makerFor(task, run, interruption)();
    while (const auto batch = source.next(interruption)) {
        if (!sink.take(work(*batch)))
            return;
    }
}

/// Throws std::bad_alloc, as `runHere` does, when there is not enough memory.
void runOnThreads(const Task &task, const RowRun &run, Interruption &interruption,
                  RowSource &source, RowSink &sink)
{
    std::vector<BatchPool::WorkMaker> makers;
    makers.reserve(static_cast<std::size_t>(run.jobs));
    for (int job = 0; job < run.jobs; ++job)
        makers.push_back(makerFor(task, run, interruption));
    BatchPool pool(
        makers, [&](const RowBatchOutcome &outcome) { return sink.take(outcome); },
        [&] { interruption.endWaiting(); });
    bool wantsMore = true;
    while (wantsMore) {
        auto batch = source.next(interruption);
        if (!batch)
            break;
        wantsMore = pool.add(std::move(*batch));
    }
    pool.finish();
}

/// Returns a problem if the next row of the source has the form of another kind of file.
std::optional<Problem> findForeignRow(const RowRun &run, const Interruption &interruption,
                                      RowSource &source)
{
    if (!run.format.lineVariable.isEmpty())
        return std::nullopt;
    const auto head = source.head(false, interruption);
    return head ? findForeignRows(*head) : std::nullopt;
}

/// Passes over the rows that are to be skipped; `skipped` is how many there were. Returns a problem
/// if the file has another format than rows.
std::optional<Problem> begin(const RowRun &run, const Interruption &interruption, RowSource &source,
                             qint64 &skipped)
{
    const bool areLines = !run.format.lineVariable.isEmpty();
    const auto head = source.head(areLines, interruption);
    if (!head)
        return std::nullopt;
    auto problem = findForeignEncoding(*head);
    if (!problem) {
        problem = findForeignRow(run, interruption, source);
        skipped = source.skip(run.skipped, areLines, interruption);
        // Only a file that begins with another form and goes on with it has that form.
        if (problem && skipped > 0)
            problem = findForeignRow(run, interruption, source);
    }
    if (problem)
        problem->file = source.name();
    return problem;
}

std::optional<Problem> runAll(const Task &task, const RowRun &run, Interruption &interruption,
                              RowSource &source, RowSink &sink)
{
    try {
        if (run.jobs > 1)
            runOnThreads(task, run, interruption, source, sink);
        else
            runHere(task, run, interruption, source, sink);
    } catch (const std::bad_alloc &) {
        return Problem{Problem::Reason::UnfitValue,
                       source.name(),
                       {},
                       RunnerText::tr("the rows do not fit into memory")};
    }
    return firstOf(source.problem(), sink.problem());
}

/// How the rows came to an end.
struct RowEnd
{
    int status = Success;
    QString reason; ///< why rows are left, empty when none are
    bool keepsErrors = true;
    std::optional<Problem> problem;
};

RowEnd endOf(const RowRun &run, const RowSink &sink, const std::optional<Problem> &problem,
             bool readerIsGone, bool interrupted)
{
    if (readerIsGone)
        return {ReaderGone, RunnerText::tr("nobody reads the output any more"), false, {}};
    if (problem)
        return {BadInput, RunnerText::tr("stopped"), false, problem};
    const bool hasFailedSteps = sink.tally().failedSteps > 0;
    if (run.stopsAtFailure && sink.tally().failed > 0)
        return {hasFailedSteps ? StepFailed : RowFailed,
                RunnerText::tr("stopped at the first that failed"),
                true,
                {}};
    if (interrupted)
        return {Interrupted, RunnerText::tr("interrupted"), false, {}};
    if (hasFailedSteps)
        return {StepFailed, {}, true, {}};
    if (sink.tally().failed > 0)
        return {RowFailed, {}, true, {}};
    return {run.isStrict && sink.tally().warnings > 0 ? Warned : Success, {}, true, {}};
}

QString summary(const RowTally &tally, qint64 skipped, const RowEnd &end, const RowRun &run)
{
    QString text = tally.toString();
    if (skipped > 0)
        text += RunnerText::tr("; %1 skipped").arg(skipped);
    const bool outIsMissing = !end.reason.isEmpty() || end.problem;
    if (!end.reason.isEmpty())
        text += RunnerText::tr("; %1").arg(end.reason);
    if (outIsMissing && run.out != QLatin1String("-"))
        text += RunnerText::tr("; %1 is not written").arg(run.out);
    if (!end.keepsErrors && !run.errors.isEmpty())
        text += RunnerText::tr("; %1 is not written").arg(run.errors);
    return text;
}

/// Notes what the messages on a crash need.
void noteRun(const RowRun &run, const RowSource &source, const OutputFile &out,
             const OutputFile &errors)
{
    RunProgress &progress = RunProgress::current();
    progress.setSteps(source.name(), run.stepNames);
    progress.hasRows = true;
    if (!out.isStandardOutput())
        progress.output.set(run.out.toUtf8());
    progress.errors.set(run.errors.toUtf8());
    for (const QByteArray &file : {out.temporaryFile(), errors.temporaryFile()}) {
        if (!file.isEmpty())
            progress.addTemporaryFile(file);
    }
}

} // namespace

Result<RowRun> rowRunFromOptions(const QCommandLineParser &options, const Task &task)
{
    RowRun run;
    run.rows = RunOptions::rowFile(options);
    run.out = options.value(RunOptions::out());
    run.errors = options.value(RunOptions::errors());
    run.stopsAtFailure = options.isSet(RunOptions::failFast());
    run.isStrict = options.isSet(RunOptions::strict());
    run.format.endsAtFailedStep = run.stopsAtFailure;
    run.format.lineVariable = options.value(RunOptions::lines());
    run.format.printed = options.values(RunOptions::print());
    run.format.plainText = options.isSet(RunOptions::lines()) && run.format.printed.size() == 1 &&
                           !options.isSet(Options::json());

    if (options.isSet(RunOptions::lines())) {
        if (const auto problem = RunOptions::findMissingVariable(QStringLiteral("--lines"),
                                                                 run.format.lineVariable, task))
            return *problem;
    }
    if (options.isSet(RunOptions::errors()) && run.errors.isEmpty())
        return unfitOption(QStringLiteral("--errors"),
                           emptyFileName(Problem::Reason::UnwritableFile).message);
    if (const auto problem = readNumbers(options, run))
        return *problem;
    if (const auto problem = firstOf(readFailureChoice(options, run), readExtra(options, run)))
        return *problem;
    return run;
}

int runRows(const Task &task, const RowRun &run, WarningExplainer &explainer,
            const Console &console)
{
    RowSource source(run.rows, run.firstLine);
    OutputFile out(run.out);
    OutputFile errors(run.errors);
    const bool hasErrors = !run.errors.isEmpty();
    auto problem = firstOf(source.open(), out.open());
    if (!problem && hasErrors)
        problem = errors.open();
    if (problem) {
        console.complain(problem->toString());
        return BadInput;
    }
    noteRun(run, source, out, errors);
    // Until here, where files such as pipes may have to be waited for, Ctrl-C ends the program.
    Interruption interruption(RunProgress::current().isSupervised);
    Interruption::ignoreBrokenPipes();
    qint64 skipped = 0;
    problem = begin(run, interruption, source, skipped);
    if (problem) {
        console.complain(problem->toString());
        return BadInput;
    }
    RunProgress::current().skippedRows = skipped;
    RowSink sink(source.name(), out, hasErrors ? &errors : nullptr, run.plugins, explainer,
                 console);
    problem = runAll(task, run, interruption, source, sink);
    sink.finish();
    source.close();

    RowEnd end = endOf(run, sink, problem, out.readerIsGone() || errors.readerIsGone(),
                       interruption.requested());
    if (end.keepsErrors && hasErrors && !end.problem)
        end.problem = errors.commit();
    if (end.reason.isEmpty() && !end.problem)
        end.problem = out.commit();
    if (end.problem)
        console.complain(end.problem->toString());
    console.complain(summary(sink.tally(), skipped, end, run));
    return end.problem ? BadInput : end.status;
}
