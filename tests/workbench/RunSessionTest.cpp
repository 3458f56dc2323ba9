#include "refhost/workbench/run/RunSession.h"

#include "refhost/workbench/document/TaskDocument.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/RunBench.h"

#include <QEventLoop>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <stdexcept>

using State = RunSession::State;
using Halt = RunSession::Halt;
using Edit = std::function<TaskState(const RunBench &, const QVector<int> &)>;
using Wish = void (RunSession::*)();

Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(Wish)

/// A run goes from step to step, halts where it is asked to and follows the document meanwhile.
class RunSessionTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isReadyWithTheStartValues();
    void runsToTheEnd();
    void recordsWhatAStepDid();
    void hasNothingToRunInAnEmptyTask();
    void stepsOver();
    void pausesAtBreakpoints();
    void passesTheBreakpointItIsHaltedAt();
    void runsToAStep();
    void runsToNoStepThatLiesBehind();
    void pausesWhenAsked();
    void stopsAndResets();
    void beginsAnewWhenFinished();

    void followsEdits_data();
    void followsEdits();
    void followsUndoneRemoval();
    void waitsAtTheEndForSteps();
    void runsEditedSteps();
    void followsVariables();
    void variableTypedThroughTheNameOfAnother();
    void startValuesLeaveCurrentValuesAlone();
    void readyFollowsStartValues();

    void valuesAreStepsOfUndo();
    void valuesGoStale();
    void valuesFollowRenaming();
    void refusesValues_data();
    void refusesValues();

    void runsNoStepWithinAStep();
    void grantsWishesAfterTheStep_data();
    void grantsWishesAfterTheStep();
    void stepMayRemoveItself();
    void replacedDocumentResets();
    void stepThatThrows();
    void staysResponsive();
    void forgetsOldRecords();
    void forgetsLargeValues();

private:
    std::unique_ptr<RunBench> m_bench;
};

void RunSessionTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<RunBench>();
    m_bench->addVariable("r", VarType::String, "-");
}

void RunSessionTest::cleanup()
{
    m_bench.reset();
    QuietTest::cleanup();
}

void RunSessionTest::isReadyWithTheStartValues()
{
    const int first = m_bench->addAppend("a");
    QCOMPARE(m_bench->run.state(), State::Ready);
    QCOMPARE(m_bench->run.nextStep(), first);
    QCOMPARE(m_bench->value("r").toString(), "-");
    QVERIFY(m_bench->run.records().isEmpty());
}

void RunSessionTest::runsToTheEnd()
{
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    QSignalSpy finished(&m_bench->run, &RunSession::stepFinished);
    QSignalSpy changed(&m_bench->run, &RunSession::stateChanged);
    m_bench->run.run();
    QCOMPARE(m_bench->run.state(), State::Running);
    QVERIFY(m_bench->halts());
    QCOMPARE(m_bench->run.state(), State::Finished);
    QCOMPARE(m_bench->run.lastHalt(), Halt::End);
    QCOMPARE(m_bench->run.nextStep(), 0);
    QCOMPARE(m_bench->value("r").toString(), "-ab");
    QCOMPARE(finished.count(), 2);
    QCOMPARE(changed.count(), 2);
    QVERIFY(!m_bench->document.undoStack().command(0)->isObsolete());
}

void RunSessionTest::recordsWhatAStepDid()
{
    m_bench->addVariable("n", VarType::Int, 3);
    m_bench->addAppend("x");
    const int find = m_bench->addStep(
        "text.find", {{"sourceText", "$n"}, {"searchText", "$gone"}, {"resultVar", "missing"}});
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.records().size(), 2);

    const StepRecord &first = m_bench->run.records().first();
    QCOMPARE(first.round, 1);
    QCOMPARE(first.row, 0);
    QVERIFY(first.summary.contains("$r"));
    QVERIFY(first.nanoseconds > 0);
    QVERIFY(first.time.isValid());
    QCOMPARE(first.operands.size(), 2);
    QCOMPARE(first.operands.first().written, "$r");
    QVERIFY(first.operands.first().isReference);
    QCOMPARE(first.operands.first().found.toString(), "-");
    QCOMPARE(first.operands.last().found.toString(), "x");
    QCOMPARE(first.writes.size(), 1);
    QCOMPARE(first.writes.first().variable, "r");
    QCOMPARE(first.writes.first().value.toString(), "-x");

    const StepRecord *const second = m_bench->run.lastRecord(find);
    QVERIFY(second);
    QCOMPARE(second->row, 1);
    QCOMPARE(second->operands.first().found, QVariant(3));
    QVERIFY(!second->operands.at(1).found.isValid());
    QVERIFY(second->writes.isEmpty());
    QCOMPARE(second->warnings.size(), 1);
    QVERIFY(second->warnings.first().contains("missing"));
    QVERIFY(!m_bench->run.lastRecord(12345678));
}

void RunSessionTest::hasNothingToRunInAnEmptyTask()
{
    m_bench->run.run();
    m_bench->run.stepOver();
    m_bench->run.runTo(7);
    m_bench->run.pause();
    m_bench->run.stop();
    QCOMPARE(m_bench->run.state(), State::Ready);
}

void RunSessionTest::stepsOver()
{
    m_bench->addAppend("a");
    const int second = m_bench->addAppend("b");
    m_bench->run.stepOver();
    QCOMPARE(m_bench->run.state(), State::Paused);
    QCOMPARE(m_bench->run.lastHalt(), Halt::Stepped);
    QCOMPARE(m_bench->run.nextStep(), second);
    QCOMPARE(m_bench->value("r").toString(), "-a");
    m_bench->run.stepOver();
    QCOMPARE(m_bench->run.state(), State::Finished);
    QCOMPARE(m_bench->value("r").toString(), "-ab");
    m_bench->run.stepOver();
    QCOMPARE(m_bench->run.state(), State::Paused);
    QCOMPARE(m_bench->value("r").toString(), "-a");
    QCOMPARE(m_bench->run.records().size(), 1);
}

void RunSessionTest::pausesAtBreakpoints()
{
    const int first = m_bench->addAppend("a");
    m_bench->addAppend("b");
    const int third = m_bench->addAppend("c");
    m_bench->setBreakpoint(first);
    m_bench->setBreakpoint(third);
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.state(), State::Paused);
    QCOMPARE(m_bench->run.lastHalt(), Halt::Breakpoint);
    QCOMPARE(m_bench->run.nextStep(), first);
    QCOMPARE(m_bench->value("r").toString(), "-");
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.nextStep(), third);
    QCOMPARE(m_bench->value("r").toString(), "-ab");
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.state(), State::Finished);
}

void RunSessionTest::passesTheBreakpointItIsHaltedAt()
{
    m_bench->addAppend("a");
    const int second = m_bench->addAppend("b");
    m_bench->run.stepOver();
    m_bench->setBreakpoint(second);
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.state(), State::Finished);
}

void RunSessionTest::runsToAStep()
{
    const int first = m_bench->addAppend("a");
    const int second = m_bench->addAppend("b");
    const int third = m_bench->addAppend("c");
    m_bench->run.runTo(third);
    QVERIFY(m_bench->halts());
    QCOMPARE(m_bench->run.nextStep(), third);
    QCOMPARE(m_bench->run.lastHalt(), Halt::Target);
    QCOMPARE(m_bench->value("r").toString(), "-ab");
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.state(), State::Finished);

    m_bench->run.runTo(first);
    QVERIFY(m_bench->halts());
    QCOMPARE(m_bench->run.nextStep(), first);
    m_bench->setBreakpoint(second);
    m_bench->run.runTo(third);
    QVERIFY(m_bench->halts());
    QCOMPARE(m_bench->run.nextStep(), second);
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.state(), State::Finished);
}

void RunSessionTest::runsToNoStepThatLiesBehind()
{
    const int first = m_bench->addAppend("a");
    const int second = m_bench->addAppend("b");
    m_bench->run.stepOver();
    for (const int step : {first, second, 7654321}) {
        QVERIFY(!m_bench->run.canRunTo(step));
        m_bench->run.runTo(step);
        QCOMPARE(m_bench->run.state(), State::Paused);
    }
}

void RunSessionTest::pausesWhenAsked()
{
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->run.run();
    m_bench->run.pause();
    QCOMPARE(m_bench->run.state(), State::Paused);
    QCOMPARE(m_bench->run.lastHalt(), Halt::Asked);
    QTest::qWait(0);
    QVERIFY(m_bench->run.records().isEmpty());
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->value("r").toString(), "-ab");
}

void RunSessionTest::stopsAndResets()
{
    const int first = m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->run.stepOver();
    m_bench->run.stop();
    QCOMPARE(m_bench->run.state(), State::Finished);
    QCOMPARE(m_bench->run.lastHalt(), Halt::Stopped);
    QCOMPARE(m_bench->run.nextStep(), 0);
    QCOMPARE(m_bench->value("r").toString(), "-a");
    QCOMPARE(m_bench->run.records().size(), 1);
    m_bench->run.reset();
    QCOMPARE(m_bench->run.state(), State::Ready);
    QCOMPARE(m_bench->run.nextStep(), first);
    QCOMPARE(m_bench->value("r").toString(), "-");
    QVERIFY(m_bench->run.records().isEmpty());
    QVERIFY(!m_bench->run.lastRecord(first));
}

void RunSessionTest::beginsAnewWhenFinished()
{
    m_bench->addAppend("a");
    QVERIFY(m_bench->runs());
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->value("r").toString(), "-a");
    QCOMPARE(m_bench->run.records().size(), 1);
    QCOMPARE(m_bench->run.records().first().round, 1);
}

void RunSessionTest::followsEdits_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("result");

    const auto extra = [](const RunBench &bench, const QString &text) {
        return bench.newStepOf("text.append",
                               {{"sourceText", "$r"}, {"appendText", text}, {"resultVar", "r"}});
    };
    // The run is halted before the third of the steps a, b, c, d.
    QTest::newRow("the next one removed")
        << Edit([](const RunBench &bench, const QVector<int> &ids) {
               return bench.document.state().withoutSteps({ids.at(2)});
           })
        << "-abd";
    QTest::newRow("all that follow removed")
        << Edit([](const RunBench &bench, const QVector<int> &ids) {
               return bench.document.state().withoutSteps({ids.at(2), ids.at(3)});
           })
        << "-ab";
    QTest::newRow("those that ran removed")
        << Edit([](const RunBench &bench, const QVector<int> &ids) {
               return bench.document.state().withoutSteps({ids.at(0), ids.at(1)});
           })
        << "-abcd";
    QTest::newRow("all but the last removed")
        << Edit([](const RunBench &bench, const QVector<int> &ids) {
               return bench.document.state().withoutSteps({ids.at(0), ids.at(1), ids.at(2)});
           })
        << "-abd";
    QTest::newRow("all removed") << Edit([](const RunBench &bench, const QVector<int> &ids) {
        return bench.document.state().withoutSteps(ids);
    }) << "-ab";
    QTest::newRow("the next one replaced") << Edit([=](const RunBench &bench,
                                                       const QVector<int> &ids) {
        return bench.document.state().withoutSteps({ids.at(2)}).withSteps(2, {extra(bench, "x")});
    }) << "-abxd";
    QTest::newRow("one inserted behind the next")
        << Edit([=](const RunBench &bench, const QVector<int> &) {
               return bench.document.state().withSteps(3, {extra(bench, "x")});
           })
        << "-abcxd";
    QTest::newRow("one inserted before all")
        << Edit([=](const RunBench &bench, const QVector<int> &) {
               return bench.document.state().withSteps(0, {extra(bench, "x")});
           })
        << "-abcd";
    QTest::newRow("the next one moved to the end")
        << Edit([](const RunBench &bench, const QVector<int> &ids) {
               return bench.document.state().withStepsMoved({ids.at(2)}, 4);
           })
        << "-abc";
    QTest::newRow("one that ran moved to the end")
        << Edit([](const RunBench &bench, const QVector<int> &ids) {
               return bench.document.state().withStepsMoved({ids.at(0)}, 4);
           })
        << "-abcda";
}

void RunSessionTest::followsEdits()
{
    QFETCH(Edit, edit);
    QVector<int> ids;
    for (const char *const text : {"a", "b", "c", "d"})
        ids.append(m_bench->addAppend(text));
    m_bench->run.stepOver();
    m_bench->run.stepOver();
    m_bench->document.change("edit", edit(*m_bench, ids), {});
    QCOMPARE(m_bench->run.state(), State::Paused);
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.state(), State::Finished);
    QTEST(m_bench->value("r").toString(), "result");
}

void RunSessionTest::followsUndoneRemoval()
{
    m_bench->addAppend("a");
    const int second = m_bench->addAppend("b");
    const int third = m_bench->addAppend("c");
    m_bench->run.stepOver();
    QSignalSpy changed(&m_bench->run, &RunSession::stateChanged);
    m_bench->removeStep(second);
    QCOMPARE(m_bench->run.nextStep(), third);
    m_bench->addAppend("x", 0);
    QCOMPARE(m_bench->run.nextStep(), third);
    m_bench->document.undo();
    m_bench->document.undo();
    QCOMPARE(m_bench->run.nextStep(), second);
    QCOMPARE(changed.count(), 2);
}

void RunSessionTest::waitsAtTheEndForSteps()
{
    m_bench->addAppend("a");
    const int second = m_bench->addAppend("b");
    m_bench->run.stepOver();
    m_bench->removeStep(second);
    QCOMPARE(m_bench->run.state(), State::Paused);
    QCOMPARE(m_bench->run.nextStep(), 0);
    const int third = m_bench->addAppend("c");
    QCOMPARE(m_bench->run.nextStep(), third);
    m_bench->removeStep(third);
    m_bench->run.stepOver();
    QCOMPARE(m_bench->run.state(), State::Finished);
    QCOMPARE(m_bench->value("r").toString(), "-a");
}

void RunSessionTest::runsEditedSteps()
{
    m_bench->addAppend("a");
    const int second = m_bench->addAppend("b");
    m_bench->run.stepOver();
    m_bench->document.change("edit",
                             m_bench->document.state().withProperty(second, "appendText", "B"), {});
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->value("r").toString(), "-aB");
}

void RunSessionTest::followsVariables()
{
    TaskDocument &document = m_bench->document;
    const int number = m_bench->addVariable("n", VarType::Int, 3);
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->run.stepOver();
    m_bench->run.setValue("n", 5);
    QSignalSpy values(&m_bench->run, &RunSession::valuesChanged);

    document.change("rename", document.state().withVariableChanged(number, {"m", VarType::Int, 3}),
                    {});
    QCOMPARE(m_bench->run.scope().names(), (QStringList{"m", "r"}));
    QCOMPARE(m_bench->value("m"), QVariant(5));
    QCOMPARE(m_bench->value("r").toString(), "-a");

    document.change("retype",
                    document.state().withVariableChanged(number, {"m", VarType::String, "x"}), {});
    QCOMPARE(m_bench->value("m"), QVariant("x"));
    QCOMPARE(m_bench->run.scope().typeOf("m"), VarType::String);

    document.undo();
    QCOMPARE(m_bench->value("m"), QVariant(5));

    document.change("remove", document.state().withoutVariables({number}), {});
    QCOMPARE(m_bench->run.scope().names(), QStringList{"r"});
    QCOMPARE(m_bench->run.scope().typeOf("m"), VarType::None);

    document.undo();
    QCOMPARE(m_bench->value("m"), QVariant(5));
    QCOMPARE(values.count(), 5);
}

void RunSessionTest::variableTypedThroughTheNameOfAnother()
{
    TaskDocument &document = m_bench->document;
    m_bench->addVariable("na", VarType::Int, 1);
    const int typed = m_bench->addVariable("x", VarType::Int, 2);
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->run.stepOver();
    m_bench->run.setValue("na", 10);
    m_bench->run.setValue("x", 20);
    for (const char *const name : {"n", "na", "nam", "name"}) {
        document.type("rename",
                      document.state().withVariableChanged(typed, {QString(name), VarType::Int, 2}),
                      {0, {}, typed});
    }
    QCOMPARE(m_bench->value("na"), QVariant(10));
    QCOMPARE(m_bench->value("name"), QVariant(20));
}

void RunSessionTest::startValuesLeaveCurrentValuesAlone()
{
    TaskDocument &document = m_bench->document;
    const int id = document.state().variables.first().id;
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->run.stepOver();
    document.change("start", document.state().withVariableChanged(id, {"r", VarType::String, "+"}),
                    {});
    QCOMPARE(m_bench->value("r").toString(), "-a");
    m_bench->run.reset();
    QCOMPARE(m_bench->value("r").toString(), "+");
}

void RunSessionTest::readyFollowsStartValues()
{
    TaskDocument &document = m_bench->document;
    const int id = document.state().variables.first().id;
    QSignalSpy values(&m_bench->run, &RunSession::valuesChanged);
    document.change("start", document.state().withVariableChanged(id, {"r", VarType::String, "+"}),
                    {});
    QCOMPARE(m_bench->value("r").toString(), "+");
    m_bench->addVariable("list", VarType::List);
    QCOMPARE(m_bench->value("list"), QVariant(QVariantList()));
    QCOMPARE(values.count(), 2);
    m_bench->addAppend("a");
    QCOMPARE(values.count(), 2);
}

void RunSessionTest::valuesAreStepsOfUndo()
{
    const int variable = m_bench->document.state().variables.first().id;
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->document.markSaved();
    m_bench->run.stepOver();
    QSignalSpy wanted(&m_bench->document, &TaskDocument::placeWanted);
    m_bench->run.setValue("r", "x");
    m_bench->run.setValue("r", "y");
    m_bench->run.setValue("r", "y");
    QCOMPARE(m_bench->value("r").toString(), "y");
    QVERIFY(!m_bench->document.isModified());
    QCOMPARE(wanted.count(), 0);
    m_bench->document.undo();
    QCOMPARE(m_bench->value("r").toString(), "x");
    m_bench->document.undo();
    QCOMPARE(m_bench->value("r").toString(), "-a");
    m_bench->document.redo();
    QCOMPARE(m_bench->value("r").toString(), "x");
    QCOMPARE(wanted.count(), 3);
    QCOMPARE(wanted.first().first().value<EditPlace>().variable, variable);
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->value("r").toString(), "xb");
    m_bench->run.setValue("r", "z");
    QCOMPARE(m_bench->value("r").toString(), "z");
}

void RunSessionTest::valuesGoStale()
{
    const int first = m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->addAppend("c");
    m_bench->run.stepOver();
    m_bench->document.change("edit",
                             m_bench->document.state().withProperty(first, "appendText", "A"), {});
    m_bench->run.setValue("r", "x");
    m_bench->run.stepOver();
    m_bench->run.setValue("r", "y");
    m_bench->run.stepOver();
    QCOMPARE(m_bench->value("r").toString(), "yc");
    // Both values are passed over.
    m_bench->document.undo();
    QCOMPARE(m_bench->value("r").toString(), "yc");
    const auto text = [&] {
        return m_bench->document.state().step(first)->operation->property("appendText").toString();
    };
    QCOMPARE(text(), "a");
    m_bench->document.redo();
    QCOMPARE(text(), "A");
    m_bench->document.redo();
    QCOMPARE(m_bench->value("r").toString(), "yc");

    m_bench->run.setValue("r", "z");
    m_bench->run.reset();
    m_bench->document.undo();
    QCOMPARE(m_bench->value("r").toString(), "-");
}

void RunSessionTest::valuesFollowRenaming()
{
    TaskDocument &document = m_bench->document;
    const int id = document.state().variables.first().id;
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->run.stepOver();
    m_bench->run.setValue("r", "x");
    document.change("rename", document.state().withVariableChanged(id, {"q", VarType::String, "-"}),
                    {});
    QCOMPARE(m_bench->value("q").toString(), "x");
    document.undo();
    document.undo();
    QCOMPARE(m_bench->value("r").toString(), "-a");
}

void RunSessionTest::refusesValues_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("ready");

    QTest::newRow("another type") << "r" << QVariant(3) << false;
    QTest::newRow("no value") << "r" << QVariant() << false;
    QTest::newRow("no variable") << "nobody" << QVariant("x") << false;
    QTest::newRow("not in a run") << "r" << QVariant("x") << true;
}

void RunSessionTest::refusesValues()
{
    QFETCH(QString, variable);
    QFETCH(QVariant, value);
    QFETCH(bool, ready);
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    if (!ready)
        m_bench->run.stepOver();
    const int commands = m_bench->document.undoStack().count();
    m_bench->run.setValue(variable, value);
    QCOMPARE(m_bench->document.undoStack().count(), commands);
    QCOMPARE(m_bench->value("r").toString(), ready ? "-" : "-a");
}

void RunSessionTest::runsNoStepWithinAStep()
{
    int within = 0;
    int most = 0;
    for (int i = 0; i < 3; ++i) {
        m_bench->addDeed([&](VariableScope &) {
            most = std::max(most, ++within);
            QTimer::singleShot(0, [&] {
                m_bench->run.run();
                m_bench->run.stepOver();
            });
            QTest::qWait(5);
            --within;
        });
    }
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->run.state(), State::Finished);
    QCOMPARE(m_bench->run.records().size(), 3);
    QCOMPARE(most, 1);
}

void RunSessionTest::grantsWishesAfterTheStep_data()
{
    QTest::addColumn<Wish>("wish");
    QTest::addColumn<State>("state");
    QTest::addColumn<int>("records");

    QTest::newRow("pause") << Wish(&RunSession::pause) << State::Paused << 1;
    QTest::newRow("stop") << Wish(&RunSession::stop) << State::Finished << 1;
    QTest::newRow("reset") << Wish(&RunSession::reset) << State::Ready << 0;
}

void RunSessionTest::grantsWishesAfterTheStep()
{
    QFETCH(Wish, wish);
    QFETCH(int, records);
    bool wished = false;
    m_bench->addDeed([&](VariableScope &scope) {
        QTimer::singleShot(0, &m_bench->run, wish);
        QEventLoop loop;
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
        wished = m_bench->run.state() == State::Running;
        scope.set("r", "written");
    });
    m_bench->addAppend("a");
    QVERIFY(m_bench->runs());
    QVERIFY(wished);
    QTEST(m_bench->run.state(), "state");
    QCOMPARE(m_bench->run.records().size(), records);
    QCOMPARE(m_bench->value("r").toString(), records == 0 ? "-" : "written");
}

void RunSessionTest::stepMayRemoveItself()
{
    int id = 0;
    id = m_bench->addDeed([&](VariableScope &) { m_bench->removeStep(id); });
    m_bench->addAppend("a");
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->value("r").toString(), "-a");
}

void RunSessionTest::replacedDocumentResets()
{
    m_bench->addAppend("a");
    m_bench->addAppend("b");
    m_bench->run.stepOver();
    m_bench->document.replace({});
    QCOMPARE(m_bench->run.state(), State::Ready);
    QCOMPARE(m_bench->run.nextStep(), 0);
    QVERIFY(m_bench->run.scope().names().isEmpty());
    QVERIFY(m_bench->run.records().isEmpty());
}

void RunSessionTest::stepThatThrows()
{
    const int id =
        m_bench->addDeed([](VariableScope &) { throw std::runtime_error("out of order"); });
    m_bench->addAppend("a");
    QVERIFY(m_bench->runs());
    QCOMPARE(m_bench->value("r").toString(), "-a");
    QCOMPARE(m_bench->run.lastRecord(id)->warnings.size(), 1);
    QVERIFY(m_bench->run.lastRecord(id)->warnings.first().contains("out of order"));

    const int other = m_bench->addDeed([](VariableScope &) { throw 42; });
    QVERIFY(m_bench->runs());
    QVERIFY(m_bench->run.lastRecord(other)->warnings.first().contains("int"));
}

void RunSessionTest::staysResponsive()
{
    constexpr int count = 20000;
    TaskState state = m_bench->document.state();
    const StepState step =
        m_bench->newStepOf("text.trim", {{"sourceText", "  $r  "}, {"resultVar", "r"}});
    QVector<StepState> steps;
    for (int i = 0; i < count; ++i)
        steps.append(duplicate(step));
    m_bench->document.replace(state.withSteps(0, steps));
    int ticks = 0;
    QTimer ticker;
    connect(&ticker, &QTimer::timeout, this, [&] { ++ticks; });
    ticker.start(1);
    QElapsedTimer clock;
    clock.start();
    m_bench->run.run();
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->run.state() == State::Finished, 60000);
    QVERIFY2(ticks >= clock.elapsed() / 200, qPrintable(QString::number(ticks)));
    QCOMPARE(m_bench->run.records().last().round, count);
}

void RunSessionTest::forgetsOldRecords()
{
    RunRecords records;
    for (int i = 0; i < 25000; ++i) {
        StepRecord record;
        record.step = i % 12000;
        records.add(record);
    }
    QVERIFY(records.all().size() <= 10000);
    QVERIFY(records.all().size() >= 9000);
    QCOMPARE(records.all().last().round, 25000);
    QCOMPARE(records.last(999)->round, 25000);
    QCOMPARE(records.last(11999)->round, 24000);
    QVERIFY(!records.last(1500));
}

void RunSessionTest::forgetsLargeValues()
{
    RunRecords records;
    const QString large(16 * 1024 * 1024, QLatin1Char('x'));
    for (int i = 0; i < 100; ++i) {
        StepRecord record;
        record.step = i;
        record.writes.append({"r", large});
        records.add(record);
    }
    QVERIFY(records.all().size() < 20);
    QVERIFY(records.last(99));
    QVERIFY(!records.last(0));
}

QTEST_GUILESS_MAIN(RunSessionTest)
#include "RunSessionTest.moc"
