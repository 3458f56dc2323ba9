#include "refhost/workbench/steps/StepsPanel.h"
#include "refhost/workbench/edits/OperationMime.h"
#include "refhost/workbench/steps/StepDelegate.h"
#include "refhost/workbench/steps/StepLayout.h"
#include "refhost/workbench/steps/StepModel.h"
#include "refhost/workbench/steps/StepView.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/StepsFixture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

/// The list shows the steps, and everything that is done to them there can be undone.
class StepsPanelTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsSteps();
    void summariesAreOneLine_data();
    void summariesAreOneLine();
    void tooltipsAreNoMarkup();
    void edits_data();
    void edits();
    void shortcutsWork_data();
    void shortcutsWork();
    void actionsAreEnabledWhereTheyDoSomething_data();
    void actionsAreEnabledWhereTheyDoSomething();
    void cutsAndPastes();
    void pastesBehindTheCurrentStep();
    void pasteDeclaresMissingVariables();
    void refusesWhatIsNoTask_data();
    void refusesWhatIsNoTask();
    void theMessageGoesWithTheNextAction();
    void followsAndSetsTheCurrentStep();
    void keepsTheSelectionWhenAnotherEndOfItBecomesCurrent();
    void openingSelectsOneStep();
    void scrollsToAWantedStep();
    void scrollsToWhereTheRunHalts();
    void marksTheCurrentStepWithoutSelection();
    void reordersByDrop_data();
    void reordersByDrop();
    void dropsAnOperation();
    void dropsText();
    void leavesFilesToTheWindow();
    void gutterTogglesBreakpoints();
    void showsFindings_data();
    void showsFindings();
    void findingsShowInTheirBadge();
    void enterAndDoubleClickGoToTheEditor();
    void digitsGoToAStep();
    void hasAMenuForTheStep();
    void hintTellsHowToBegin();
    void manySteps();

private:
    void select(const QVector<int> &rows);
    QString selected() const;
    QAction &action(const QString &name) const;
    bool drop(const QMimeData &mime, int row, int part, Qt::KeyboardModifiers keys = {});
    std::unique_ptr<QMimeData> dragOf(const QVector<int> &rows) const;
    QString toolTipAt(int row, int x) const;

    std::unique_ptr<StepsFixture> m_steps;
    std::unique_ptr<StepsPanel> m_panel;
    StepView *m_view = nullptr;
};

void StepsPanelTest::init()
{
    QuietTest::init();
    QApplication::clipboard()->clear();
    m_panel.reset();
    m_steps = std::make_unique<StepsFixture>(
        QStringList{QStringLiteral(PLUGIN_FILE), QStringLiteral(ODD_PLUGIN)});
    m_steps->open({"a", "b", "c", "d", "e"});
    m_panel = std::make_unique<StepsPanel>(m_steps->bench);
    m_view = m_panel->findChild<StepView *>("steps.list");
    m_panel->resize(500, 400);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    m_view->setFocus();
}

void StepsPanelTest::select(const QVector<int> &rows)
{
    m_view->clearSelection();
    for (const int row : rows) {
        m_view->selectionModel()->setCurrentIndex(m_view->model()->index(row, 0),
                                                  QItemSelectionModel::Select);
    }
}

/// The sources of the selected steps, that of the current one in brackets.
QString StepsPanelTest::selected() const
{
    QStringList texts;
    for (const int id : m_view->selectedSteps()) {
        const QVariant source =
            m_steps->bench.document.state().step(id)->operation->property("sourceText");
        const bool isCurrent = id == m_steps->bench.place.step();
        texts.append(isCurrent ? "[" + source.toString() + "]" : source.toString());
    }
    return texts.join(",");
}

QAction &StepsPanelTest::action(const QString &name) const
{
    return *m_panel->findChild<QAction *>("steps." + name);
}

/// Drops on the row, at so many quarters of its height; whether the list takes it.
bool StepsPanelTest::drop(const QMimeData &mime, int row, int part, Qt::KeyboardModifiers keys)
{
    const QRect rect = m_view->visualRect(m_view->model()->index(row, 0));
    const QPoint place = row < 0 ? QPoint(50, m_view->viewport()->height() - 2)
                                 : QPoint(rect.center().x(), rect.top() + rect.height() * part / 4);
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(place, actions, &mime, Qt::LeftButton, keys);
    QApplication::sendEvent(m_view->viewport(), &enter);
    if (!enter.isAccepted())
        return false;
    QDragMoveEvent move(place, actions, &mime, Qt::LeftButton, keys);
    QApplication::sendEvent(m_view->viewport(), &move);
    // The line that shows where it would go is drawn without harm.
    m_view->grab();
    QDropEvent event(place, actions, &mime, Qt::LeftButton, keys);
    QApplication::sendEvent(m_view->viewport(), &event);
    return event.isAccepted();
}

std::unique_ptr<QMimeData> StepsPanelTest::dragOf(const QVector<int> &rows) const
{
    QModelIndexList indexes;
    for (const int row : rows)
        indexes.append(m_view->model()->index(row, 0));
    return std::unique_ptr<QMimeData>(m_view->model()->mimeData(indexes));
}

QString StepsPanelTest::toolTipAt(int row, int x) const
{
    const QModelIndex index = m_view->model()->index(row, 0);
    QStyleOptionViewItem option;
    option.initFrom(m_view);
    option.rect = m_view->visualRect(index);
    return StepDelegate::toolTipAt({x, option.rect.center().y()}, option, index);
}

void StepsPanelTest::showsSteps()
{
    const QAbstractItemModel &model = *m_view->model();
    QCOMPARE(model.rowCount(), 5);
    const Operation &step = *m_steps->bench.document.state().steps.at(1).operation;
    const QModelIndex row = model.index(1, 0);
    QCOMPARE(row.data().toString(), step.toString());
    QVERIFY(!row.data(Qt::DecorationRole).value<QIcon>().isNull());
    QVERIFY(row.data(Qt::ToolTipRole).toString().contains(step.description().toHtmlEscaped()));
    QVERIFY(row.data(Qt::AccessibleTextRole).toString().startsWith("第 2 步"));
    // It writes to no variable.
    m_steps->bench.check.update();
    QCOMPARE(row.data(StepRole::Severity).toInt(), int(Severity::Error));
    QCOMPARE(row.data(StepRole::Duration).toString(), "");
    QVERIFY(!row.data(StepRole::Next).toBool());
}

void StepsPanelTest::summariesAreOneLine_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("shown");
    QTest::newRow("line feed") << "1\n2"
                               << "1↵2";
    QTest::newRow("carriage return") << "1\r\n2\r3"
                                     << "1←↵2←3";
    QTest::newRow("tabulator") << "1\t2"
                               << "1⇥2";
    QTest::newRow("control characters")
        << QString("1") + QChar(0) + QChar(0x1b) + QChar(0x7f) << "1‹NUL›‹ESC›‹DEL›";
    QTest::newRow("paragraph") << QString("1") + QChar(0x2029) << "1‹PS›";
    QTest::newRow("direction") << QString("1") + QChar(0x202e) + "2"
                               << "1‹U+202E›2";
    QTest::newRow("spaces") << "1  2"
                            << "1  2";
    QTest::newRow("beyond the plane") << "1😀"
                                      << "1😀";
}

void StepsPanelTest::summariesAreOneLine()
{
    QFETCH(QString, source);
    QFETCH(QString, shown);
    m_steps->open({source});
    const QString summary = m_view->model()->index(0, 0).data().toString();
    QVERIFY2(summary.contains(shown), qPrintable(summary));
    m_steps->open({QString(100000, 'x')});
    QVERIFY(m_view->model()->index(0, 0).data().toString().size() < 1000);
    QVERIFY(m_view->model()->index(0, 0).data(Qt::ToolTipRole).toString().size() < 3000);
}

void StepsPanelTest::tooltipsAreNoMarkup()
{
    m_steps->open({"<b>bold</b>"});
    QVERIFY(toolTipAt(0, 200).contains("&lt;b&gt;bold"));
    QVERIFY(toolTipAt(0, 1).contains("断点"));
}

void StepsPanelTest::edits_data()
{
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sources");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("restored");
    const auto row = [](const char *name, const QVector<int> &rows, const char *action,
                        const char *sources, const char *selection, const char *text,
                        const char *restored) {
        QTest::newRow(name) << rows << action << sources << selection << text << restored;
    };
    row("delete", {1}, "delete", "a,c,d,e", "[c]", "删除 1 个步骤", "[b]");
    row("delete several", {1, 3}, "delete", "a,c,e", "[e]", "删除 2 个步骤", "[b],d");
    row("delete the last", {4}, "delete", "a,b,c,d", "[d]", "删除 1 个步骤", "[e]");
    row("delete all", {0, 1, 2, 3, 4}, "delete", "", "", "删除 5 个步骤", "[a],b,c,d,e");
    row("cut", {0, 1}, "cut", "c,d,e", "[d]", "剪切 2 个步骤", "[a],b");
    row("duplicate", {1}, "duplicate", "a,b,b,c,d,e", "[b]", "创建 1 个步骤的副本", "[c]");
    row("duplicate several", {0, 2}, "duplicate", "a,b,c,a,c,d,e", "a,[c]", "创建 2 个步骤的副本",
        "[e]");
    row("up", {2}, "moveUp", "a,c,b,d,e", "[c]", "移动 1 个步骤", "[c]");
    row("several up", {1, 2}, "moveUp", "b,c,a,d,e", "b,[c]", "移动 2 个步骤", "[b],c");
    row("scattered up", {2, 4}, "moveUp", "a,c,e,b,d", "c,[e]", "移动 2 个步骤", "[c],e");
    row("scattered at the top", {0, 2}, "moveUp", "a,c,b,d,e", "a,[c]", "移动 2 个步骤", "[a],c");
    row("down", {2}, "moveDown", "a,b,d,c,e", "[c]", "移动 1 个步骤", "[c]");
    row("several down", {0, 1}, "moveDown", "c,a,b,d,e", "a,[b]", "移动 2 个步骤", "[a],b");
    row("scattered at the end", {2, 4}, "moveDown", "a,b,d,c,e", "c,[e]", "移动 2 个步骤", "[c],e");
    row("breakpoint", {1, 3}, "breakpoint", "a,b*,c,d*,e", "b,[d]", "设置断点", "[b],d");
}

void StepsPanelTest::edits()
{
    QFETCH(QVector<int>, rows);
    QFETCH(QString, name);
    TaskDocument &document = m_steps->bench.document;
    select(rows);
    QVERIFY(action(name).isEnabled());
    action(name).trigger();
    QTEST(m_steps->sources(), "sources");
    QTEST(selected(), "selection");
    QTEST(document.undoStack().undoText(), "text");
    QCOMPARE(document.undoStack().count(), 1);
    document.undo();
    QCOMPARE(m_steps->sources(), "a,b,c,d,e");
    QTEST(selected(), "restored");
    document.redo();
    QTEST(m_steps->sources(), "sources");
    QCOMPARE(m_view->model()->rowCount(), document.state().steps.size());
}

void StepsPanelTest::shortcutsWork_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("sources");
    const int control = Qt::ControlModifier;
    const int alt = Qt::AltModifier;
    QTest::newRow("delete") << int(Qt::Key_Delete) << 0 << "a,c,d,e";
    QTest::newRow("cut") << int(Qt::Key_X) << control << "a,c,d,e";
    QTest::newRow("duplicate") << int(Qt::Key_D) << control << "a,b,b,c,d,e";
    QTest::newRow("up") << int(Qt::Key_Up) << alt << "b,a,c,d,e";
    QTest::newRow("down") << int(Qt::Key_Down) << alt << "a,c,b,d,e";
    QTest::newRow("letter") << int(Qt::Key_D) << 0 << "a,b,c,d,e";
}

void StepsPanelTest::shortcutsWork()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    select({1});
    QTest::keyClick(m_view, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(m_steps->sources(), "sources");
}

void StepsPanelTest::actionsAreEnabledWhereTheyDoSomething_data()
{
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<QString>("enabled");
    const QString always = "add,selectAll,runHere";
    QTest::newRow("none") << QVector<int>{} << always;
    const QString any = "add,cut,copy,duplicate,delete,selectAll,%1breakpoint,runHere";
    QTest::newRow("first") << QVector<int>{0} << any.arg("moveDown,");
    QTest::newRow("last") << QVector<int>{4} << any.arg("moveUp,");
    QTest::newRow("some") << QVector<int>{1, 2} << any.arg("moveUp,moveDown,");
    QTest::newRow("all") << QVector<int>{0, 1, 2, 3, 4} << any.arg("");
}

void StepsPanelTest::actionsAreEnabledWhereTheyDoSomething()
{
    QFETCH(QVector<int>, rows);
    select(rows);
    QStringList enabled;
    const QList<QAction *> actions = m_panel->actions();
    for (const QAction *each : actions) {
        if (each->isEnabled() && !each->isSeparator())
            enabled.append(each->objectName().mid(int(qstrlen("steps."))));
    }
    QTEST(enabled.join(","), "enabled");
    m_steps->open({});
    QVERIFY(!action("selectAll").isEnabled());
    QVERIFY(!action("runHere").isEnabled());
    QVERIFY(!action("delete").isEnabled());
    QApplication::clipboard()->setText("x");
    QVERIFY(action("paste").isEnabled());
}

void StepsPanelTest::cutsAndPastes()
{
    select({0, 2});
    action("cut").trigger();
    QCOMPARE(m_steps->sources(), "b,d,e");
    select({2});
    action("paste").trigger();
    QCOMPARE(m_steps->sources(), "b,d,e,a,c");
    QCOMPARE(selected(), "a,[c]");
    QCOMPARE(m_steps->bench.document.undoStack().undoText(), "粘贴 2 个步骤");
    action("paste").trigger();
    QCOMPARE(m_steps->sources(), "b,d,e,a,c,a,c");
    m_steps->bench.document.undo();
    m_steps->bench.document.undo();
    QCOMPARE(m_steps->sources(), "b,d,e");
    m_steps->bench.document.undo();
    QCOMPARE(m_steps->sources(), "a,b,c,d,e");
}

void StepsPanelTest::pastesBehindTheCurrentStep()
{
    QApplication::clipboard()->setText(
        "> ```\n> [{\"type\": \"text.append\", \"sourceText\": \"new\"}]\n> ```");
    m_steps->bench.place.setStep(m_steps->id(1));
    QTest::keyClick(m_view, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_steps->sources(), "a,b,new,c,d,e");
    m_steps->open({});
    QTest::keyClick(m_view, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_steps->sources(), "new");
    QCOMPARE(selected(), "[new]");
}

void StepsPanelTest::pasteDeclaresMissingVariables()
{
    TaskState state = m_steps->bench.document.state();
    state.variables = {{newStateId(), {"there", VarType::Int, 5}}};
    m_steps->bench.document.replace(state);
    QApplication::clipboard()->setText(R"({"variables": {
        "there": {"type": "string", "value": "x"}, "missing": {"type": "list", "value": [1]}},
        "steps": [{"type": "text.append", "sourceText": "$there", "appendText": "$missing"}]})");
    action("paste").trigger();
    const TaskState &now = m_steps->bench.document.state();
    QCOMPARE(now.variableNames(), QStringList({"there", "missing"}));
    QCOMPARE(now.variableNamed("there")->variable.type, VarType::Int);
    QCOMPARE(now.variableNamed("missing")->variable.value, QVariant(QVariantList{1}));
    QCOMPARE(m_steps->bench.document.undoStack().count(), 1);
    m_steps->bench.document.undo();
    QCOMPARE(m_steps->bench.document.state().variableNames(), QStringList({"there"}));
}

void StepsPanelTest::refusesWhatIsNoTask_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("part");
    QTest::newRow("prose") << "Hello"
                           << "line 1";
    QTest::newRow("unknown type") << R"([{"type": "text.gone"}])"
                                  << "text.gone";
    QTest::newRow("markup") << R"([{"type": "<b>"}])"
                            << "<b>";
    QTest::newRow("no steps") << R"({"steps": []})"
                              << "没有";
    QTest::newRow("deep") << QString(100000, '[') << "line 1";
}

void StepsPanelTest::refusesWhatIsNoTask()
{
    QFETCH(QString, text);
    QFETCH(QString, part);
    QApplication::clipboard()->setText(text);
    action("paste").trigger();
    const auto *const message = m_panel->findChild<QWidget *>("steps.message");
    QVERIFY(message->isVisible());
    QString told;
    for (const QLabel *label : message->findChildren<QLabel *>())
        told += label->text();
    QVERIFY2(told.contains(part), qPrintable(told));
    QCOMPARE(m_steps->sources(), "a,b,c,d,e");
    QVERIFY(!m_steps->bench.document.undoStack().canUndo());
}

void StepsPanelTest::theMessageGoesWithTheNextAction()
{
    const auto *const message = m_panel->findChild<QWidget *>("steps.message");
    QApplication::clipboard()->setText("no task");
    action("paste").trigger();
    QVERIFY(message->isVisible());
    select({1});
    action("copy").trigger();
    QVERIFY(!message->isVisible());
    QApplication::clipboard()->setText("no task");
    action("paste").trigger();
    action("delete").trigger();
    QVERIFY(!message->isVisible());
}

void StepsPanelTest::followsAndSetsTheCurrentStep()
{
    m_steps->bench.place.setStep(m_steps->id(3));
    QCOMPARE(m_view->currentIndex().row(), 3);
    QCOMPARE(selected(), "[d]");
    QTest::keyClick(m_view, Qt::Key_Up);
    QCOMPARE(selected(), "[c]");
    QTest::keyClick(m_view, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(selected(), "[b],c");
    const QPoint first = m_view->visualRect(m_view->model()->index(0, 0)).center();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::ControlModifier, first);
    QCOMPARE(selected(), "[a],b,c");
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::ControlModifier, first);
    QCOMPARE(selected(), "b,c");
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, first);
    QCOMPARE(selected(), "[a]");
}

void StepsPanelTest::keepsTheSelectionWhenAnotherEndOfItBecomesCurrent()
{
    select({1, 2, 3});
    m_steps->bench.place.setStep(m_steps->id(1));
    QCOMPARE(selected(), "[b],c,d");
    m_steps->bench.place.setStep(m_steps->id(4));
    QCOMPARE(selected(), "[e]");
}

void StepsPanelTest::openingSelectsOneStep()
{
    m_steps->open({"x", "y"});
    QCOMPARE(selected(), "[x]");
    m_steps->open({});
    QCOMPARE(selected(), "");
    QCOMPARE(m_steps->bench.place.step(), 0);
}

void StepsPanelTest::scrollsToAWantedStep()
{
    QStringList sources;
    for (int i = 0; i < 200; ++i)
        sources.append(QString::number(i));
    m_steps->open(sources);
    m_steps->bench.place.goTo({m_steps->id(150), {}, 0});
    const QRect shown = m_view->visualRect(m_view->model()->index(150, 0));
    QVERIFY(m_view->viewport()->rect().contains(shown));
    // Even when it is the current one already.
    m_view->scrollToTop();
    m_steps->bench.place.goTo({m_steps->id(150), {}, 0});
    QVERIFY(
        m_view->viewport()->rect().contains(m_view->visualRect(m_view->model()->index(150, 0))));
}

void StepsPanelTest::scrollsToWhereTheRunHalts()
{
    QStringList sources;
    for (int i = 0; i < 100; ++i)
        sources.append("x");
    m_steps->open(sources);
    const QModelIndex last = m_view->model()->index(99, 0);
    QVERIFY(!m_view->viewport()->rect().intersects(m_view->visualRect(last)));
    m_steps->bench.run.runTo(m_steps->id(99));
    QTRY_COMPARE(m_steps->bench.run.state(), RunSession::State::Paused);
    QVERIFY(m_view->viewport()->rect().contains(m_view->visualRect(last)));
}

void StepsPanelTest::marksTheCurrentStepWithoutSelection()
{
    select({});
    m_view->selectionModel()->setCurrentIndex(m_view->model()->index(2, 0),
                                              QItemSelectionModel::NoUpdate);
    const QRect row = m_view->visualRect(m_view->model()->index(2, 0));
    const QImage with = m_view->viewport()->grab(row).toImage();
    m_view->selectionModel()->setCurrentIndex(m_view->model()->index(3, 0),
                                              QItemSelectionModel::NoUpdate);
    QVERIFY(with != m_view->viewport()->grab(row).toImage());
}

void StepsPanelTest::reordersByDrop_data()
{
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("part");
    QTest::addColumn<bool>("withControl");
    QTest::addColumn<QString>("sources");
    QTest::addColumn<int>("edits");
    using Rows = QVector<int>;
    QTest::newRow("down, upper half") << Rows{0} << 2 << 1 << false << "b,a,c,d,e" << 1;
    QTest::newRow("down, lower half") << Rows{0} << 2 << 3 << false << "b,c,a,d,e" << 1;
    QTest::newRow("up") << Rows{4} << 1 << 1 << false << "a,e,b,c,d" << 1;
    QTest::newRow("to the end") << Rows{1} << -1 << 0 << false << "a,c,d,e,b" << 1;
    QTest::newRow("several") << Rows{0, 2} << 3 << 3 << false << "b,d,a,c,e" << 1;
    QTest::newRow("several, picked in another order")
        << Rows{2, 0} << 3 << 3 << false << "b,d,a,c,e" << 1;
    QTest::newRow("where it is") << Rows{1} << 1 << 1 << false << "a,b,c,d,e" << 0;
    QTest::newRow("behind itself") << Rows{1} << 1 << 3 << false << "a,b,c,d,e" << 0;
    QTest::newRow("within itself") << Rows{1, 2} << 2 << 1 << false << "a,b,c,d,e" << 0;
    QTest::newRow("copy") << Rows{0} << 2 << 1 << true << "a,b,a,c,d,e" << 1;
    QTest::newRow("copies") << Rows{0, 1} << -1 << 0 << true << "a,b,c,d,e,a,b" << 1;
}

void StepsPanelTest::reordersByDrop()
{
    QFETCH(QVector<int>, rows);
    QFETCH(int, row);
    QFETCH(int, part);
    QFETCH(bool, withControl);
    select(rows);
    const auto mime = dragOf(rows);
    QVERIFY(mime->hasText());
    QVERIFY(drop(*mime, row, part, withControl ? Qt::ControlModifier : Qt::NoModifier));
    QTEST(m_steps->sources(), "sources");
    QTEST(m_steps->bench.document.undoStack().count(), "edits");
    QCOMPARE(m_view->selectedSteps().size(), rows.size());
    if (m_steps->bench.document.undoStack().canUndo())
        m_steps->bench.document.undo();
    QCOMPARE(m_steps->sources(), "a,b,c,d,e");
}

void StepsPanelTest::dropsAnOperation()
{
    QSignalSpy wanted(&m_steps->bench.place, &CurrentPlace::wanted);
    QVERIFY(drop(*mimeFromOperation("text.append"), 1, 1));
    QCOMPARE(m_steps->sources(), "a,,b,c,d,e");
    QCOMPARE(selected(), "[]");
    QCOMPARE(wanted.count(), 1);
    QVERIFY(drop(*mimeFromOperation("text.gone"), 1, 1));
    QCOMPARE(m_steps->sources(), "a,,b,c,d,e");
}

void StepsPanelTest::dropsText()
{
    QMimeData mime;
    mime.setText(R"({"type": "text.append", "sourceText": "new"})");
    QVERIFY(drop(mime, 2, 1));
    QCOMPARE(m_steps->sources(), "a,b,new,c,d,e");
    mime.setText("prose");
    QVERIFY(drop(mime, 2, 1));
    QVERIFY(m_panel->findChild<QWidget *>("steps.message")->isVisible());
}

void StepsPanelTest::leavesFilesToTheWindow()
{
    QMimeData mime;
    mime.setText(R"({"type": "text.append"})");
    mime.setUrls({QUrl::fromLocalFile("/a.json")});
    QVERIFY(!drop(mime, 2, 1));
    QVERIFY(!drop(QMimeData(), 2, 1));
    QCOMPARE(m_steps->sources(), "a,b,c,d,e");
}

void StepsPanelTest::gutterTogglesBreakpoints()
{
    select({0});
    const QRect row = m_view->visualRect(m_view->model()->index(2, 0));
    const QPoint gutter(StepLayout::gutterWidth(m_view->fontMetrics()) / 2, row.center().y());
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, gutter);
    QCOMPARE(m_steps->sources(), "a,b,c*,d,e");
    QCOMPARE(selected(), "[a]");
    QVERIFY(m_view->model()->index(2, 0).data(StepRole::Breakpoint).toBool());
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, gutter);
    QCOMPARE(m_steps->sources(), "a,b,c,d,e");
    m_steps->bench.document.undo();
    QCOMPARE(m_steps->sources(), "a,b,c*,d,e");
    const QPoint beside(StepLayout::gutterWidth(m_view->fontMetrics()) + 2, row.center().y());
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, beside);
    QCOMPARE(m_steps->sources(), "a,b,c*,d,e");
    QCOMPARE(selected(), "[c]");
}

void StepsPanelTest::showsFindings_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("result");
    QTest::addColumn<int>("severity");
    QTest::newRow("nothing") << "x"
                             << "r" << -1;
    QTest::newRow("undeclared") << "$gone"
                                << "r" << int(Severity::Error);
    QTest::newRow("worst of two") << "1.50"
                                  << "gone" << int(Severity::Error);
    QTest::newRow("number as text") << "1.50"
                                    << "r" << int(Severity::Warning);
}

void StepsPanelTest::showsFindings()
{
    QFETCH(QString, source);
    QFETCH(QString, result);
    TaskState state;
    state.variables = {{newStateId(), {"r", VarType::String, {}}}};
    state.steps = {m_steps->step("text.append", {{"sourceText", source}, {"resultVar", result}})};
    m_steps->bench.document.replace(state);
    QSignalSpy changed(m_view->model(), &QAbstractItemModel::dataChanged);
    m_steps->bench.check.update();
    QVERIFY(changed.count() > 0);
    QTEST(m_view->model()->index(0, 0).data(StepRole::Severity).toInt(), "severity");
}

void StepsPanelTest::findingsShowInTheirBadge()
{
    m_steps->open({"$gone"});
    m_steps->bench.check.update();
    const QModelIndex row = m_view->model()->index(0, 0);
    const QStringList messages = row.data(StepRole::Findings).toStringList();
    QVERIFY(messages.size() >= 2);
    const StepLayout layout =
        StepLayout::of(m_view->visualRect(row), m_view->fontMetrics(), 1, 1, false);
    const QString toolTip = toolTipAt(0, layout.badges.first().center().x());
    for (const QString &message : messages)
        QVERIFY2(toolTip.contains(message.toHtmlEscaped()), qPrintable(toolTip));
    QVERIFY(!toolTipAt(0, layout.summary.center().x()).contains(messages.first().toHtmlEscaped()));
    QVERIFY(row.data(Qt::AccessibleTextRole).toString().contains(messages.first()));
    QVERIFY(!m_view->grab().isNull());
}

void StepsPanelTest::enterAndDoubleClickGoToTheEditor()
{
    QSignalSpy wanted(&m_steps->bench.place, &CurrentPlace::wanted);
    select({1});
    QTest::keyClick(m_view, Qt::Key_Return);
    QCOMPARE(wanted.takeFirst().first().value<EditPlace>(),
             (EditPlace{m_steps->id(1), "sourceText", 0}));
    const QPoint place = m_view->visualRect(m_view->model()->index(3, 0)).center();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(wanted.takeFirst().first().value<EditPlace>(),
             (EditPlace{m_steps->id(3), "sourceText", 0}));
    m_steps->open({});
    QTest::keyClick(m_view, Qt::Key_Return);
    QCOMPARE(wanted.count(), 0);
}

void StepsPanelTest::digitsGoToAStep()
{
    QTest::keyClick(m_view, Qt::Key_4);
    QCOMPARE(selected(), "[d]");
    QTest::keyClick(m_view, Qt::Key_D);
    QTest::keyClick(m_view, Qt::Key_9);
    QCOMPARE(selected(), "[d]");
}

void StepsPanelTest::hasAMenuForTheStep()
{
    Q_EMIT m_view->customContextMenuRequested({50, 10});
    auto *const menu = m_panel->findChild<QMenu *>("steps.menu");
    QVERIFY(menu);
    QVERIFY(menu->actions().contains(&action("runHere")));
    QVERIFY(menu->actions().contains(&action("breakpoint")));
    menu->close();
    QVERIFY(!m_panel->editActions().contains(&action("runHere")));
    QSignalSpy catalogWanted(m_panel.get(), &StepsPanel::catalogWanted);
    m_view->setFocus();
    action("add").trigger();
    QCOMPARE(catalogWanted.count(), 1);
}

void StepsPanelTest::hintTellsHowToBegin()
{
    const auto *const hint = m_panel->findChild<QLabel *>("steps.hint");
    QVERIFY(!hint->isVisible());
    m_steps->open({});
    QVERIFY(hint->isVisible());
    QVERIFY(drop(*mimeFromOperation("text.append"), -1, 0));
    QVERIFY(!hint->isVisible());
}

void StepsPanelTest::manySteps()
{
    constexpr int count = 10000;
    // Many times what it takes, and far less than asking every step for its summary each time.
    constexpr qint64 patience = 3000;
    TaskState state;
    const StepState first = m_steps->step("text.append");
    for (int i = 0; i < count; ++i)
        state.steps.append(duplicate(first));
    QElapsedTimer timer;
    timer.start();
    m_steps->bench.document.replace(state);
    m_view->grab();
    m_steps->bench.document.change("edit", state.withProperty(m_steps->id(9000), "sourceText", "x"),
                                   {});
    m_view->grab();
    action("selectAll").trigger();
    action("delete").trigger();
    m_view->grab();
    m_steps->bench.document.undo();
    QCOMPARE(m_view->selectedSteps().size(), count);
    m_view->selectionModel()->select(m_view->model()->index(9999, 0),
                                     QItemSelectionModel::Deselect);
    action("moveDown").trigger();
    m_view->grab();
    QVERIFY2(timer.elapsed() < patience, qPrintable(QString::number(timer.elapsed())));
}

QTEST_MAIN(StepsPanelTest)
#include "StepsPanelTest.moc"
