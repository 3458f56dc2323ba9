#include "tests/support/QuietTest.h"

#include "refhost/runner/RepeatedLines.h"

#include <QtTest>

/// The first lines of a kind are shown, the others counted.
class RepeatedLinesTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_data();
    void kinds();
    void boundsTheKindsOfAStep();
};

namespace {

/// How many of `count` lines are shown; "%1" in `line` stands for the number of the line.
int shown(RepeatedLines &lines, int step, const QString &line, int count)
{
    int shownCount = 0;
    for (int i = 0; i < count; ++i)
        shownCount += lines.isShown(step, line.contains("%1") ? line.arg(i) : line) ? 1 : 0;
    return shownCount;
}

QString letters(int number)
{
    return QString(number + 1, 'x');
}

} // namespace

void RepeatedLinesTest::kinds_data()
{
    QTest::addColumn<QString>("line");

    QTest::newRow("the same line") << "a";
    QTest::newRow("another number") << "line %1: 0.%1 is too much";
    QTest::newRow("another text in quotes") << "\"%1\" is \"x%1\"";
    QTest::newRow("an escaped quote") << "\"\\\"%1x\" is no number";
    QTest::newRow("a quote without an end") << "\"x%1";
}

void RepeatedLinesTest::kinds()
{
    QFETCH(QString, line);

    RepeatedLines lines;
    QCOMPARE(shown(lines, 3, line, 1200), 1000);
    QCOMPARE(shown(lines, 4, line, 1000), 1000);
    QCOMPARE(shown(lines, 3, "x" + line, 1000), 1000);
    const QString first = line.contains("%1") ? QString(line).arg(0) : line;
    QCOMPARE(lines.rest(), QStringList("200 more like this one: " + first));
}

/// Lines that differ in anything else come to an end, too.
void RepeatedLinesTest::boundsTheKindsOfAStep()
{
    RepeatedLines lines;
    int shownCount = 0;
    for (int i = 0; i < 3000; ++i)
        shownCount += lines.isShown(0, letters(i)) ? 1 : 0;
    QCOMPARE(shownCount, RepeatedLines::mostKinds + RepeatedLines::mostShown);
    QCOMPARE(lines.rest(), QStringList("1980 more like this one: " + letters(20)));
    QVERIFY(lines.isShown(0, letters(2)));
    QVERIFY(!lines.isShown(0, "another"));
    QVERIFY(lines.isShown(1, "another"));
}

QTEST_GUILESS_MAIN(RepeatedLinesTest)
#include "RepeatedLinesTest.moc"
