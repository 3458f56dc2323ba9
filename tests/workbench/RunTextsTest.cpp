#include "refhost/workbench/run/DurationText.h"
#include "refhost/workbench/run/ValueLine.h"

#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include <QTest>

/// Durations and values as the panels of the run show them.
class RunTextsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsDurations_data();
    void showsDurations();
    void showsValues_data();
    void showsValues();
    void showsLargeValuesQuickly();
};

void RunTextsTest::showsDurations_data()
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

void RunTextsTest::showsDurations()
{
    QFETCH(qint64, nanoseconds);
    QTEST(durationText(nanoseconds), "text");
}

void RunTextsTest::showsValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << QVariant() << "（没有值）";
    QTest::newRow("int") << QVariant(-3) << "-3";
    QTest::newRow("double") << QVariant(0.1) << "0.1";
    QTest::newRow("bool") << QVariant(true) << "true";
    QTest::newRow("empty text") << QVariant("") << "\"\"";
    QTest::newRow("text") << QVariant("你好") << "\"你好\"";
    QTest::newRow("controls") << QVariant("a\tb\r\n\a") << R"("a\tb\r\n\u0007")";
    QTest::newRow("spaces") << QVariant(QString(" a") + QChar(0xa0)) << R"(" a\u00a0")";
    QTest::newRow("quote and backslash") << QVariant(R"(a"b\n)") << R"("a\"b\\n")";
    QTest::newRow("half a pair") << QVariant(QString(QChar(0xd83d))) << R"("\ud83d")";
    QTest::newRow("a pair") << QVariant("😀") << "\"😀\"";
    QTest::newRow("just short enough") << QVariant("1234567890") << "\"1234567890\"";
    QTest::newRow("long") << QVariant("1234567890x") << "\"1234567890\"…（共 11 个单元）";
    QTest::newRow("pair at the cut") << QVariant("123456789😀") << "\"123456789\"…（共 11 个单元）";
    QTest::newRow("empty list") << QVariant(QVariantList()) << "[]";
    QTest::newRow("list") << QVariant(listOf({1, "a"})) << "[1, \"a\"]";
    QTest::newRow("long list") << QVariant(listOf({1, 2, 3, 4, 5})) << "[1, 2, 3, …（共 5 项）";
    QTest::newRow("table") << QVariant(listOf({QVariant(listOf({1})), QVariant(listOf({}))}))
                           << "[[1], []]";
}

void RunTextsTest::showsValues()
{
    QFETCH(QVariant, value);
    QTEST(ValueLine::of(value, 10), "text");
}

void RunTextsTest::showsLargeValuesQuickly()
{
    const QString text(16 * 1024 * 1024, QLatin1Char('x'));
    QVariantList list;
    for (int i = 0; i < 1000000; ++i)
        list.append(text);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 100; ++i) {
        QVERIFY(ValueLine::of(text).size() < 100);
        QVERIFY(ValueLine::of(list).size() < 200);
    }
    QVERIFY(clock.elapsed() < 1000);
}

QTEST_GUILESS_MAIN(RunTextsTest)
#include "RunTextsTest.moc"
