#include "tests/support/QuietTest.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

/// "oprun validate" that is ended while a plug-in hangs: no process and no file is left behind.
class ValidateEndTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothingBehind_data();
    void leavesNothingBehind();
    void childOfThePluginEndsAtTheTimeout();
};

namespace {

constexpr int oneMinute = 60000;

QString fileOf(const QString &animal)
{
    return QString(ZOO_FOLDER) + "/lib" + animal + ".so";
}

/// Starts oprun with `folder` for temporary files and kept tasks.
void startValidate(QProcess &process, const QString &folder, const QStringList &arguments)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("TMPDIR", folder);
    process.setProcessEnvironment(variables);
    process.start(OPRUN_FILE, QStringList{"validate", "--keep", folder} + arguments);
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

/// The command lines of all running processes in which `text` occurs.
QStringList commandLinesWith(const QString &text)
{
    QStringList lines;
    const QStringList processes = QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
    for (const QString &process : processes) {
        QFile file("/proc/" + process + "/cmdline");
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString line = QString::fromUtf8(file.readAll().replace('\0', ' '));
        if (line.contains(text))
            lines.append(line);
    }
    return lines;
}

} // namespace

void ValidateEndTest::leavesNothingBehind_data()
{
    QTest::addColumn<QString>("animal");
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("status"); // -1 where the signal itself ends oprun
    QTest::addColumn<int>("processes");
    const auto rows = [](const char *animal, int processes) {
        const auto row = [&](const char *name, int signal, int status) {
            QTest::addRow("%s, %s", name, animal) << animal << signal << status << processes;
        };
        row("SIGTERM", SIGTERM, 128 + SIGTERM);
        row("SIGINT", SIGINT, 128 + SIGINT);
        row("SIGKILL", SIGKILL, -1);
    };
    rows("LoopOnMark", 2);
    rows("IgnoresSignals", 3);
}

void ValidateEndTest::leavesNothingBehind()
{
    QFETCH(QString, animal);
    QFETCH(int, signal);
    const QTemporaryDir folder;
    QProcess process;
    startValidate(process, folder.path(), {fileOf(animal), "--only", "hostile.steps"});
    // The task appears when the check begins.
    QTRY_COMPARE_WITH_TIMEOUT(filesIn(folder.path()).filter("hostile.steps").size(), 1, oneMinute);
    QFETCH(int, processes);
    QTRY_COMPARE_WITH_TIMEOUT(commandLinesWith(folder.path()).size(), processes, oneMinute);
    QCOMPARE(kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(oneMinute));
    QTEST(process.exitStatus() == QProcess::CrashExit ? -1 : process.exitCode(), "status");
    QTRY_COMPARE_WITH_TIMEOUT(commandLinesWith(folder.path()), QStringList(), oneMinute);
    QCOMPARE(filesIn(folder.path()), QStringList());
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
}

void ValidateEndTest::childOfThePluginEndsAtTheTimeout()
{
    const QTemporaryDir folder;
    QProcess process;
    startValidate(process, folder.path(),
                  {fileOf("IgnoresSignals"), "--only", "hostile.steps", "--timeout", "2"});
    QVERIFY(process.waitForFinished(oneMinute));
    QCOMPARE(process.exitCode(), 4);
    QTRY_COMPARE_WITH_TIMEOUT(commandLinesWith(folder.path()), QStringList(), oneMinute);
    QCOMPARE(filesIn(folder.path()),
             QStringList("hostile.steps-libIgnoresSignals-1-zoo.sound.json"));
}

QTEST_GUILESS_MAIN(ValidateEndTest)

#include "ValidateEndTest.moc"
