#include "tests/support/OprunProcess.h"
#include "tests/support/QuietTest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// The task that a failing random step leaves behind: it shows the fault again, whether or not the
/// program came to its end.
class KeptTaskTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsLeftOfASoundPlugin();
    void crashHappensAgain();
    void endlessLoopIsLeft();
    void wrongWriteHappensAgain();
    void sameSeedGivesTheSameTask();
    void folderHasToBeThere();
    void folderThatCannotBeWritten();

private:
    OprunOutcome attack(const QString &animal, const QStringList &options) const;
    OprunOutcome attackKeepingIn(const QString &folder, const QString &animal,
                                 const QStringList &options = {}) const;
    /// The only file that was left behind.
    QString keptFile() const;
    QByteArray keptTask() const;

    QTemporaryDir m_folder;
};

namespace {

QString fileOf(const QString &animal)
{
    return QString(ZOO_FOLDER) + "/lib" + animal + ".so";
}

} // namespace

OprunOutcome KeptTaskTest::attack(const QString &animal, const QStringList &options) const
{
    return attackKeepingIn(m_folder.path(), animal, options);
}

OprunOutcome KeptTaskTest::attackKeepingIn(const QString &folder, const QString &animal,
                                           const QStringList &options) const
{
    const QStringList arguments{"validate",      fileOf(animal), "--only",
                                "hostile.steps", "--keep",       folder};
    return runProgram(OPRUN_FILE, arguments + options);
}

QString KeptTaskTest::keptFile() const
{
    const QStringList files = QDir(m_folder.path()).entryList(QDir::Files);
    return files.size() == 1 ? m_folder.filePath(files.first()) : files.join(", ");
}

QByteArray KeptTaskTest::keptTask() const
{
    QFile file(keptFile());
    const bool isOpen = file.open(QIODevice::ReadOnly);
    return isOpen ? file.readAll() : QByteArray();
}

void KeptTaskTest::nothingIsLeftOfASoundPlugin()
{
    QCOMPARE(attack("Sound", {}).status, 0);
    QCOMPARE(keptFile(), QString());
}

void KeptTaskTest::crashHappensAgain()
{
    const OprunOutcome outcome = attack("CrashOnOddMode", {});
    QCOMPARE(outcome.status, 4);
    const QString file = keptFile();
    QCOMPARE(QFileInfo(file).fileName(),
             QString("hostile.steps-libCrashOnOddMode-1-zoo.sound.json"));
    const QString plugin = fileOf("CrashOnOddMode");
    QVERIFY2(outcome.out.contains("oprun run " + file + " --plugin " + plugin),
             qPrintable(outcome.out));
    QCOMPARE(runProgram(OPRUN_FILE, {"run", file, "--plugin", plugin}).status, 6);
    QVERIFY(QFile::remove(file));
}

void KeptTaskTest::endlessLoopIsLeft()
{
    const OprunOutcome outcome = attack("LoopOnMark", {"--timeout", "5"});
    QCOMPARE(outcome.status, 4);
    QVERIFY2(outcome.out.contains(keptFile()), qPrintable(outcome.out));
    QVERIFY(keptTask().contains("\u202E"));
    QVERIFY(QFile::remove(keptFile()));
}

void KeptTaskTest::wrongWriteHappensAgain()
{
    QCOMPARE(attack("WritesOnNul", {}).status, 1);
    const QString plugin = fileOf("WritesOnNul");
    const OprunOutcome outcome =
        runProgram(OPRUN_FILE, {"run", keptFile(), "--plugin", plugin, "--trace"});
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.err.contains("          other = "), qPrintable(outcome.err));
    QVERIFY(QFile::remove(keptFile()));
}

void KeptTaskTest::sameSeedGivesTheSameTask()
{
    attack("WritesOnNul", {"--seed", "7"});
    const QByteArray first = keptTask();
    QVERIFY(!first.isEmpty());
    QVERIFY(QFile::remove(keptFile()));
    attack("WritesOnNul", {"--seed", "7"});
    QCOMPARE(keptTask(), first);
    QVERIFY(QFile::remove(keptFile()));
    attack("WritesOnNul", {"--seed", "8"});
    QVERIFY(!keptTask().isEmpty());
    QVERIFY(keptTask() != first);
    QVERIFY(QFile::remove(keptFile()));
}

void KeptTaskTest::folderHasToBeThere()
{
    const OprunOutcome outcome = attackKeepingIn("no/such/folder", "Sound");
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.err, QString("oprun: validate: --keep: \"no/such/folder\"; expected a folder. "
                                  "Try \"oprun validate --help\".\n"));
}

void KeptTaskTest::folderThatCannotBeWritten()
{
    const OprunOutcome outcome = attackKeepingIn("/proc", "WritesOnNul");
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.out.contains("the task cannot be kept: /proc/hostile.steps-libWritesOnNul-1"),
             qPrintable(outcome.out));
}

QTEST_GUILESS_MAIN(KeptTaskTest)

#include "KeptTaskTest.moc"
