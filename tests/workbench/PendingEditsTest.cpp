#include "refhost/workbench/document/PendingEdits.h"

#include "refhost/workbench/variables/CellEdit.h"
#include "refhost/workbench/variables/VariableModel.h"
#include "refhost/workbench/window/MainWindow.h"
#include "refhost/workbench/window/Workbench.h"
#include "tests/support/QuietTest.h"

#include "Operation.h"

#include <QAction>
#include <QTableView>
#include <QTest>

/// What is being typed reaches the document before anything is done with the task.
class PendingEditsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void takesOverEverySource();
    void stopsAtWhatIsRefused();
    void forgetsSourcesThatAreGone();
    void anOpenCellIsTakenOverBeforeARun();
};

void PendingEditsTest::takesOverEverySource()
{
    PendingEdits pending;
    QVERIFY(pending.commit());
    int count = 0;
    const auto commit = [&count] {
        ++count;
        return true;
    };
    pending.add(this, commit);
    pending.add(this, commit);
    QVERIFY(pending.commit());
    QCOMPARE(count, 2);
}

void PendingEditsTest::stopsAtWhatIsRefused()
{
    PendingEdits pending;
    pending.add(this, [] { return false; });
    QVERIFY(!pending.commit());
}

void PendingEditsTest::forgetsSourcesThatAreGone()
{
    PendingEdits pending;
    auto owner = std::make_unique<QObject>();
    pending.add(owner.get(), [] { return false; });
    owner.reset();
    QVERIFY(pending.commit());
}

void PendingEditsTest::anOpenCellIsTakenOverBeforeARun()
{
    Workbench bench({PLUGIN_FILE});
    MainWindow window(bench);
    window.show();
    const Operation &prototype = *bench.library.catalog().entries().first().prototype;
    const StepState step = newStep(std::unique_ptr<Operation>(prototype.clone(nullptr)));
    const VariableState variable{newStateId(), {"a", VarType::String, {}}};
    bench.document.replace(TaskState().withSteps(0, {step}).withVariable(0, variable));
    auto *const table = window.findChild<QTableView *>("variables.table");
    table->setFocus();
    table->setCurrentIndex(table->model()->index(0, VariableModel::StartColumn));
    QTest::keyClick(table, Qt::Key_Return);
    auto *const cell = table->findChild<CellEdit *>("cell");
    QVERIFY(cell);
    QTest::keyClicks(cell, "typed");
    QVERIFY(bench.document.state().variables.first().variable.value.toString().isEmpty());

    window.findChild<QAction *>("run.stepOver")->trigger();
    QCOMPARE(bench.document.state().variables.first().variable.value.toString(), "typed");
    QCOMPARE(bench.run.records().size(), 1);
    QCOMPARE(bench.run.scope().get("a").toString(), "typed");
    takeWarnings(); // the step writes to no variable
}

QTEST_MAIN(PendingEditsTest)
#include "PendingEditsTest.moc"
