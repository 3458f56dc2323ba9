#include "refhost/workbench/window/MainWindow.h"

#include "refhost/workbench/window/Workbench.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/StepsFixture.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

/// The panels in one window: how the keyboard gets from one to the other, and that what is asked
/// for is seen.
class MainWindowTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void goesToPanelsByKeys_data();
    void goesToPanelsByKeys();
    void goesBackToTheSameField();
    void opensThePanelOfAPlace();
    void hasEachMnemonicOnce();
    void reachesEachPanelByTheTabulator_data();
    void reachesEachPanelByTheTabulator();

private:
    QWidget *find(const QString &name) const { return m_window->findChild<QWidget *>(name); }
    void press(int key)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), Qt::ControlModifier);
    }

    /// Docks behind others are outside of the window.
    bool isInSight(const QWidget &widget) const
    {
        const QRect place(widget.mapTo(m_window.get(), QPoint()), widget.size());
        return m_window->rect().intersects(place);
    }

    std::unique_ptr<StepsFixture> m_fixture;
    std::unique_ptr<MainWindow> m_window;
};

void MainWindowTest::init()
{
    QuietTest::init();
    m_fixture = std::make_unique<StepsFixture>(QStringList{PLUGIN_FILE});
    m_window = std::make_unique<MainWindow>(m_fixture->bench);
    m_fixture->open({"a", "$b"});
    m_fixture->bench.place.setStep(m_fixture->id(0));
    m_fixture->bench.check.update();
    m_window->resize(1400, 900);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    find("steps.list")->setFocus();
}

void MainWindowTest::cleanup()
{
    m_window.reset();
    m_fixture.reset();
    QuietTest::cleanup();
}

void MainWindowTest::goesToPanelsByKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("focused");
    QTest::newRow("catalogue") << int(Qt::Key_1) << "catalog.filter";
    QTest::newRow("steps") << int(Qt::Key_2) << "steps.list";
    QTest::newRow("editor") << int(Qt::Key_3) << "editor.sourceText";
    QTest::newRow("variables") << int(Qt::Key_4) << "variables.table";
    QTest::newRow("log") << int(Qt::Key_5) << "log.table";
    QTest::newRow("findings") << int(Qt::Key_6) << "findings.table";
}

void MainWindowTest::goesToPanelsByKeys()
{
    QFETCH(int, key);
    QFETCH(QString, focused);
    press(Qt::Key_3);
    press(key);
    QCOMPARE(QApplication::focusWidget()->objectName(), focused);
    press(Qt::Key_2);
    QCOMPARE(QApplication::focusWidget()->objectName(), "steps.list");
    // Closed or behind another one, the panel comes back.
    const QString dockName = "dock." + focused.section('.', 0, 0);
    if (auto *const dock = m_window->findChild<QDockWidget *>(dockName))
        dock->close();
    press(key);
    QCOMPARE(QApplication::focusWidget()->objectName(), focused);
}

void MainWindowTest::goesBackToTheSameField()
{
    find("editor.appendText")->setFocus();
    press(Qt::Key_4);
    press(Qt::Key_3);
    QCOMPARE(QApplication::focusWidget()->objectName(), "editor.appendText");
}

void MainWindowTest::opensThePanelOfAPlace()
{
    auto *const dock = m_window->findChild<QDockWidget *>("dock.editor");
    dock->close();
    QTest::keyClick(find("steps.list"), Qt::Key_Return);
    QVERIFY(dock->isVisible());
    QCOMPARE(QApplication::focusWidget()->objectName(), "editor.sourceText");
}

void MainWindowTest::hasEachMnemonicOnce()
{
    const QRegularExpression mark("&([^&])");
    for (const QMenu *const menu : m_window->menuBar()->findChildren<QMenu *>()) {
        QSet<QString> seen;
        for (const QAction *const action : menu->actions()) {
            const QString letter = mark.match(action->text()).captured(1).toUpper();
            QVERIFY2(letter.isEmpty() || !seen.contains(letter),
                     qPrintable(menu->title() + ": " + action->text()));
            seen.insert(letter);
        }
    }
}

void MainWindowTest::reachesEachPanelByTheTabulator_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("forwards") << int(Qt::Key_Tab);
    QTest::newRow("backwards") << int(Qt::Key_Backtab);
}

void MainWindowTest::reachesEachPanelByTheTabulator()
{
    QFETCH(int, key);
    const QStringList wanted{"catalog.filter",    "catalog.tree",     "steps.list",
                             "editor.sourceText", "editor.resultVar", "variables.table",
                             "log.table",         "operands.table"};
    m_fixture->bench.run.stepOver();
    QTRY_COMPARE(m_fixture->bench.run.state(), RunSession::State::Paused);
    QTRY_VERIFY(find("operands.table")->isVisible());
    QStringList reached;
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        const QString name = QApplication::focusWidget()->objectName();
        QTRY_VERIFY2(isInSight(*QApplication::focusWidget()), qPrintable(name));
        reached.append(name);
        if (name == "steps.list")
            break;
    }
    for (const QString &name : wanted)
        QVERIFY2(reached.contains(name), qPrintable(name + " / " + reached.join(' ')));
}

QTEST_MAIN(MainWindowTest)

#include "MainWindowTest.moc"
