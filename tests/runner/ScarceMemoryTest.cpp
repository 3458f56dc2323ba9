#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QtTest>

/// oprun with little memory to spare.
class ScarceMemoryTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void hugeResult();
    void hugeRow_data();
    void hugeRow();
    void manyJobs();
};

namespace {

const char sampleTask[] = R"({
    "variables": {"word": {"type": "string"}, "n": {"type": "int", "value": 3}},
    "steps": []
})";

} // namespace

/// The steps go on without what does not fit; what did fit is too much to be shown.
void ScarceMemoryTest::hugeResult()
{
    const QString doubling =
        R"({"type": "text.append", "sourceText": "$r", "appendText": "$r", "resultVar": "r"})";
    const QString task =
        R"({"variables": {"r": {"type": "string", "value": "ab"}}, "steps": [%1]})";
    const OprunFolder folder(OPRUN_FILE);
    QVERIFY(folder.write("task.json", task.arg((doubling + ',').repeated(30).chopped(1)).toUtf8()));
    const auto outcome = folder.runShell("ulimit -v 600000; $OPRUN run task.json; echo $?");
    QCOMPARE(outcome.out, QString("2\n"));
    QVERIFY2(outcome.err.contains("结果过大，已跳过"), qPrintable(outcome.err));
    QVERIFY2(outcome.err.endsWith("oprun: what this takes does not fit into memory\n"),
             qPrintable(outcome.err));
}

void ScarceMemoryTest::hugeRow_data()
{
    QTest::addColumn<QString>("options");

    QTest::newRow("object") << "";
    QTest::newRow("line") << "--lines word";
    QTest::newRow("object, two jobs") << "--jobs 2";
}

/// A row for which there is no memory fails, or all rows do, but not the program.
void ScarceMemoryTest::hugeRow()
{
    QFETCH(QString, options);

    const OprunFolder folder(OPRUN_FILE);
    QVERIFY(folder.write("task.json", sampleTask));
    const auto outcome = folder.runShell(
        "ulimit -v 600000; { echo {}; head -c 150000000 /dev/zero | tr '\\0' x; } |"
        "$OPRUN run task.json --each - --print n " +
        options +
        " > /dev/null 2> err; echo $?;"
        "grep -o -m 1 -E 'malformed JSON|does not fit into memory|do not fit into memory' err");
    const QStringList lines = outcome.out.split('\n');
    QVERIFY2(lines.size() == 3 && (lines.first() == "1" || lines.first() == "2"),
             qPrintable(outcome.out));
}

/// There is no memory for the stacks of that many threads.
void ScarceMemoryTest::manyJobs()
{
    const OprunFolder folder(OPRUN_FILE);
    QVERIFY(folder.write("task.json", sampleTask));
    const auto outcome = folder.runShell(
        "ulimit -v 300000; echo {} | $OPRUN run task.json --each - --print n --jobs 256");
    QCOMPARE(outcome.out, QString("{\"n\":3}\n"));
    QCOMPARE(outcome.err, QString("oprun: 1 rows: 1 done, 0 failed; 0 warnings\n"));
}

QTEST_GUILESS_MAIN(ScarceMemoryTest)
#include "ScarceMemoryTest.moc"
