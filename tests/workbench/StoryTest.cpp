#include "refhost/workbench/editor/ExactTextEdit.h"
#include "refhost/workbench/editor/RemarkLine.h"
#include "refhost/workbench/files/FileActions.h"
#include "refhost/workbench/run/FindingsModel.h"
#include "refhost/workbench/variables/CellEdit.h"
#include "refhost/workbench/variables/VariableModel.h"
#include "refhost/workbench/window/MainWindow.h"
#include "refhost/workbench/window/Workbench.h"
#include "tests/support/OprunProcess.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/ScriptedQuestions.h"

#include "Operation.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

/// As an input method gives it to the widget.
void enterChinese(QWidget &widget, const QString &text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

/// A person makes a task out of nothing, in the real window and by keys and clicks alone: builds
/// it, mends a mistake, halts it, changes a value, runs it to the end, undoes everything and redoes
/// it, saves it, runs it on the command line, and mails a step. What happens is told on standard
/// output.
class StoryTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void makesATaskOutOfNothing();

private:
    void openWindow();
    void addFirstStep();
    void nameTheSource();
    void cutBetweenBrackets();
    void giveTheStartValue();
    void addSecondStepWithAMistake();
    void followTheFinding();
    void haltAndLook();
    void changeTheValueAndGoOn();
    void undoEverythingAndRedo();
    void saveAndRunElsewhere();
    void mailAStep();

    void tell(const QString &line);
    template <typename Widget>
    Widget *find(const QString &name) const
    {
        // The editor of the step before is still to be deleted.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return m_window->findChild<Widget *>(name);
    }
    void press(const QString &action);
    void typeOperand(const QString &property, const QString &text);
    void typeResult(const QString &name);
    QString remark(const QString &property) const;
    void clickRemark(const QString &property);
    void typeCell(int column, const QString &variable, const QString &text);
    QModelIndex variableCell(int column, const QString &variable) const;
    QString shownVariable(int column, const QString &variable) const;
    QString summaries() const;
    const TaskState &state() const { return m_bench->document.state(); }

    QTemporaryDir m_folder;
    QuestionScript m_script;
    std::unique_ptr<Workbench> m_bench;
    std::unique_ptr<MainWindow> m_window;
    int m_line = 0;
};

void StoryTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<Workbench>(QStringList{PLUGIN_FILE});
    m_window = std::make_unique<MainWindow>(*m_bench);
    m_window->files().setQuestions(std::make_unique<ScriptedQuestions>(m_script));
}

void StoryTest::cleanup()
{
    m_script.unsaved = Questions::Unsaved::Discard;
    m_window->close();
    m_window.reset();
    m_bench.reset();
    QuietTest::cleanup();
}

void StoryTest::tell(const QString &line)
{
    std::printf("%2d. %s\n", ++m_line, qUtf8Printable(line));
    std::fflush(stdout);
}

void StoryTest::press(const QString &action)
{
    auto *const found = find<QAction>(action);
    QVERIFY2(found, qPrintable("no action " + action));
    QVERIFY2(found->isEnabled(), qPrintable(action + " is disabled"));
    found->trigger();
}

void StoryTest::typeOperand(const QString &property, const QString &text)
{
    auto *const field = find<ExactTextEdit>("editor." + property);
    QVERIFY2(field && field->isVisible(), qPrintable(property));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
}

void StoryTest::typeResult(const QString &name)
{
    QLineEdit *const field = find<QComboBox>("editor.resultVar")->lineEdit();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, name);
}

QString StoryTest::remark(const QString &property) const
{
    return find<RemarkLine>("editor." + property + ".remark")->text();
}

void StoryTest::clickRemark(const QString &property)
{
    auto *const line = find<RemarkLine>("editor." + property + ".remark");
    QTest::mouseClick(line->findChild<QPushButton *>("fix"), Qt::LeftButton);
}

QModelIndex StoryTest::variableCell(int column, const QString &variable) const
{
    const QAbstractItemModel &model = *find<QTableView>("variables.table")->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.index(row, VariableModel::NameColumn).data().toString() == variable)
            return model.index(row, column);
    }
    return {};
}

QString StoryTest::shownVariable(int column, const QString &variable) const
{
    return variableCell(column, variable).data().toString();
}

void StoryTest::typeCell(int column, const QString &variable, const QString &text)
{
    auto *const table = find<QTableView>("variables.table");
    table->setFocus();
    table->setCurrentIndex(variableCell(column, variable));
    QTest::keyClick(table, Qt::Key_Return);
    auto *const edit = table->findChild<CellEdit *>("cell");
    QVERIFY(edit);
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::processEvents();
}

/// The task as a person sees it: a line for each step, and one for each variable.
QString StoryTest::summaries() const
{
    QStringList lines;
    for (const StepState &step : state().steps)
        lines.append(step.operation->toString() + (step.breakpoint ? " *" : ""));
    for (const VariableState &each : state().variables)
        lines.append(each.variable.name + " = " + each.variable.value.toString());
    return lines.join("\n");
}

void StoryTest::makesATaskOutOfNothing()
{
    const auto chapters = {
        &StoryTest::openWindow,
        &StoryTest::addFirstStep,
        &StoryTest::nameTheSource,
        &StoryTest::cutBetweenBrackets,
        &StoryTest::giveTheStartValue,
        &StoryTest::addSecondStepWithAMistake,
        &StoryTest::followTheFinding,
        &StoryTest::haltAndLook,
        &StoryTest::changeTheValueAndGoOn,
        &StoryTest::undoEverythingAndRedo,
        &StoryTest::saveAndRunElsewhere,
        &StoryTest::mailAStep,
    };
    for (const auto chapter : chapters) {
        (this->*chapter)();
        if (QTest::currentTestFailed())
            return;
    }
}

void StoryTest::openWindow()
{
    m_window->resize(1280, 800);
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(find<QWidget>("steps.hint")->isVisible());
    QVERIFY(!m_window->isWindowModified());
    tell("An empty window says how to begin.");
}

void StoryTest::addFirstStep()
{
    auto *const filter = find<QLineEdit>("catalog.filter");
    enterChinese(*filter, QStringLiteral("截取"));
    QCOMPARE(find<QAbstractItemView>("catalog.tree")->model()->rowCount(), 1);
    QTest::keyClick(filter, Qt::Key_Return);
    QCOMPARE(state().steps.size(), 1);
    QCOMPARE(state().steps.first().operation->typeId(), QString("text.between"));
    QVERIFY(m_window->isWindowModified());
    tell("\"截取\" in the filter and Enter: " + state().steps.first().operation->toString());
}

void StoryTest::nameTheSource()
{
    typeOperand("sourceText", "$line");
    QVERIFY(remark("sourceText").contains("line"));
    tell("\"$line\" as source; the field remarks: " + remark("sourceText"));
    clickRemark("sourceText");
    QVERIFY(state().variableNamed("line"));
    QCOMPARE(state().variableNamed("line")->variable.type, VarType::String);
    tell("A click on the remark declares it: " + remark("sourceText"));
}

void StoryTest::cutBetweenBrackets()
{
    auto *const mode = find<QComboBox>("editor.cutMode");
    QVERIFY(!find<QWidget>("editor.startMarker.row")->isVisible());
    mode->setFocus();
    QTest::keyClick(mode, Qt::Key_End);
    QCOMPARE(mode->currentText(), QStringLiteral("标识之间"));
    QVERIFY(find<QWidget>("editor.startMarker.row")->isVisible());
    typeOperand("startMarker", "[");
    typeOperand("endMarker", "]");
    typeResult("level");
    clickRemark("resultVar");
    QVERIFY(state().variableNamed("level"));
    tell("Another mode lets two fields appear: " + state().steps.first().operation->toString());
}

void StoryTest::giveTheStartValue()
{
    typeCell(VariableModel::StartColumn, "line", "11:47 [warn] disk 91%");
    QCOMPARE(state().variableNamed("line")->variable.value.toString(),
             QString("11:47 [warn] disk 91%"));
    tell("The table takes a start value: line = " +
         shownVariable(VariableModel::StartColumn, "line"));
}

void StoryTest::addSecondStepWithAMistake()
{
    auto *const filter = find<QLineEdit>("catalog.filter");
    filter->selectAll();
    QTest::keyClicks(filter, "text.case");
    QTest::keyClick(filter, Qt::Key_Return);
    QCOMPARE(state().steps.size(), 2);
    QCOMPARE(m_bench->place.step(), state().steps.at(1).id);
    typeOperand("sourceText", "$levle");
    typeResult("level");
    QTRY_VERIFY(!m_bench->check.findingsOf(state().steps.at(1).id).isEmpty());
    tell("A second step with a slip: " + state().steps.at(1).operation->toString());
}

void StoryTest::followTheFinding()
{
    auto *const table = find<QAbstractItemView>("findings.table");
    QTRY_VERIFY(table->model()->rowCount() > 0);
    m_bench->place.setStep(state().steps.first().id);
    const QModelIndexList found =
        table->model()->match(table->model()->index(0, FindingsModel::MessageColumn),
                              Qt::DisplayRole, QStringLiteral("levle"), 1, Qt::MatchContains);
    QCOMPARE(found.size(), 1);
    Q_EMIT table->activated(found.first());
    QCOMPARE(m_bench->place.step(), state().steps.at(1).id);
    QCOMPARE(QApplication::focusWidget(), find<QWidget>("editor.sourceText"));
    tell("The finding leads to the field: " + found.first().data().toString());
    typeOperand("sourceText", "$level");
    QTRY_VERIFY(m_bench->check.findings().isEmpty());
    QCOMPARE(table->model()->rowCount(), 0);
    tell("Mended; the check finds nothing any more.");
}

void StoryTest::haltAndLook()
{
    press("run.breakpoint");
    QVERIFY(state().steps.at(1).breakpoint);
    QTest::keyClick(m_window.get(), Qt::Key_F5);
    QTRY_COMPARE(m_bench->run.state(), RunSession::State::Paused);
    QCOMPARE(m_bench->run.nextStep(), state().steps.at(1).id);
    QTRY_COMPARE(shownVariable(VariableModel::CurrentColumn, "level"), QString("warn"));
    tell("F9 and F5: halted before step 2, level = " +
         shownVariable(VariableModel::CurrentColumn, "level"));
}

void StoryTest::changeTheValueAndGoOn()
{
    typeCell(VariableModel::CurrentColumn, "level", "error");
    QCOMPARE(m_bench->run.scope().get("level").toString(), QString("error"));
    QTest::keyClick(m_window.get(), Qt::Key_F10);
    QCOMPARE(m_bench->run.scope().get("level").toString(), QString("ERROR"));
    QCOMPARE(m_bench->run.state(), RunSession::State::Finished);
    QCOMPARE(m_bench->run.records().size(), 2);
    QVERIFY(m_bench->run.records().last().warnings.isEmpty());
    QTRY_VERIFY(find<QAbstractItemView>("log.table")->model()->rowCount() >= 4);
    tell("The value changed to \"error\" while halted, F10: level = \"ERROR\".");
}

void StoryTest::undoEverythingAndRedo()
{
    const QString before = summaries();
    int count = 0;
    while (m_bench->document.undoStack().canUndo()) {
        press("edit.undo");
        ++count;
    }
    QVERIFY(state().steps.isEmpty());
    QVERIFY(state().variables.isEmpty());
    QVERIFY(!m_window->isWindowModified());
    while (m_bench->document.undoStack().canRedo())
        press("edit.redo");
    QCOMPARE(summaries(), before);
    tell(QString("Undone %1 times to the empty window, and redone.").arg(count));
}

void StoryTest::saveAndRunElsewhere()
{
    m_script.saveFile = {m_folder.filePath("level.json"), TaskForm::Json};
    press("files.save");
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(m_script.told.isEmpty());
    const OprunOutcome outcome =
        runProgram(OPRUN_FILE, {"run", m_folder.filePath("level.json"), "--print", "level",
                                "--strict", "--plugin", PLUGIN_FILE});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString("WARN\n"));
    tell("Saved, and run on the command line: " + outcome.out.trimmed());
}

void StoryTest::mailAStep()
{
    m_bench->place.setStep(state().steps.first().id);
    press("steps.copy");
    const QString mail = QApplication::clipboard()->text();
    QVERIFY(mail.contains("text.between"));
    press("files.new");
    QVERIFY(state().steps.isEmpty());
    QApplication::clipboard()->setText("> " + QString(mail).replace("\n", "\n> "));
    press("steps.paste");
    QCOMPARE(state().steps.size(), 1);
    QCOMPARE(state().variableNames(), QStringList({"line", "level"}));
    tell("A step copied, quoted in a mail and pasted into a new task brings its variables along.");
}

QTEST_MAIN(StoryTest)
#include "StoryTest.moc"
