#include "refhost/workbench/run/WarningPlace.h"

#include "tests/support/QuietTest.h"
#include "tests/workbench/support/RunBench.h"

#include <QTest>

/// A line that a step logs leads to the property it is about.
class WarningPlaceTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void leadsFromRealWarnings_data();
    void leadsFromRealWarnings();
    void leadsFromForeignLines_data();
    void leadsFromForeignLines();
};

void WarningPlaceTest::leadsFromRealWarnings_data()
{
    QTest::addColumn<QString>("typeId");
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QString>("property");
    const auto row = [](const char *name, const QString &typeId, const QVariantMap &settings,
                        const QString &property) {
        QTest::newRow(name) << typeId << settings << property;
    };

    row("no result variable", "text.append", {{"sourceText", "a"}}, "resultVar");
    row("no result variable, number", "text.find", {{"sourceText", "a"}}, "resultVar");
    row("result is no string", "text.append", {{"resultVar", "n"}}, "resultVar");
    row("result is not declared", "text.append", {{"resultVar", "gone"}}, "resultVar");
    row("number is not declared", "text.find", {{"resultVar", "gone"}}, "resultVar");
    row("result takes no number", "text.find", {{"resultVar", "l"}}, "resultVar");
    row("result is no list", "text.split", {{"sourceText", "a"}, {"resultVar", "s"}}, "resultVar");
    row("name with quotes in it", "text.append", {{"resultVar", "a\"b\n"}}, "resultVar");
    row("input is no list", "text.join", {{"listVar", "s"}, {"resultVar", "r"}}, "listVar");
    row("input is not declared", "text.join", {{"listVar", "gone"}, {"resultVar", "r"}}, "listVar");
    row("one name as input and as result", "text.join", {{"listVar", "s"}, {"resultVar", "s"}},
        "listVar");
    row("list as input and as result", "text.join", {{"listVar", "l"}, {"resultVar", "l"}},
        "resultVar");
    row("unknown mode", "text.trim", {{"mode", 7}, {"resultVar", "r"}}, "mode");
    row("negative mode", "text.case", {{"mode", -1}, {"resultVar", "r"}}, "mode");
    row("unknown cut", "text.between", {{"cutMode", 9}, {"resultVar", "r"}}, "cutMode");
    row("no number in a literal", "text.toNumber", {{"sourceText", "abc"}, {"resultVar", "n"}},
        "sourceText");
    row("no number in a variable", "text.toNumber", {{"sourceText", "$s"}, {"resultVar", "n"}},
        "sourceText");
    row("no number in nothing", "text.toNumber", {{"sourceText", ""}, {"resultVar", "n"}},
        "sourceText");
    row("text that reads like the result", "text.toNumber",
        {{"sourceText", "n"}, {"resultVar", "n"}}, "sourceText");
    row("value is no number", "text.fromNumber", {{"value", "$s"}, {"resultVar", "r"}}, "value");
    row("value is not there", "text.fromNumber", {{"value", "$gone"}, {"resultVar", "r"}}, "value");
    row("value is empty", "text.fromNumber", {{"value", ""}, {"resultVar", "r"}}, "value");
    row("too large", "text.fromNumber",
        {{"value", "1"}, {"decimals", "2147483647"}, {"resultVar", "r"}}, "");
}

void WarningPlaceTest::leadsFromRealWarnings()
{
    QFETCH(QString, typeId);
    QFETCH(QVariantMap, settings);
    RunBench bench;
    bench.addVariable("r", VarType::String);
    bench.addVariable("s", VarType::String, "total n\t\"r\"");
    bench.addVariable("n", VarType::Int);
    bench.addVariable("l", VarType::List);
    const int id = bench.addStep(typeId, settings);
    bench.run.stepOver();
    const StepRecord *const record = bench.run.lastRecord(id);
    QVERIFY(record);
    QCOMPARE(record->warnings.size(), 1);
    QTEST(warningPlace(record->warnings.first(), *record->operation, record->operands), "property");
}

void WarningPlaceTest::leadsFromForeignLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("suspects");
    QTest::addColumn<QString>("property");

    QTest::newRow("name without quotes")
        << "no such variable: result_1" << QStringList() << "resultVar";
    QTest::newRow("a word that begins alike")
        << "no such variable: result_12" << QStringList() << "";
    QTest::newRow("label") << "原文本 为空" << QStringList() << "sourceText";
    QTest::newRow("nothing to go by") << "out of order" << QStringList() << "";
    QTest::newRow("a finding") << "out of order" << QStringList{"appendText"} << "appendText";
    QTest::newRow("the name before a finding")
        << "no variable \"result_1\"" << QStringList{"appendText"} << "resultVar";
    QTest::newRow("empty line") << "" << QStringList() << "";
}

void WarningPlaceTest::leadsFromForeignLines()
{
    QFETCH(QString, line);
    QFETCH(QStringList, suspects);
    RunBench bench;
    const StepState step = bench.newStepOf(
        "text.append", {{"sourceText", "a"}, {"appendText", "b"}, {"resultVar", "result_1"}});
    QTEST(warningPlace(line, *step.operation, {}, suspects), "property");
}

QTEST_GUILESS_MAIN(WarningPlaceTest)
#include "WarningPlaceTest.moc"
