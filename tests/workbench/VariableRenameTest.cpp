#include "refhost/workbench/variables/VariableRename.h"

#include "refhost/engine/OperationCatalog.h"
#include "refhost/workbench/document/VariableNames.h"
#include "refhost/workbench/document/VariableUses.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QTest>

/// A variable gets another name, and the steps that name it call it so.
class VariableRenameTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void renamesReferences_data();
    void renamesReferences();
    void renamesBareNames();
    void renamesInHiddenProperties();
    void renamesInManySteps();
    void leavesStepsAlone();
    void leavesEmptyNamesAlone();
    void findsUses();
    void refusesNames_data();
    void refusesNames();
    void findsFreeNames_data();
    void findsFreeNames();

private:
    StepState step(const QString &typeId, const QVariantMap &properties) const;
    static TaskState withVariables(const QStringList &names);
    static QString text(const TaskState &state, int row, const char *property);

    OperationCatalog m_catalog{{QStringLiteral(PLUGIN_FILE), QStringLiteral(EDITORS_PLUGIN)}};
};

StepState VariableRenameTest::step(const QString &typeId, const QVariantMap &properties) const
{
    return newStepOf(m_catalog, typeId, properties);
}

TaskState VariableRenameTest::withVariables(const QStringList &names)
{
    TaskState state;
    for (const QString &name : names)
        state = state.withVariable(99, {newStateId(), {name, VarType::String, "x"}});
    return state;
}

QString VariableRenameTest::text(const TaskState &state, int row, const char *property)
{
    return state.steps.at(row).operation->property(property).toString();
}

void VariableRenameTest::renamesReferences_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("breaks");

    QTest::newRow("reference") << "a"
                               << "b"
                               << "$a"
                               << "$b" << false;
    QTest::newRow("member") << "a"
                            << "b"
                            << "$a.Count"
                            << "$b.Count" << false;
    QTest::newRow("member of a member") << "a"
                                        << "b"
                                        << "$a.x.y"
                                        << "$b.x.y" << false;
    QTest::newRow("ends in a dot") << "a"
                                   << "b"
                                   << "$a."
                                   << "$b." << false;
    QTest::newRow("longer name") << "a"
                                 << "b"
                                 << "$ab"
                                 << "$ab" << false;
    QTest::newRow("shorter name") << "ab"
                                  << "b"
                                  << "$a"
                                  << "$a" << false;
    QTest::newRow("another case") << "a"
                                  << "b"
                                  << "$A"
                                  << "$A" << false;
    QTest::newRow("white space counts") << "a"
                                        << "b"
                                        << "$a "
                                        << "$a " << false;
    QTest::newRow("literal") << "a"
                             << "b"
                             << "a"
                             << "a" << false;
    QTest::newRow("amid a text") << "a"
                                 << "b"
                                 << "x $a"
                                 << "x $a" << false;
    QTest::newRow("lone dollar") << "a"
                                 << "b"
                                 << "$"
                                 << "$" << false;
    QTest::newRow("two dollars") << "a"
                                 << "b"
                                 << "$$a"
                                 << "$$a" << false;
    QTest::newRow("name with a dollar") << "$a"
                                        << "b"
                                        << "$$a"
                                        << "$b" << false;
    QTest::newRow("Chinese") << "甲"
                             << "乙丙"
                             << "$甲.Count"
                             << "$乙丙.Count" << false;
    QTest::newRow("leading dot") << ".a"
                                 << "b"
                                 << "$.a"
                                 << "$b" << false;
    QTest::newRow("to a leading dot") << "a"
                                      << ".b"
                                      << "$a"
                                      << "$.b" << false;
    QTest::newRow("member, to a leading dot") << "a"
                                              << ".b"
                                              << "$a.Count"
                                              << "$a.Count" << true;
    QTest::newRow("dot in the new name") << "a"
                                         << "b.c"
                                         << "$a"
                                         << "$a" << true;
    QTest::newRow("dot in the old name") << "a.b"
                                         << "c"
                                         << "$a.b"
                                         << "$a.b" << false;
}

void VariableRenameTest::renamesReferences()
{
    QFETCH(QString, oldName);
    QFETCH(QString, newName);
    QFETCH(QString, before);
    QFETCH(bool, breaks);
    const TaskState state =
        withVariables({oldName}).withSteps(0, {step("text.append", {{"sourceText", before}})});
    const int id = state.variables.first().id;
    QCOMPARE(breaksReferences(state, oldName, newName), breaks);
    const TaskState renamed = withVariableRenamed(state, id, newName, true);
    QCOMPARE(renamed.variable(id)->variable.name, newName);
    QTEST(text(renamed, 0, "sourceText"), "after");
    QCOMPARE(text(state, 0, "sourceText"), before);
}

void VariableRenameTest::renamesBareNames()
{
    const TaskState state = withVariables({"a", "ab"})
                                .withSteps(0, {step("text.append", {{"resultVar", "a"}}),
                                               step("text.append", {{"resultVar", "ab"}})});
    const TaskState renamed = withVariableRenamed(state, state.variables.first().id, "b.c", true);
    QCOMPARE(text(renamed, 0, "resultVar"), "b.c");
    QCOMPARE(text(renamed, 1, "resultVar"), "ab");
    QVERIFY(renamed.steps.at(1).operation == state.steps.at(1).operation);
}

void VariableRenameTest::renamesInHiddenProperties()
{
    // Shown in the modes 1 and 2 alone.
    const TaskState state = withVariables({"a"}).withSteps(
        0, {step("editors.operands", {{"mode", 0}, {"extra", "$a"}, {"size", "$a.Count"}})});
    const int id = state.variables.first().id;
    const auto uses = variableUses(state, "a");
    QCOMPARE(uses.size(), 2);
    QCOMPARE(uses.at(0).property, "size");
    QCOMPARE(uses.at(1).property, "extra");
    QCOMPARE(text(withVariableRenamed(state, id, "b", true), 0, "extra"), "$b");
}

void VariableRenameTest::renamesInManySteps()
{
    const StepState both =
        step("text.append", {{"sourceText", "$a"}, {"appendText", "$a.Count"}, {"resultVar", "a"}});
    const StepState other = step("text.append", {{"sourceText", "a"}});
    StepState stopped = duplicate(both);
    stopped.breakpoint = true;
    const TaskState state = withVariables({"a"}).withSteps(0, {both, other, stopped});
    const TaskState renamed = withVariableRenamed(state, state.variables.first().id, "b", true);
    for (const int row : {0, 2}) {
        QCOMPARE(text(renamed, row, "sourceText"), "$b");
        QCOMPARE(text(renamed, row, "appendText"), "$b.Count");
        QCOMPARE(text(renamed, row, "resultVar"), "b");
        QCOMPARE(renamed.steps.at(row).id, state.steps.at(row).id);
    }
    QVERIFY(renamed.steps.at(2).breakpoint);
    QVERIFY(renamed.steps.at(1).operation == other.operation);
}

void VariableRenameTest::leavesStepsAlone()
{
    const TaskState state =
        withVariables({"a"}).withSteps(0, {step("text.append", {{"sourceText", "$a"}})});
    const TaskState renamed = withVariableRenamed(state, state.variables.first().id, "b", false);
    QCOMPARE(renamed.variables.first().variable.name, "b");
    QCOMPARE(text(renamed, 0, "sourceText"), "$a");
}

void VariableRenameTest::leavesEmptyNamesAlone()
{
    const TaskState state =
        withVariables({""}).withSteps(0, {step("text.append", {{"resultVar", ""}})});
    const TaskState renamed = withVariableRenamed(state, state.variables.first().id, "b", true);
    QCOMPARE(renamed.variables.first().variable.name, "b");
    QCOMPARE(text(renamed, 0, "resultVar"), "");
}

void VariableRenameTest::findsUses()
{
    const StepState first = step("text.append", {{"sourceText", "$a"}, {"resultVar", "a"}});
    const StepState second = step("text.append", {{"sourceText", "$b"}});
    const TaskState state = withVariables({"a"}).withSteps(0, {first, second});
    const auto uses = variableUses(state, "a");
    QCOMPARE(uses.size(), 2);
    QCOMPARE(uses.at(0).step, first.id);
    QCOMPARE(uses.at(1).step, first.id);
    QVERIFY(variableUses(state, "c").isEmpty());
}

void VariableRenameTest::refusesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("empty") << "" << true;
    QTest::newRow("of another") << "b" << true;
    QTest::newRow("its own") << "a" << false;
    QTest::newRow("another case") << "B" << false;
    QTest::newRow("white space") << "b " << false;
    QTest::newRow("new") << "c" << false;
}

void VariableRenameTest::refusesNames()
{
    QFETCH(QString, name);
    const TaskState state = withVariables({"a", "b"});
    const QString refusal = nameRefusal(state, state.variables.first().id, name);
    QTEST(!refusal.isEmpty(), "isRefused");
}

void VariableRenameTest::findsFreeNames_data()
{
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("free");
    QTest::newRow("none taken") << QStringList{} << "变量1"
                                << "变量1";
    QTest::newRow("next") << QStringList{"变量1", "变量2"} << "变量1"
                          << "变量3";
    QTest::newRow("gap") << QStringList{"变量1", "变量3"} << "变量1"
                         << "变量2";
    QTest::newRow("without a number") << QStringList{"line"} << "line"
                                      << "line1";
    QTest::newRow("with a number") << QStringList{"line7"} << "line7"
                                   << "line1";
    QTest::newRow("a number only") << QStringList{"1"} << "1"
                                   << "2";
}

void VariableRenameTest::findsFreeNames()
{
    QFETCH(QStringList, taken);
    QFETCH(QString, name);
    QTEST(freeVariableName(withVariables(taken), name), "free");
}

QTEST_GUILESS_MAIN(VariableRenameTest)
#include "VariableRenameTest.moc"
