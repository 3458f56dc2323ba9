#include "refhost/workbench/files/Recovery.h"

#include "refhost/workbench/files/FileActions.h"
#include "refhost/workbench/settings/Settings.h"
#include "refhost/workbench/window/MainWindow.h"
#include "refhost/workbench/window/Workbench.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/ScriptedQuestions.h"

#include "Operation.h"

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int aMinute = 60000;

} // namespace

/// What is edited is not lost with the process.
class RecoveryTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void isBackAfterACrash_data();
    void isBackAfterACrash();
    void isOfferedUntilItIsDecided();
    void aLivingWindowIsNotRobbed();
    void leavesNothingWhen_data();
    void leavesNothingWhen();
    void writesBeforeARun();
    void writesNothingTwice();
    void typingIsNotHeldUp();
    void keepsExactValues();
    void keepsWhatNobodyDecidedAbout();
    void aTaskThatCannotBeReadIsKept();
    void aCutFileIsKept();
    void oneOfSeveralIsRestored();
    void aFolderThatCannotBeWrittenIsTold();
    void theWindowAsksBeforeItCloses();

private:
    QString recovery() const { return m_folder->filePath("recovery"); }
    QStringList kept() const { return QDir(recovery()).entryList({"*.recovery"}, QDir::Files); }
    QString task() const { return m_folder->filePath("a.json"); }
    void openWindow(const QStringList &plugins = {PLUGIN_FILE});
    void closeWindow();
    void lose(const QString &text, const QString &way);
    void edit(const QString &text);
    QString source() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench> m_bench;
    std::unique_ptr<QWidget> m_window;
    FileActions *m_files = nullptr;
    QuestionScript m_script;
};

void RecoveryTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void RecoveryTest::init()
{
    QuietTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("OPWORKBENCH_RECOVERY", recovery().toUtf8());
    QFile file(task());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"steps": [{"type": "text.append", "sourceText": "a"}]})");
    file.close();
    m_script = {};
    openWindow();
}

void RecoveryTest::cleanup()
{
    closeWindow();
    QFile::remove(settingsFile());
    QuietTest::cleanup();
}

void RecoveryTest::openWindow(const QStringList &plugins)
{
    m_bench = std::make_unique<Workbench>(plugins);
    m_window = std::make_unique<QWidget>();
    m_files = new FileActions(*m_bench, m_window.get());
    m_files->setQuestions(std::make_unique<ScriptedQuestions>(m_script));
}

void RecoveryTest::closeWindow()
{
    m_window.reset();
    m_bench.reset();
}

void RecoveryTest::lose(const QString &text, const QString &way)
{
    QProcess process;
    process.start(LOST_WINDOW, {PLUGIN_FILE, task(), text, way});
    QVERIFY(process.waitForFinished(aMinute));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
}

void RecoveryTest::edit(const QString &text)
{
    TaskDocument &document = m_bench->document;
    const int id = document.state().steps.first().id;
    document.change("edit", document.state().withProperty(id, "sourceText", text), {});
}

QString RecoveryTest::source() const
{
    const QVector<StepState> &steps = m_bench->document.state().steps;
    return steps.isEmpty() ? QString("no step")
                           : steps.first().operation->property("sourceText").toString();
}

void RecoveryTest::isBackAfterACrash_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("while nothing happens") << "idle";
    QTest::newRow("in the first step of a run") << "run";
}

void RecoveryTest::isBackAfterACrash()
{
    QFETCH(QString, way);
    lose(QString::fromUtf8("改过 \"x\""), way);
    QCOMPARE(kept().size(), 1);

    m_script.lost = Questions::Lost::Restore;
    m_files->offerLost();
    QCOMPARE(m_script.offers.size(), 1);
    QCOMPARE(m_script.offers.first().original, task());
    QVERIFY(m_script.offers.first().time.secsTo(QDateTime::currentDateTime()) < 60);
    QCOMPARE(source(), QString::fromUtf8("改过 \"x\""));
    QVERIFY(m_bench->document.isModified());
    QCOMPARE(m_files->path(), task());
    // It is in a file of this window now, and in no other.
    QCOMPARE(kept().size(), 1);
    QVERIFY(m_files->save());
    QCOMPARE(m_script.asked, QStringList{"lost"});
    QVERIFY(!QFileInfo::exists(recovery()));
}

void RecoveryTest::isOfferedUntilItIsDecided()
{
    lose("b", "run");
    for (int i = 0; i < 2; ++i) {
        m_files->offerLost();
        QCOMPARE(m_script.takeAsked(), QStringList{"lost"});
        QCOMPARE(source(), QString("no step"));
        QCOMPARE(kept().size(), 1);
    }
    m_script.lost = Questions::Lost::Discard;
    m_files->offerLost();
    QVERIFY(!QFileInfo::exists(recovery()));
    m_script.takeAsked();
    m_files->offerLost();
    QCOMPARE(m_script.asked, QStringList());
}

void RecoveryTest::aLivingWindowIsNotRobbed()
{
    QProcess other;
    other.start(LOST_WINDOW, {PLUGIN_FILE, task(), "theirs", "stay"});
    QVERIFY(other.waitForReadyRead(aMinute));
    QCOMPARE(kept().size(), 1);
    m_script.lost = Questions::Lost::Discard;
    m_files->offerLost();
    QCOMPARE(m_script.asked, QStringList());
    QCOMPARE(kept().size(), 1);

    other.kill();
    QVERIFY(other.waitForFinished(aMinute));
    m_script.lost = Questions::Lost::Restore;
    m_files->offerLost();
    QCOMPARE(source(), QString("theirs"));
}

void RecoveryTest::leavesNothingWhen_data()
{
    QTest::addColumn<QString>("what");
    for (const char *const what : {"saved", "undone", "discarded", "replaced", "closed"})
        QTest::newRow(what) << what;
}

void RecoveryTest::leavesNothingWhen()
{
    QFETCH(QString, what);
    QVERIFY(!m_files->load(task()));
    edit("b");
    QTRY_COMPARE(kept().size(), 1);
    m_script.unsaved = Questions::Unsaved::Discard;
    if (what == "saved") {
        QVERIFY(m_files->save());
    } else if (what == "undone") {
        m_bench->document.undo();
    } else if (what == "replaced") {
        QVERIFY(m_files->startNew());
    } else if (what == "discarded") {
        QVERIFY(m_files->mayLeave());
        QCOMPARE(kept().size(), 1);
        closeWindow();
    } else {
        m_bench->document.markSaved();
        closeWindow();
    }
    QVERIFY(!QFileInfo::exists(recovery()));
}

void RecoveryTest::writesBeforeARun()
{
    QVERIFY(!m_files->load(task()));
    edit("b");
    QCOMPARE(kept().size(), 0);
    Q_EMIT m_bench->run.stateChanged();
    QCOMPARE(kept().size(), 1);
}

void RecoveryTest::writesNothingTwice()
{
    QVERIFY(!m_files->load(task()));
    edit("b");
    QVERIFY(m_files->recovery().flush());
    const QString file = QDir(recovery()).filePath(kept().first());
    QVERIFY(QFile::remove(file));
    const int id = m_bench->document.state().steps.first().id;
    m_bench->document.change("breakpoint", m_bench->document.state().withBreakpoint(id, true), {});
    QVERIFY(m_files->recovery().flush());
    QVERIFY(!QFileInfo::exists(file));
    edit("c");
    QVERIFY(m_files->recovery().flush());
    QVERIFY(QFileInfo::exists(file));
}

void RecoveryTest::typingIsNotHeldUp()
{
    QVERIFY(!m_files->load(task()));
    TaskDocument &document = m_bench->document;
    const TaskVariable large{"large", VarType::String, QString(1 << 22, 'x')};
    document.change("variable", document.state().withVariable(0, {newStateId(), large}), {});
    for (int i = 0; i < 50; ++i) {
        edit(QString::number(i));
        QTest::qWait(30);
    }
    QTRY_COMPARE(kept().size(), 1);
    QVERIFY(m_files->recovery().flush());
    closeWindow();
    openWindow();
    m_script.lost = Questions::Lost::Restore;
    m_files->offerLost();
    QCOMPARE(source(), QString("49"));
    QCOMPARE(m_bench->document.state().variableNamed("large")->variable.value, large.value);
}

void RecoveryTest::keepsExactValues()
{
    QVERIFY(!m_files->load(task()));
    TaskDocument &document = m_bench->document;
    const QString large(1 << 20, QChar(0xd800));
    document.change("variable",
                    document.state()
                        .withVariable(0, {newStateId(), {"null", VarType::String, QString()}})
                        .withVariable(1, {newStateId(), {"large", VarType::String, large}}),
                    {});
    QVERIFY(m_files->recovery().flush());
    closeWindow();
    openWindow();
    m_script.lost = Questions::Lost::Restore;
    m_files->offerLost();
    const QVariant null = m_bench->document.state().variableNamed("null")->variable.value;
    QVERIFY(null.toString().isNull() && null.isValid());
    QCOMPARE(m_bench->document.state().variableNamed("large")->variable.value.toString(), large);
}

void RecoveryTest::keepsWhatNobodyDecidedAbout()
{
    QVERIFY(!m_files->load(task()));
    edit("b");
    QVERIFY(m_files->recovery().flush());
    m_script.unsaved = Questions::Unsaved::Discard;
    QVERIFY(m_files->mayLeave());
    edit("c"); // so the window was not left after all
    QVERIFY(m_files->recovery().flush());
    closeWindow();
    QCOMPARE(kept().size(), 1);
    openWindow();
    m_script.lost = Questions::Lost::Restore;
    m_files->offerLost();
    QCOMPARE(source(), QString("c"));
}

void RecoveryTest::aTaskThatCannotBeReadIsKept()
{
    lose("b", "run");
    closeWindow();
    openWindow({GREET_PLUGIN});
    m_script.lost = Questions::Lost::Restore;
    m_files->offerLost();
    QVERIFY(m_script.offers.first().problem);
    QCOMPARE(m_script.offers.first().original, task());
    QVERIFY2(m_script.offers.first().problem->message.contains("text.append"),
             qPrintable(m_script.offers.first().problem->message));
    QCOMPARE(kept().size(), 1);
    QVERIFY(!m_bench->document.isModified());

    closeWindow();
    openWindow();
    m_files->offerLost();
    QCOMPARE(source(), QString("b"));
}

void RecoveryTest::aCutFileIsKept()
{
    lose("b", "run");
    QFile file(QDir(recovery()).filePath(kept().first()));
    QVERIFY(file.resize(file.size() - 1));
    m_script.lost = Questions::Lost::Restore;
    m_files->offerLost();
    QVERIFY(m_script.offers.first().problem);
    QCOMPARE(kept().size(), 1);
}

void RecoveryTest::oneOfSeveralIsRestored()
{
    lose("older", "run");
    QTest::qWait(20); // so that the times of the files differ
    lose("newer", "run");
    m_script.lost = Questions::Lost::Restore;
    m_files->offerLost();
    QCOMPARE(m_script.takeAsked(), QStringList{"lost"});
    QCOMPARE(source(), QString("newer"));
    QCOMPARE(kept().size(), 2);
    m_script.unsaved = Questions::Unsaved::Discard;
    m_files->offerLost();
    QCOMPARE(m_script.takeAsked(), (QStringList{"lost", "unsaved a.json"}));
    QCOMPARE(source(), QString("older"));
    QCOMPARE(kept().size(), 1);
}

void RecoveryTest::aFolderThatCannotBeWrittenIsTold()
{
    QFile file(recovery());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(!m_files->load(task()));
    QSignalSpy told(m_files, &FileActions::statusText);
    edit("b");
    QVERIFY(!m_files->recovery().flush());
    QCOMPARE(told.count(), 1);
    QVERIFY(told.first().first().toString().contains(recovery()));
    QVERIFY(m_files->save());
}

void RecoveryTest::theWindowAsksBeforeItCloses()
{
    closeWindow();
    m_bench = std::make_unique<Workbench>(QStringList{PLUGIN_FILE});
    auto *const window = new MainWindow(*m_bench);
    m_window.reset(window);
    window->files().setQuestions(std::make_unique<ScriptedQuestions>(m_script));
    QVERIFY(!window->files().load(task()));
    edit("b");
    window->show();
    QVERIFY(!window->close());
    QVERIFY(window->isVisible());
    QCOMPARE(m_script.takeAsked(), QStringList{"unsaved a.json"});
    m_script.unsaved = Questions::Unsaved::Save;
    window->findChild<QAction *>("files.quit")->trigger();
    QVERIFY(!window->isVisible());
    QCOMPARE(m_script.takeAsked(), QStringList{"unsaved a.json"});
    QVERIFY(!m_bench->document.isModified());
}

QTEST_MAIN(RecoveryTest)
#include "RecoveryTest.moc"
