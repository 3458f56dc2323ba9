#include "refhost/workbench/values/DurationText.h"

#include "tests/support/QuietTest.h"

#include <QTest>

/// Durations as the panels of the run show them.
class DurationTextTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsDurations_data();
    void showsDurations();
};

void DurationTextTest::showsDurations_data()
{
    QTest::addColumn<qint64>("nanoseconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << qint64(0) << "0.0 µs";
    QTest::newRow("negative") << qint64(-5) << "0.0 µs";
    QTest::newRow("part of a microsecond") << qint64(440) << "0.4 µs";
    QTest::newRow("microseconds") << qint64(9400) << "9.4 µs";
    QTest::newRow("rounds up to two digits") << qint64(9960) << "10 µs";
    QTest::newRow("many microseconds") << qint64(240400) << "240 µs";
    QTest::newRow("nearly a millisecond") << qint64(999700) << "1.0 ms";
    QTest::newRow("milliseconds") << qint64(1200000) << "1.2 ms";
    QTest::newRow("nearly a second") << qint64(999900000) << "1.0 s";
    QTest::newRow("seconds") << qint64(3500000000) << "3.5 s";
    QTest::newRow("a quarter of an hour") << qint64(1000000000000) << "1000 s";
}

void DurationTextTest::showsDurations()
{
    QFETCH(qint64, nanoseconds);
    QTEST(durationText(nanoseconds), "text");
}

QTEST_GUILESS_MAIN(DurationTextTest)
#include "DurationTextTest.moc"
