#include "refhost/workbench/document/TaskDocument.h"

#include "refhost/engine/OperationCatalog.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QSignalSpy>
#include <QTest>

/// Every change of the document is one step of undo, and can be undone and redone.
class TaskDocumentTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void undoesAndRedoesEveryEdit();
    void typingIsOneStep();
    void typingElsewhereIsAnother();
    void movesStepsInTheirOrder_data();
    void movesStepsInTheirOrder();
    void isModifiedWhileItDiffersFromTheFile();
    void breakpointsAreNoChangeOfTheTask();
    void replacingForgetsTheHistory();

private:
    StepState step(const QString &typeId) const;
    QString summaries(const TaskState &state) const;

    OperationCatalog m_catalog{{QStringLiteral(PLUGIN_FILE)}};
    std::unique_ptr<TaskDocument> m_document;
};

void TaskDocumentTest::init()
{
    QuietTest::init();
    m_document = std::make_unique<TaskDocument>();
}

StepState TaskDocumentTest::step(const QString &typeId) const
{
    return newStepOf(m_catalog, typeId);
}

QString TaskDocumentTest::summaries(const TaskState &state) const
{
    QStringList lines;
    for (const StepState &step : state.steps)
        lines.append(step.operation->toString() + (step.breakpoint ? "*" : ""));
    for (const VariableState &variable : state.variables)
        lines.append(variable.variable.name + "=" + variable.variable.value.toString());
    return lines.join("\n");
}

void TaskDocumentTest::undoesAndRedoesEveryEdit()
{
    const StepState append = step("text.append");
    const StepState trim = step("text.trim");
    const VariableState variable{newStateId(), {"a", VarType::String, "x"}};
    const TaskState start;
    const TaskState two = start.withSteps(0, {append, trim});
    const QVector<TaskState> states{
        start,
        two,
        two.withProperty(trim.id, "mode", 2),
        two.withProperty(trim.id, "mode", 2).withStepsMoved({trim.id}, 0),
        two.withBreakpoint(append.id, true),
        two.withVariable(0, variable),
        two.withVariable(0, variable).withVariableChanged(variable.id, {"b", VarType::Int, 3}),
        two.withoutSteps({append.id}),
        start,
    };
    for (int i = 1; i < states.size(); ++i)
        m_document->change("edit", states.at(i), {});
    for (int i = states.size() - 1; i >= 0; --i) {
        QCOMPARE(summaries(m_document->state()), summaries(states.at(i)));
        m_document->undo();
    }
    for (int i = 1; i < states.size(); ++i) {
        m_document->redo();
        QCOMPARE(summaries(m_document->state()), summaries(states.at(i)));
    }
}

void TaskDocumentTest::typingIsOneStep()
{
    const StepState append = step("text.append");
    m_document->replace(TaskState().withSteps(0, {append}));
    for (const char *const text : {"a", "ab", "abc"}) {
        m_document->type("typing", m_document->state().withProperty(append.id, "sourceText", text),
                         {append.id, "sourceText", 0});
    }
    QCOMPARE(m_document->undoStack().count(), 1);
    m_document->endTyping();
    m_document->type("typing", m_document->state().withProperty(append.id, "sourceText", "abcd"),
                     {append.id, "sourceText", 0});
    QCOMPARE(m_document->undoStack().count(), 2);
    m_document->undo();
    QCOMPARE(m_document->state().steps.first().operation->property("sourceText").toString(), "abc");
    m_document->undo();
    QCOMPARE(m_document->state().steps.first().operation->property("sourceText").toString(), "");
}

void TaskDocumentTest::typingElsewhereIsAnother()
{
    const StepState append = step("text.append");
    m_document->replace(TaskState().withSteps(0, {append}));
    m_document->type("typing", m_document->state().withProperty(append.id, "sourceText", "a"),
                     {append.id, "sourceText", 0});
    m_document->type("typing", m_document->state().withProperty(append.id, "appendText", "b"),
                     {append.id, "appendText", 0});
    QCOMPARE(m_document->undoStack().count(), 2);

    QSignalSpy wanted(m_document.get(), &TaskDocument::placeWanted);
    m_document->undo();
    QCOMPARE(wanted.count(), 1);
    QVERIFY(wanted.first().first().value<EditPlace>() == (EditPlace{append.id, "appendText", 0}));
}

void TaskDocumentTest::movesStepsInTheirOrder_data()
{
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("order");

    QTest::newRow("down") << QVector<int>{0} << 2 << "1023";
    QTest::newRow("to the end") << QVector<int>{0} << 4 << "1230";
    QTest::newRow("up") << QVector<int>{3} << 0 << "3012";
    QTest::newRow("in place") << QVector<int>{1} << 1 << "0123";
    QTest::newRow("behind itself") << QVector<int>{1} << 2 << "0123";
    QTest::newRow("several apart") << QVector<int>{0, 3} << 2 << "1032";
    QTest::newRow("several, selected backwards") << QVector<int>{3, 1} << 0 << "1302";
    QTest::newRow("beyond the end") << QVector<int>{1} << 99 << "0231";
    QTest::newRow("before the beginning") << QVector<int>{2} << -5 << "2013";
}

void TaskDocumentTest::movesStepsInTheirOrder()
{
    QFETCH(QVector<int>, rows);
    QFETCH(int, target);
    TaskState state;
    for (int i = 0; i < 4; ++i)
        state = state.withSteps(i, {step("text.append")});
    QVector<int> ids;
    for (const int row : rows)
        ids.append(state.steps.at(row).id);
    const TaskState moved = state.withStepsMoved(ids, target);
    QString order;
    for (const StepState &step : moved.steps)
        order += QString::number(state.stepRow(step.id));
    QTEST(order, "order");
}

void TaskDocumentTest::isModifiedWhileItDiffersFromTheFile()
{
    const StepState append = step("text.append");
    QSignalSpy modified(m_document.get(), &TaskDocument::modifiedChanged);
    m_document->change("edit", m_document->state().withSteps(0, {append}), {});
    QVERIFY(m_document->isModified());
    m_document->markSaved();
    QVERIFY(!m_document->isModified());
    m_document->undo();
    QVERIFY(m_document->isModified());
    m_document->redo();
    QVERIFY(!m_document->isModified());
    m_document->change("edit", m_document->state().withProperty(append.id, "sourceText", "a"), {});
    m_document->change("edit", m_document->state().withProperty(append.id, "sourceText", ""), {});
    QVERIFY(!m_document->isModified());
    QCOMPARE(modified.count(), 6);
    m_document->replace(m_document->state(), true);
    QVERIFY(m_document->isModified());
}

void TaskDocumentTest::breakpointsAreNoChangeOfTheTask()
{
    const StepState append = step("text.append");
    m_document->replace(TaskState().withSteps(0, {append}));
    m_document->change("breakpoint", m_document->state().withBreakpoint(append.id, true), {});
    QVERIFY(!m_document->isModified());
    m_document->undo();
    QVERIFY(!m_document->state().steps.first().breakpoint);
}

void TaskDocumentTest::replacingForgetsTheHistory()
{
    m_document->change("edit", m_document->state().withSteps(0, {step("text.append")}), {});
    QSignalSpy replaced(m_document.get(), &TaskDocument::replaced);
    m_document->replace({});
    QCOMPARE(replaced.count(), 1);
    QVERIFY(!m_document->undoStack().canUndo());
    QVERIFY(!m_document->isModified());
    m_document->undo();
    QVERIFY(m_document->state().steps.isEmpty());
}

QTEST_GUILESS_MAIN(TaskDocumentTest)
#include "TaskDocumentTest.moc"
