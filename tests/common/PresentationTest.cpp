#include "tests/support/QuietTest.h"

#include "operations/common/Presentation.h"

#include <QtTest>

class PresentationTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void variableName_data();
    void variableName();
    void fillsInOrder();
    void fillsNumbers();
    void leavesWhatWouldNotFit();
    void laterValuesFillMarkersInEarlierOnes();
};

void PresentationTest::variableName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("null") << QString() << "";
    QTest::newRow("plain") << "r"
                           << "$r";
    QTest::newRow("with dollar") << "$r"
                                 << "$r";
    QTest::newRow("dollar alone") << "$"
                                  << "$";
    QTest::newRow("two dollars") << "$$r"
                                 << "$$r";
    QTest::newRow("dollar later") << "a$"
                                  << "$a$";
    QTest::newRow("space first") << " $r"
                                 << "$ $r";
    QTest::newRow("chinese") << "结果"
                             << "$结果";
}

void PresentationTest::variableName()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    QCOMPARE(displayVariableName(name), shown);
}

void PresentationTest::fillsInOrder()
{
    QCOMPARE(fillMarkers("%1: %2 -> %3", QString("a"), QString("b"), QString("c")),
             QString("a: b -> c"));
    QCOMPARE(fillMarkers("%2 %1", QString("a"), QString("b")), QString("b a"));
    QCOMPARE(fillMarkers("nothing"), QString("nothing"));
}

void PresentationTest::fillsNumbers()
{
    QCOMPARE(fillMarkers("[%1 %2]", -7, QString("x")), QString("[-7 x]"));
}

/// Filling these would take 70,000 times 70,000 units, more than Qt can count.
void PresentationTest::leavesWhatWouldNotFit()
{
    const QString pattern = QString("%2").repeated(70000);
    const QString value(70000, 'x');
    QCOMPARE(fillMarkers("%1", pattern, value), pattern);
    QCOMPARE(fillMarkers("%1 %2", value, QString("y")), value + " y");
}

void PresentationTest::laterValuesFillMarkersInEarlierOnes()
{
    // With a = "%2", the second call finds %2 twice and fills both.
    QCOMPARE(fillMarkers("%1 + %2", QString("%2"), QString("b")), QString("b + b"));
    // With a lower number inside, the next value goes there and the rest moves on.
    QCOMPARE(fillMarkers("%1 %2 %3", QString("a"), QString("%1"), QString("c")), QString("a c %3"));
}

QTEST_GUILESS_MAIN(PresentationTest)

#include "PresentationTest.moc"
