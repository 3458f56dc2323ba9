#include "tests/support/QuietTest.h"

#include "operations/common/Concatenation.h"

#include <QtTest>

#include <limits>
#include <new>

class ConcatenationTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void putsTogether();
    void sizeOfTheText();
    void refusesWhatNoTextHolds_data();
    void refusesWhatNoTextHolds();
};

void ConcatenationTest::putsTogether()
{
    QCOMPARE(concatenated({}), QString());
    QCOMPARE(concatenated({QStringView()}), QString());
    QCOMPARE(concatenated({u"a", QStringView(), u"bc"}), QString("abc"));
    QVERIFY(concatenated({QStringView(), QString()}).isNull());
    QVERIFY(!concatenated({QStringView(), u""}).isNull());
    const QString text = "甲乙丙";
    QCOMPARE(concatenated({QStringView(text).mid(1), text}), QString("乙丙甲乙丙"));
}

void ConcatenationTest::sizeOfTheText()
{
    QCOMPARE(unwrittenText(0).size(), 0);
    QCOMPARE(unwrittenText(5).size(), 5);
}

void ConcatenationTest::refusesWhatNoTextHolds_data()
{
    QTest::addColumn<qint64>("size");
    QTest::newRow("most of an int") << qint64(std::numeric_limits<int>::max());
    QTest::newRow("beyond an int") << qint64(std::numeric_limits<int>::max()) + 1;
    QTest::newRow("once around an int") << (qint64(1) << 32) + 5;
}

void ConcatenationTest::refusesWhatNoTextHolds()
{
    QFETCH(qint64, size);
    QVERIFY_EXCEPTION_THROWN(unwrittenText(size), std::bad_alloc);
}

QTEST_GUILESS_MAIN(ConcatenationTest)

#include "ConcatenationTest.moc"
