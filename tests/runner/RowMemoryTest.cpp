#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QtTest>

/// "oprun run --each" with little memory to spare.
class RowMemoryTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
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

void RowMemoryTest::hugeRow_data()
{
    QTest::addColumn<QString>("options");

    QTest::newRow("object") << "";
    QTest::newRow("line") << "--lines word";
    QTest::newRow("object, two jobs") << "--jobs 2";
}

/// A row for which there is no memory fails, or all rows do, but not the program.
void RowMemoryTest::hugeRow()
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
void RowMemoryTest::manyJobs()
{
    const OprunFolder folder(OPRUN_FILE);
    QVERIFY(folder.write("task.json", sampleTask));
    const auto outcome = folder.runShell(
        "ulimit -v 300000; echo {} | $OPRUN run task.json --each - --print n --jobs 256");
    QCOMPARE(outcome.out, QString("{\"n\":3}\n"));
    QCOMPARE(outcome.err, QString("oprun: 1 rows: 1 done, 0 failed; 0 warnings\n"));
}

QTEST_GUILESS_MAIN(RowMemoryTest)
#include "RowMemoryTest.moc"
