#include "tests/support/QuietTest.h"

#include "operations/common/Truncation.h"

#include <QtTest>

#include <climits>
#include <limits>

class TruncationTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void truncation_data();
    void truncation();
};

void TruncationTest::truncation_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("expected");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("negative zero") << -0.0 << 0;
    QTest::newRow("2.9") << 2.9 << 2;
    QTest::newRow("-0.5") << -0.5 << 0;
    QTest::newRow("-2.5") << -2.5 << -2;
    QTest::newRow("largest") << 2147483647.0 << INT_MAX;
    QTest::newRow("largest and a fraction") << 2147483647.9 << INT_MAX;
    QTest::newRow("one too large") << 2147483648.0 << INT_MIN;
    QTest::newRow("smallest") << -2147483648.0 << INT_MIN;
    QTest::newRow("smallest and a fraction") << -2147483648.9 << INT_MIN;
    QTest::newRow("next above the smallest") << -2147483647.9 << -2147483647;
    QTest::newRow("one too small") << -2147483649.0 << INT_MIN;
    QTest::newRow("huge") << 1e300 << INT_MIN;
    QTest::newRow("infinite") << infinity << INT_MIN;
    QTest::newRow("negative infinite") << -infinity << INT_MIN;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << INT_MIN;
    QTest::newRow("denormal") << 5e-324 << 0;
}

void TruncationTest::truncation()
{
    QFETCH(double, number);
    QFETCH(int, expected);
    QCOMPARE(truncateToInt(number), expected);
}

QTEST_GUILESS_MAIN(TruncationTest)

#include "TruncationTest.moc"
