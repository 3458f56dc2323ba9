#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <csignal>

/// oprun as a process, with steps that throw, crash, exit or never return.
class FaultyStepsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void failedStep_data();
    void failedStep();
    void failedStepOfARow_data();
    void failedStepOfARow();
    void failedStepInErrors();
    void failFast();
    void failFastOnRows_data();
    void failFastOnRows();
    void failedExample();
    void crash_data();
    void crash();
    void crashOnRows_data();
    void crashOnRows();
    void crashOfAnExample();
    void crashOfOneThread_data();
    void crashOfOneThread();
    void crashWhileLoading_data();
    void crashWhileLoading();
    void crashAtTheEnd();
    void timeLimit();
    void timeLimitOfARow_data();
    void timeLimitOfARow();
    void timeLimitLeavesFastRows();
    void wrongTimeLimit_data();
    void wrongTimeLimit();
    void interruptedStep_data();
    void interruptedStep();
    void interruptedRow_data();
    void interruptedRow();
    void interruptedBetweenSteps();
    void interruptedWhileLoading();
    void interruptedByTimeout();
    void ignoredInterruption();
    void killed();

private:
    OprunOutcome run(const QByteArray &fault, const QStringList &options,
                     const QMap<QString, QString> &environment = {}) const;
    void start(QProcess &process, const QByteArray &fault, const QStringList &options) const;
    bool leavesNothing() const;

    const OprunFolder m_folder{OPRUN_FILE};
};

namespace {

/// What names the faulty step in messages.
const QString place = "steps[1] (faulty.step of libFaultyPlugin.so)";

/// All that a step can do to end the process, and how that is called.
void addCrashes()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QString>("ending");

    QTest::newRow("exit") << QByteArray("exit") << "exit with status 0";
    QTest::newRow("_exit") << QByteArray("_exit") << "exit with status 0";
    QTest::newRow("abort") << QByteArray("abort") << "signal 6 (SIGABRT)";
    QTest::newRow("crash") << QByteArray("crash") << "signal 11 (SIGSEGV)";
    QTest::newRow("stack overflow") << QByteArray("overflow") << "signal 11 (SIGSEGV)";
}

/// `text` is what oprun printed; where a sanitizer is at work, it reports crashes before.
QString lastLines(const QString &text, int count)
{
    return QStringList(text.split('\n').mid(text.count('\n') - count)).join('\n');
}

/// The ending in words; a sanitizer turns a crash into an exit.
QString actualEnding(const QString &ending, const QString &messages)
{
    const QRegularExpression exit("exit with status [1-9]\\d*");
    const auto match = exit.match(messages);
    return ending.startsWith("signal") && match.hasMatch() && messages.contains("Sanitizer")
               ? match.captured()
               : ending;
}

} // namespace

void FaultyStepsTest::cleanup()
{
    for (const char *name : {"begun", "out", "errors"})
        QFile::remove(m_folder.filePath(name));
    QuietTest::cleanup();
}

/// Writes a task of three steps, of which the second has the fault when "n" is 3, and five rows,
/// and gives the arguments.
void FaultyStepsTest::start(QProcess &process, const QByteArray &fault,
                            const QStringList &options) const
{
    m_folder.write("task.json",
                   R"({"variables": {"n": {"type": "int", "value": 3}, "r": {"type": "string"}},
                       "steps": [{"type": "faulty.step"},
                                 {"type": "faulty.step", "row": "3", "fault": ")" +
                       fault + R"("}, {"type": "faulty.step"}]})");
    m_folder.write("rows", "{\"n\":1}\n{\"n\":2}\n{\"n\":3}\n{\"n\":4}\n{\"n\":5}\n");
    process.setWorkingDirectory(m_folder.path());
    process.setProgram(OPRUN_FILE);
    process.setArguments(QStringList{"run", "task.json", "--plugin", FAULTY_PLUGIN} + options);
    process.start();
}

OprunOutcome FaultyStepsTest::run(const QByteArray &fault, const QStringList &options,
                                  const QMap<QString, QString> &environment) const
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto variable = environment.begin(); variable != environment.end(); ++variable)
        variables.insert(variable.key(), variable.value());
    process.setProcessEnvironment(variables);
    start(process, fault, options);
    if (!process.waitForFinished(120'000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, {}, process.errorString()};
    const QByteArray out = process.readAllStandardOutput();
    return {process.exitCode(), out, QString::fromUtf8(out),
            QString::fromUtf8(process.readAllStandardError())};
}

/// Whether no file is in the folder but those the test has put there.
bool FaultyStepsTest::leavesNothing() const
{
    const QStringList files = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
    return files == QStringList{"begun", "rows", "task.json"};
}

void FaultyStepsTest::failedStep_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QString>("thrown");

    QTest::newRow("an exception") << QByteArray("throw") << "std::runtime_error: disk on fire";
    QTest::newRow("a number") << QByteArray("throw int") << "int";
    QTest::newRow("no memory") << QByteArray("throw bad_alloc") << "std::bad_alloc";
}

/// The run goes on, and what the step had written stays.
void FaultyStepsTest::failedStep()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, thrown);

    const auto outcome = run(fault, {"--print", "r"});
    QCOMPARE(outcome.err,
             QString("oprun: task.json: %1: the step failed: it threw %2\n").arg(place, thrown));
    QCOMPARE(outcome.out, QString("3\n"));
    QCOMPARE(outcome.status, 5);
}

void FaultyStepsTest::failedStepOfARow_data()
{
    failedStep_data();
}

void FaultyStepsTest::failedStepOfARow()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, thrown);

    for (const QString jobs : {"1", "3"}) {
        const auto outcome = run(fault, {"--each", "rows", "--print", "r", "--jobs", jobs});
        QCOMPARE(outcome.err, QString("oprun: rows: line 3: %1: the step failed: it threw %2\n"
                                      "oprun: 5 rows: 5 done, 0 failed; 0 warnings; "
                                      "1 failed steps\n")
                                  .arg(place, thrown));
        QCOMPARE(outcome.out, QString("{\"r\":\"1\"}\n{\"r\":\"2\"}\n{\"r\":\"3\"}\n{\"r\":\"4\"}\n"
                                      "{\"r\":\"5\"}\n"));
        QCOMPARE(outcome.status, 5);
    }
}

void FaultyStepsTest::failedStepInErrors()
{
    const auto outcome =
        run("throw", {"--each", "rows", "--print", "r", "--errors", "errors", "--out", "out"});
    QCOMPARE(outcome.status, 5);
    QCOMPARE(m_folder.read("errors"),
             QByteArray("{\"line\":3,\"step\":1,\"type\":\"faulty.step\","
                        "\"plugin\":\"libFaultyPlugin.so\","
                        "\"threw\":\"std::runtime_error: disk on fire\"}\n"));
    QCOMPARE(m_folder.read("out").count('\n'), 5);
}

void FaultyStepsTest::failFast()
{
    const auto outcome = run("throw", {"--fail-fast", "--print", "r"});
    QCOMPARE(outcome.err.count('\n'), 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 5);
    QCOMPARE(run("", {"--fail-fast", "--print", "r"}).status, 0);
}

void FaultyStepsTest::failFastOnRows_data()
{
    QTest::addColumn<QString>("jobs");

    QTest::newRow("one job") << "1";
    QTest::newRow("three jobs") << "3";
}

/// The row of the step that fails is the last one, and fails, too.
void FaultyStepsTest::failFastOnRows()
{
    QFETCH(QString, jobs);

    const QStringList options{"--each", "rows", "--print", "r", "--fail-fast", "--jobs", jobs};
    const auto outcome = run("throw", options);
    QCOMPARE(outcome.out, QString("{\"r\":\"1\"}\n{\"r\":\"2\"}\n"));
    QCOMPARE(lastLines(outcome.err, 1),
             QString("oprun: 3 rows: 2 done, 1 failed; 0 warnings; 1 failed steps; stopped at the "
                     "first that failed\n"));
    QCOMPARE(outcome.status, 5);
    QCOMPARE(run("throw", options + QStringList{"--out", "out"}).status, 5);
    QVERIFY(!QFile::exists(m_folder.filePath("out")));
}

void FaultyStepsTest::crash_data()
{
    addCrashes();
}

void FaultyStepsTest::crash()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, ending);

    const auto outcome = run(fault, {});
    QCOMPARE(lastLines(outcome.err, 1),
             QString("oprun: task.json: %1: oprun was ended by %2 during this step\n")
                 .arg(place, actualEnding(ending, outcome.err)));
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 6);
}

void FaultyStepsTest::crashOnRows_data()
{
    addCrashes();
}

/// Rows that are done are counted; no file appears or stays.
void FaultyStepsTest::crashOnRows()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, ending);

    for (const QString jobs : {"1", "3"}) {
        const auto outcome =
            run(fault, {"--each", "rows", "--jobs", jobs, "--out", "out", "--errors", "errors"});
        QCOMPARE(lastLines(outcome.err, 2),
                 QString("oprun: rows: line 3: %1: oprun was ended by %2 during this step\n"
                         "oprun: 2 rows: 2 done, 0 failed; 0 warnings; crashed; "
                         "out is not written; errors is not written\n")
                     .arg(place, actualEnding(ending, outcome.err)));
        QCOMPARE(outcome.status, 6);
        QVERIFY(leavesNothing());
    }
}

void FaultyStepsTest::crashOfOneThread_data()
{
    addCrashes();
}

/// Of two steps that run at the same time the one is named that crashes, except where the process
/// ends without any notice.
void FaultyStepsTest::crashOfOneThread()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, ending);

    QVERIFY(m_folder.write("two.json",
                           R"({"variables": {"n": {"type": "int"}, "r": {"type": "string"}},
                               "steps": [{"type": "faulty.step", "row": "1", "fault": "block"},
                                         {"type": "faulty.step", "row": "2", "fault": ")" +
                               fault + R"("}]})"));
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.start(OPRUN_FILE,
                  {"run", "two.json", "--plugin", FAULTY_PLUGIN, "--each", "-", "--jobs", "2"});
    QVERIFY(process.waitForStarted());
    process.write("{\"n\":1}\n");
    QTRY_VERIFY_WITH_TIMEOUT(
        (process.waitForBytesWritten(10), QFile::exists(m_folder.filePath("begun"))), 60'000);
    process.write("{\"n\":2}\n");
    QVERIFY(process.waitForFinished(60'000));
    QFile::remove(m_folder.filePath("two.json"));
    const QString messages = QString::fromUtf8(process.readAllStandardError());
    const QString line = "standard input: line %1: steps[%2] (faulty.step of libFaultyPlugin.so)";
    const bool isKnown = fault != "_exit" && !messages.contains("Sanitizer");
    const QString steps = isKnown ? line.arg("2", "1") + ": oprun was ended by %1 during this step"
                                  : line.arg("1", "0") + "; " + line.arg("2", "1") +
                                        ": oprun was ended by %1 during one of these steps";
    QCOMPARE(lastLines(messages, 2),
             "oprun: " + steps.arg(actualEnding(ending, messages)) +
                 "\noprun: 0 rows: 0 done, 0 failed; 0 warnings; crashed\n");
    QCOMPARE(process.exitCode(), 6);
}

void FaultyStepsTest::crashWhileLoading_data()
{
    addCrashes();
}

void FaultyStepsTest::crashWhileLoading()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, ending);

    const auto outcome = run("", {}, {{"FAULT_AT_LOAD", QString(fault)}});
    QCOMPARE(lastLines(outcome.err, 1),
             QString("oprun: oprun was ended by %1 while loading %2\n")
                 .arg(actualEnding(ending, outcome.err), QString(FAULTY_PLUGIN)));
    QCOMPARE(outcome.status, 6);
    QCOMPARE(
        m_folder.run({"--version", "--plugin", FAULTY_PLUGIN}, {{"FAULT_AT_LOAD", QString(fault)}})
            .status,
        6);
}

/// The results are there, but the exit status is no success.
void FaultyStepsTest::crashAtTheEnd()
{
    const auto outcome = run("", {"--print", "r"}, {{"FAULT_AT_END", "abort"}});
    QCOMPARE(outcome.out, QString("3\n"));
    QCOMPARE(lastLines(outcome.err, 1),
             QString("oprun: oprun was ended by %1 after its work was done\n")
                 .arg(actualEnding("signal 6 (SIGABRT)", outcome.err)));
    QCOMPARE(outcome.status, 6);
}

namespace {

const char exampleFile[] = R"({"faulty.step": {"about": "Fails.", "examples": [{
    "name": "a fault", "variables": {"r": {"type": "string"}},
    "settings": {"fault": "%1"}, "into": "string", "warnings": []}]}})";

} // namespace

/// The worked examples of a plug-in are steps, too.
void FaultyStepsTest::failedExample()
{
    const OprunFolder folder(OPRUN_FILE);
    QVERIFY(QFile::copy(FAULTY_PLUGIN, folder.filePath("libFaulty.so")));
    const QStringList arguments{"examples", "--check", "--plugin", "libFaulty.so"};
    QVERIFY(folder.write("libFaulty.examples.json", QString(exampleFile).arg("throw").toUtf8()));
    const auto outcome = folder.run(arguments);
    QVERIFY2(outcome.err.contains("threw std::runtime_error: disk on fire"),
             qPrintable(outcome.err));
    QCOMPARE(outcome.status, 1);
}

void FaultyStepsTest::crashOfAnExample()
{
    const OprunFolder folder(OPRUN_FILE);
    QVERIFY(QFile::copy(FAULTY_PLUGIN, folder.filePath("libFaulty.so")));
    QVERIFY(folder.write("libFaulty.examples.json", QString(exampleFile).arg("_exit").toUtf8()));
    const auto outcome = folder.run({"examples", "--check", "--plugin", "libFaulty.so"});
    QCOMPARE(outcome.err,
             QString("oprun: example \"a fault\": steps[0] (faulty.step of libFaulty.so): "
                     "oprun was ended by exit with status 0 during this step\n"));
    QCOMPARE(outcome.status, 6);
}

void FaultyStepsTest::timeLimit()
{
    for (const QByteArray fault : {"loop", "block"}) {
        const auto outcome = run(fault, {"--timeout", "2"});
        QCOMPARE(outcome.err, QString("oprun: task.json: %1: oprun was ended by force during this "
                                      "step, since the run took more than 2 s\n")
                                  .arg(place));
        QCOMPARE(outcome.status, 124);
    }
    const auto loading = run("", {"--timeout", "0.5"}, {{"FAULT_AT_LOAD", "block"}});
    QCOMPARE(loading.err, QString("oprun: oprun was ended by force while loading %1, since the run "
                                  "took more than 0.5 s\n")
                              .arg(FAULTY_PLUGIN));
    QCOMPARE(loading.status, 124);
}

void FaultyStepsTest::timeLimitOfARow_data()
{
    QTest::addColumn<QString>("jobs");

    QTest::newRow("one job") << "1";
    QTest::newRow("three jobs") << "3";
}

void FaultyStepsTest::timeLimitOfARow()
{
    QFETCH(QString, jobs);

    const auto outcome = run("loop", {"--each", "rows", "--jobs", jobs, "--out", "out", "--errors",
                                      "errors", "--timeout", "0.5"});
    QCOMPARE(outcome.err, QString("oprun: rows: line 3: %1: oprun was ended by force during this "
                                  "step, since the row took more than 0.5 s\n"
                                  "oprun: 2 rows: 2 done, 0 failed; 0 warnings; timed out; "
                                  "out is not written; errors is not written\n")
                              .arg(place));
    QCOMPARE(outcome.status, 124);
    QVERIFY(leavesNothing());
}

/// The limit is one of a row: neither all rows together nor the wait for the next one counts.
void FaultyStepsTest::timeLimitLeavesFastRows()
{
    QProcess process;
    start(process, "pause", {"--each", "-", "--print", "r", "--timeout", "2"});
    QVERIFY(process.waitForStarted());
    process.write("{\"n\":1}\n");
    QTRY_VERIFY_WITH_TIMEOUT(process.waitForReadyRead(100) || process.canReadLine(), 60'000);
    QTest::qSleep(3000);
    process.write("{\"n\":3}\n");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.readAllStandardOutput(), QByteArray("{\"r\":\"1\"}\n{\"r\":\"3\"}\n"));
    QCOMPARE(process.exitCode(), 0);
}

void FaultyStepsTest::wrongTimeLimit_data()
{
    QTest::addColumn<QString>("seconds");

    for (const char *seconds : {"0", "-1", "x", "", "nan", "inf", "1s"})
        QTest::newRow(seconds) << seconds;
}

void FaultyStepsTest::wrongTimeLimit()
{
    QFETCH(QString, seconds);

    const auto outcome = run("", {"--timeout=" + seconds});
    QCOMPARE(outcome.err, QString("oprun: --timeout: \"%1\"; expected a number of seconds greater "
                                  "than 0, such as 2.5\n")
                              .arg(seconds));
    QCOMPARE(outcome.status, 2);
}

void FaultyStepsTest::interruptedStep_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<int>("signal");

    QTest::newRow("Ctrl-C") << QByteArray("loop") << SIGINT;
    QTest::newRow("Ctrl-C, blocked") << QByteArray("block") << SIGINT;
    QTest::newRow("asked to end") << QByteArray("loop") << SIGTERM;
    QTest::newRow("terminal closed") << QByteArray("loop") << SIGHUP;
}

/// The first signal is enough, whatever the step does.
void FaultyStepsTest::interruptedStep()
{
    QFETCH(QByteArray, fault);
    QFETCH(int, signal);

    QProcess process;
    start(process, fault, {});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_folder.filePath("begun")), 60'000);
    QCOMPARE(kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(20'000));
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QString("oprun: task.json: %1: oprun was ended by force during this step, 1 s after "
                     "the interruption\n")
                 .arg(place));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 130);
}

void FaultyStepsTest::interruptedRow_data()
{
    timeLimitOfARow_data();
}

void FaultyStepsTest::interruptedRow()
{
    QFETCH(QString, jobs);

    QProcess process;
    start(process, "loop",
          {"--each", "rows", "--jobs", jobs, "--out", "out", "--errors", "errors"});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_folder.filePath("begun")), 60'000);
    QCOMPARE(kill(static_cast<pid_t>(process.processId()), SIGTERM), 0);
    QVERIFY(process.waitForFinished(20'000));
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QString("oprun: rows: line 3: %1: oprun was ended by force during this step, 1 s "
                     "after the interruption\n"
                     "oprun: 2 rows: 2 done, 0 failed; 0 warnings; interrupted; "
                     "out is not written; errors is not written\n")
                 .arg(place));
    QCOMPARE(process.exitCode(), 130);
    QVERIFY(leavesNothing());
}

/// A step that returns in time is finished, and the next one does not begin.
void FaultyStepsTest::interruptedBetweenSteps()
{
    QProcess process;
    start(process, "pause", {});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_folder.filePath("begun")), 60'000);
    QCOMPARE(kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished(20'000));
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QString("oprun: task.json: interrupted before steps[2]\n"));
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
    QCOMPARE(process.exitCode(), 130);
}

void FaultyStepsTest::interruptedWhileLoading()
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("FAULT_AT_LOAD", "block");
    process.setProcessEnvironment(variables);
    start(process, "", {});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_folder.filePath("begun")), 60'000);
    QCOMPARE(kill(static_cast<pid_t>(process.processId()), SIGTERM), 0);
    QVERIFY(process.waitForFinished(20'000));
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QString("oprun: oprun was interrupted while loading %1\n").arg(FAULTY_PLUGIN));
    QCOMPARE(process.exitCode(), 130);
}

/// What SECURITY.md recommends. `timeout` sends its signal twice.
void FaultyStepsTest::interruptedByTimeout()
{
    QProcess writer;
    start(writer, "loop", {"--timeout", "0.1"});
    QVERIFY(writer.waitForFinished(60'000));
    const QString command =
        QString("timeout 3 \"$OPRUN\" run task.json --plugin '%1'; echo $?").arg(FAULTY_PLUGIN);
    const auto outcome = m_folder.runShell(command);
    QCOMPARE(outcome.out, QString("124\n"));
    QVERIFY2(outcome.err.startsWith("oprun: task.json: " + place + ": oprun was ended by force"),
             qPrintable(outcome.err));
}

/// What is started in the background does not end on Ctrl-C.
void FaultyStepsTest::ignoredInterruption()
{
    QProcess writer;
    start(writer, "", {});
    QVERIFY(writer.waitForFinished(60'000));
    const auto outcome = m_folder.runShell(
        QString("trap '' INT; mkfifo pipe;"
                "\"$OPRUN\" run task.json --plugin '%1' --each - --print r < pipe & oprun=$!;"
                "exec 9> pipe; sleep 1; kill -INT $oprun; sleep 3; echo '{}' >&9; exec 9>&-;"
                "wait $oprun; echo $?; rm pipe")
            .arg(FAULTY_PLUGIN));
    QCOMPARE(outcome.out, QString("{\"r\":\"3\"}\n0\n"));
}

/// The child does not outlive its parent, however that ends.
void FaultyStepsTest::killed()
{
#ifndef Q_OS_LINUX
    QSKIP("Only Linux ends a process with its parent.");
#endif
    QProcess writer;
    start(writer, "loop", {"--timeout", "0.1"});
    QVERIFY(writer.waitForFinished(60'000));
    QFile::remove(m_folder.filePath("begun"));
    const auto outcome = m_folder.runShell(
        QString("{ \"$OPRUN\" run task.json --plugin '%1' & oprun=$!;"
                "while ! [ -e begun ]; do sleep 0.1; done; kill -KILL $oprun; } 2> err |"
                "timeout 20 cat")
            .arg(FAULTY_PLUGIN));
    // The output ends when the last process that could write to it has ended.
    QCOMPARE(outcome.status, 0);
    QFile::remove(m_folder.filePath("err"));
}

QTEST_GUILESS_MAIN(FaultyStepsTest)
#include "FaultyStepsTest.moc"
