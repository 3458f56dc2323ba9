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
    void countsTheLowestMarkerOnly();
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
    QCOMPARE(fillMarkers("%1", pattern, 7), QString("7").repeated(70000));
    QCOMPARE(fillMarkers("%1 %2", value, QString("y")), value + " y");
    // Within an int, but not within a text.
    const QString fewer = QString("%2").repeated(40000);
    QCOMPARE(fillMarkers("%1", fewer, QString(40000, 'x')), fewer);
}

/// Only the lowest marker is filled, so that others cost nothing.
void PresentationTest::countsTheLowestMarkerOnly()
{
    const QString value(70000, 'x');
    const auto check = [&](const QString &others) {
        const QString pattern = "%1" + others.repeated(70000);
        QCOMPARE(fillMarkers(pattern, value), pattern.arg(value));
    };
    check("%");
    check("%% ");
    check("%L");
    check("%L9");
    check("%99");
    check("%20");
    check("%05");
    check("%x1");
    // Two digits at most, and any digits.
    const QString eleven = QString("%111").repeated(3) + "%12";
    QCOMPARE(fillMarkers(eleven, value), eleven.arg(value));
    const QString arabic = QString("%٣%4");
    QCOMPARE(fillMarkers(arabic, value), arabic.arg(value));
    // The marker that is filled is the lowest one wherever it stands, with an L or without.
    for (const QString &marker : {QString("%2"), QString("%L2"), QString("%02"), QString("%0")}) {
        const QString pattern = "%3" + marker.repeated(70000);
        QCOMPARE(fillMarkers(pattern, value), pattern);
    }
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
