#include "refhost/workbench/run/LogPanel.h"

#include "tests/support/QuietTest.h"
#include "tests/workbench/support/RunBench.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

/// The log has a line for all that happens in a run, and its lines lead to where it happened.
class LogPanelTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void writesWhatHappens();
    void writesNoHaltWhileStepping();
    void leavesOnlyWarnings();
    void leadsToTheStepAndItsField();
    void leadsByTheKeyboard();
    void leadsNowhereWhenTheStepIsGone();
    void copiesTheSelectedLines();
    void savesTheLines();
    void clears();
    void comesInAtTheLastLine();
    void followsTheLastLine();
    void isQuickWithManyLines();
    void shortensLongLines();

private:
    QString text(int row, int column = 1) const
    {
        return m_view->model()->index(row, column).data().toString();
    }
    QStringList texts(int column = 1) const;
    void click(int row);
    void addNoisySteps();

    std::unique_ptr<RunBench> m_bench;
    std::unique_ptr<LogPanel> m_panel;
    QTreeView *m_view = nullptr;
    int m_quiet = 0; ///< a step without warnings
    int m_noisy = 0; ///< a step with a warning about its result variable
};

void LogPanelTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<RunBench>();
    m_bench->addVariable("r", VarType::String, "-");
    m_panel = std::make_unique<LogPanel>(m_bench->bench);
    m_panel->resize(800, 200);
    m_panel->show();
    m_view = m_panel->findChild<QTreeView *>("log.table");
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void LogPanelTest::cleanup()
{
    m_panel.reset();
    m_bench.reset();
    QuietTest::cleanup();
}

QStringList LogPanelTest::texts(int column) const
{
    QStringList lines;
    for (int row = 0; row < m_view->model()->rowCount(); ++row)
        lines.append(text(row, column));
    return lines;
}

void LogPanelTest::click(int row)
{
    const QModelIndex index = m_view->model()->index(row, 1);
    m_view->scrollTo(index);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, m_view->visualRect(index).center());
}

void LogPanelTest::addNoisySteps()
{
    m_quiet = m_bench->addAppend("a");
    m_noisy = m_bench->addStep("text.append", {{"sourceText", "b"}, {"resultVar", "gone"}});
}

void LogPanelTest::writesWhatHappens()
{
    addNoisySteps();
    m_bench->setBreakpoint(m_noisy);
    QVERIFY(m_bench->runs());
    QVERIFY(m_bench->runs());
    m_bench->run.reset();
    const QStringList lines = texts();
    QCOMPARE(lines.size(), 7);
    QVERIFY(lines.at(0).endsWith("运行开始"));
    QVERIFY(lines.at(1).contains("$r + a -> $r"));
    QCOMPARE(lines.at(2), "在断点处暂停：1 个步骤，0 条警告");
    QVERIFY(lines.at(3).contains("$gone"));
    QVERIFY(lines.at(4).contains("未声明为字符串"));
    QCOMPARE(lines.at(5), "运行结束：2 个步骤，1 条警告");
    QCOMPARE(lines.at(6), "已重置");
    QCOMPARE(texts(0), (QStringList{"", "1", "", "2", "2", "", ""}));
    QCOMPARE(text(1, 2), "r = \"-a\"");
    QVERIFY(text(1, 3).contains("s"));
    QCOMPARE(text(4, 3), "");
}

void LogPanelTest::writesNoHaltWhileStepping()
{
    addNoisySteps();
    m_bench->run.stepOver();
    m_bench->run.stop();
    QCOMPARE(m_view->model()->rowCount(), 3);
    QCOMPARE(text(2), "已停止：1 个步骤，0 条警告");
}

void LogPanelTest::leavesOnlyWarnings()
{
    addNoisySteps();
    auto *const box = m_panel->findChild<QCheckBox *>("log.warningsOnly");
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(m_bench->runs());
    QCOMPARE(texts(0), QStringList{"2"});
    click(0);
    QCOMPARE(m_bench->bench.place.step(), m_noisy);
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(m_view->model()->rowCount(), 5);
}

void LogPanelTest::leadsToTheStepAndItsField()
{
    addNoisySteps();
    QVERIFY(m_bench->runs());
    QSignalSpy wanted(&m_bench->bench.place, &CurrentPlace::wanted);
    click(1);
    click(3);
    click(0);
    QCOMPARE(wanted.count(), 2);
    QVERIFY(wanted.at(0).first().value<EditPlace>() == (EditPlace{m_quiet, {}, 0}));
    QVERIFY(wanted.at(1).first().value<EditPlace>() == (EditPlace{m_noisy, "resultVar", 0}));
}

void LogPanelTest::leadsByTheKeyboard()
{
    addNoisySteps();
    QVERIFY(m_bench->runs());
    QSignalSpy wanted(&m_bench->bench.place, &CurrentPlace::wanted);
    m_panel->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(m_view, Qt::Key_Down);
    QTest::keyClick(m_view, Qt::Key_Return);
    QCOMPARE(wanted.count(), 1);
    QVERIFY(wanted.first().first().value<EditPlace>() == (EditPlace{m_noisy, "resultVar", 0}));
}

void LogPanelTest::leadsNowhereWhenTheStepIsGone()
{
    addNoisySteps();
    QVERIFY(m_bench->runs());
    m_bench->removeStep(m_noisy);
    QSignalSpy wanted(&m_bench->bench.place, &CurrentPlace::wanted);
    click(3);
    QCOMPARE(wanted.count(), 0);
}

void LogPanelTest::copiesTheSelectedLines()
{
    addNoisySteps();
    QVERIFY(m_bench->runs());
    click(3);
    QTest::keyClick(m_view, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(m_view, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).startsWith("2\t" + text(2) + "\t"));
    QVERIFY(lines.at(1).startsWith("2\t" + text(3)));
}

void LogPanelTest::savesTheLines()
{
    addNoisySteps();
    QVERIFY(m_bench->runs());
    const QTemporaryDir folder;
    QFile file(folder.filePath("log.txt"));
    QVERIFY(m_panel->save(file.fileName()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()).count('\n'), 5);
    QVERIFY(!m_panel->save(folder.filePath("no/such/folder/log.txt")));
}

void LogPanelTest::comesInAtTheLastLine()
{
    m_view->clearFocus();
    for (int i = 0; i < 100; ++i)
        m_bench->addAppend("a");
    QVERIFY(m_bench->runs());
    QTRY_COMPARE(m_view->model()->rowCount(), 102);
    m_view->setFocus(Qt::TabFocusReason);
    QCOMPARE(m_view->currentIndex().row(), 101);
    QVERIFY(m_view->viewport()->rect().contains(m_view->visualRect(m_view->currentIndex())));
}

void LogPanelTest::clears()
{
    addNoisySteps();
    QVERIFY(m_bench->runs());
    m_panel->findChild<QAction *>("log.clear")->trigger();
    QCOMPARE(m_view->model()->rowCount(), 0);
    QVERIFY(m_bench->runs());
    m_bench->document.replace({});
    QCOMPARE(m_view->model()->rowCount(), 0);
}

void LogPanelTest::followsTheLastLine()
{
    for (int i = 0; i < 50; ++i)
        m_bench->addAppend("a");
    const QScrollBar *const bar = m_view->verticalScrollBar();
    QVERIFY(m_bench->runs());
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());
    m_view->scrollToTop();
    QVERIFY(m_bench->runs());
    QTest::qWait(1);
    QCOMPARE(bar->value(), 0);
    QVERIFY(bar->maximum() > 60);
    m_view->scrollToBottom();
    QVERIFY(m_bench->runs());
    QTRY_COMPARE(bar->value(), bar->maximum());
}

void LogPanelTest::isQuickWithManyLines()
{
    addNoisySteps();
    const StepState noisy = *m_bench->document.state().step(m_noisy);
    QVector<StepState> steps;
    for (int i = 0; i < 50000; ++i)
        steps.append(duplicate(noisy));
    TaskState state = m_bench->document.state();
    state.steps = steps;
    m_bench->document.replace(state);
    QElapsedTimer clock;
    m_bench->run.run();
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->run.state() == RunSession::State::Finished, 60000);
    QVERIFY(m_view->model()->rowCount() >= 100000);
    clock.start();
    m_view->scrollToTop();
    m_view->grab();
    m_view->scrollToBottom();
    m_view->grab();
    click(70000);
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
}

void LogPanelTest::shortensLongLines()
{
    m_bench->addVariable("n", VarType::Double);
    m_bench->addVariable("long", VarType::String, QString(2000000, QLatin1Char('x')));
    const int id = m_bench->addStep("text.toNumber", {{"sourceText", "$long"}, {"resultVar", "n"}});
    QVERIFY(m_bench->runs());
    QVERIFY(text(2).size() < 3000);
    QSignalSpy wanted(&m_bench->bench.place, &CurrentPlace::wanted);
    click(2);
    QVERIFY(wanted.first().first().value<EditPlace>() == (EditPlace{id, "sourceText", 0}));
}

QTEST_MAIN(LogPanelTest)
#include "LogPanelTest.moc"
