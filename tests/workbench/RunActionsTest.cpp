#include "refhost/workbench/run/RunActions.h"

#include "tests/support/QuietTest.h"
#include "tests/workbench/support/RunBench.h"

#include <QTest>

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

using State = RunSession::State;

/// The actions do what they say, by their shortcuts too, and are there when they are of use.
class RunActionsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void haveTextsAndShortcuts();
    void areEnabledByState();
    void runByShortcuts();
    void toggleBreakpoints();
    void clearBreakpoints();

private:
    QAction *action(const QString &name) const
    {
        return m_actions->findChild<QAction *>("run." + name);
    }
    QString enabled() const;

    std::unique_ptr<RunBench> m_bench;
    std::unique_ptr<QMainWindow> m_window;
    RunActions *m_actions = nullptr;
};

void RunActionsTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<RunBench>();
    m_bench->addVariable("r", VarType::String, "-");
    m_window = std::make_unique<QMainWindow>();
    m_actions = new RunActions(m_bench->bench, m_window.get());
    m_window->menuBar()->addMenu("run")->addActions(m_actions->actions());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void RunActionsTest::cleanup()
{
    m_window.reset();
    m_bench.reset();
    QuietTest::cleanup();
}

QString RunActionsTest::enabled() const
{
    QStringList names;
    for (const QAction *one : m_actions->actions()) {
        if (!one->isSeparator() && one->isEnabled())
            names.append(one->objectName().mid(4));
    }
    return names.join(' ');
}

void RunActionsTest::haveTextsAndShortcuts()
{
    QStringList shortcuts;
    for (const QAction *one : m_actions->actions()) {
        QVERIFY(one->isSeparator() || !one->text().isEmpty());
        shortcuts.append(one->isSeparator() ? "-" : one->shortcut().toString());
    }
    QCOMPARE(shortcuts.join(' '), "F5 F10 Ctrl+F10 F6 Shift+F5 Ctrl+Shift+F5 - F9 Ctrl+Shift+F9");
}

void RunActionsTest::areEnabledByState()
{
    QCOMPARE(enabled(), "");
    const int first = m_bench->addAppend("a");
    const int second = m_bench->addAppend("b");
    QCOMPARE(enabled(), "run stepOver runTo breakpoint");
    m_bench->bench.place.setStep(second);
    QCOMPARE(enabled(), "run stepOver runTo breakpoint");
    m_bench->run.stepOver();
    QCOMPARE(enabled(), "run stepOver stop reset breakpoint");
    QVERIFY(action("run")->text().startsWith("继续"));
    m_bench->run.run();
    QCOMPARE(enabled(), "pause stop reset breakpoint");
    QVERIFY(m_bench->halts());
    QCOMPARE(enabled(), "run stepOver runTo reset breakpoint");
    QVERIFY(action("run")->text().startsWith("运行"));
    m_bench->setBreakpoint(first);
    QVERIFY(enabled().endsWith("clearBreakpoints"));
}

void RunActionsTest::runByShortcuts()
{
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    const int third = m_bench->addAppend("c");
    m_bench->bench.place.setStep(third);
    QTest::keyClick(m_window.get(), Qt::Key_F10);
    QCOMPARE(m_bench->value("r").toString(), "-a");
    QTest::keyClick(m_window.get(), Qt::Key_F10, Qt::ControlModifier);
    QVERIFY(m_bench->halts());
    QCOMPARE(m_bench->value("r").toString(), "-ab");
    QTest::keyClick(m_window.get(), Qt::Key_F5);
    QTest::keyClick(m_window.get(), Qt::Key_F6);
    QCOMPARE(m_bench->run.state(), State::Paused);
    QTest::keyClick(m_window.get(), Qt::Key_F5, Qt::ShiftModifier);
    QCOMPARE(m_bench->run.state(), State::Finished);
    QTest::keyClick(m_window.get(), Qt::Key_F5, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_bench->run.state(), State::Ready);
    QTest::keyClick(m_window.get(), Qt::Key_F5);
    QVERIFY(m_bench->halts());
    QCOMPARE(m_bench->value("r").toString(), "-abc");
}

void RunActionsTest::toggleBreakpoints()
{
    const int first = m_bench->addAppend("a");
    m_bench->bench.place.setStep(first);
    const auto isSet = [&] { return m_bench->document.state().step(first)->breakpoint; };
    QTest::keyClick(m_window.get(), Qt::Key_F9);
    QVERIFY(isSet());
    m_bench->document.undo();
    QVERIFY(!isSet());
    m_bench->document.redo();
    QTest::keyClick(m_window.get(), Qt::Key_F9);
    QVERIFY(!isSet());
}

void RunActionsTest::clearBreakpoints()
{
    for (const char *const text : {"a", "b", "c"})
        m_bench->setBreakpoint(m_bench->addAppend(text));
    const auto count = [&] {
        const QVector<StepState> &steps = m_bench->document.state().steps;
        return std::count_if(steps.cbegin(), steps.cend(),
                             [](const StepState &step) { return step.breakpoint; });
    };
    QTest::keyClick(m_window.get(), Qt::Key_F9, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(count(), 0);
    QVERIFY(!action("clearBreakpoints")->isEnabled());
    m_bench->document.undo();
    QCOMPARE(count(), 3);
}

QTEST_MAIN(RunActionsTest)
#include "RunActionsTest.moc"
