#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include "operations/common/ValueText.h"

#include <QDate>
#include <QtTest>

#include <limits>
#include <new>

class ValueTextTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void separatedText();
    void manyElements();
    void tooLarge();
    void deeplyNested();
    void listLike_data();
    void listLike();
};

namespace {

using List = QVariantList;

} // namespace

void ValueTextTest::text_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("invalid") << QVariant() << "";
    QTest::newRow("null string") << QVariant(QString()) << "";
    QTest::newRow("string") << QVariant(" 文本 ") << " 文本 ";
    QTest::newRow("lone surrogate") << QVariant(QString(QChar(0xDC00))) << QString(QChar(0xDC00));
    QTest::newRow("true") << QVariant(true) << "true";
    QTest::newRow("false") << QVariant(false) << "false";
    QTest::newRow("int") << QVariant(-7) << "-7";
    QTest::newRow("long") << QVariant(9007199254740993LL) << "9007199254740993";
    QTest::newRow("whole double") << QVariant(4.0) << "4";
    QTest::newRow("tenth") << QVariant(0.1) << "0.1";
    QTest::newRow("sum of tenths") << QVariant(0.1 + 0.2) << "0.30000000000000004";
    QTest::newRow("large double") << QVariant(1e300) << "1e+300";
    QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity()) << "inf";
    QTest::newRow("date") << QVariant(QDate(2024, 2, 29)) << "2024-02-29";
    QTest::newRow("bytes") << QVariant(QByteArray("raw")) << "raw";
    QTest::newRow("empty list") << QVariant(List()) << "";
    QTest::newRow("one element") << QVariant(listOf({"a"})) << "a";
    QTest::newRow("mixed list") << QVariant(listOf({"a", 1, 2.5, true})) << "a, 1, 2.5, true";
    QTest::newRow("invalid element") << QVariant(listOf({"a", QVariant(), "b"})) << "a, , b";
    QTest::newRow("strings") << QVariant(QStringList({"x", "y"})) << "x, y";
    QTest::newRow("table") << QVariant(listOf({listOf({"x", "y"}), listOf({"z"})})) << "x, y, z";
    QTest::newRow("empty row") << QVariant(listOf({List(), "x"})) << ", x";
    QTest::newRow("deeper") << QVariant(listOf({listOf({listOf({1}), 2}), QStringList({"c"})}))
                            << "1, 2, c";
    QTest::newRow("separator inside") << QVariant(listOf({"a, b", "c"})) << "a, b, c";
    QTest::newRow("container") << QVariant::fromValue(QVector<int>({1, 2})) << "1, 2";
    QTest::newRow("map") << QVariant(QVariantMap{{"a", 1}}) << "";
}

void ValueTextTest::text()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    QCOMPARE(variantToText(value), expected);
}

void ValueTextTest::separatedText()
{
    QCOMPARE(listToText({}, "-"), QString());
    QCOMPARE(listToText({"a"}, "-"), QString("a"));
    QCOMPARE(listToText({"a", 1, "b"}, "--"), QString("a--1--b"));
    // A list within the list keeps its own separator.
    QCOMPARE(listToText({listOf({1, listOf({"x", List()})}), "y"}, "|"), QString("1, x, |y"));
}

void ValueTextTest::manyElements()
{
    constexpr int count = 3000;
    List list;
    for (int i = 0; i < count; ++i)
        list.append(QString("ab"));
    QCOMPARE(listToText(list, ","), QString("ab,").repeated(count - 1) + "ab");
}

/// More than an int can count, found out before memory is asked for.
void ValueTextTest::tooLarge()
{
    const QString large(3 << 20, 'x');
    List list;
    for (int i = 0; i < 1000; ++i)
        list.append(large);
    QVERIFY_EXCEPTION_THROWN(listToText(list, ""), std::bad_alloc);
    QCOMPARE(listToText({"a"}, large), QString("a"));
}

/// Deeper than a call within a call could go, and without rendering anything twice.
void ValueTextTest::deeplyNested()
{
    constexpr int depth = 10000;
    const QString large(100000, 'x');
    List list{large};
    for (int i = 1; i < depth; ++i)
        list = listOf({list});
    QCOMPARE(variantToText(list), large);
    list = listOf({list, "end"});
    QCOMPARE(variantToText(list), large + ", end");
}

void ValueTextTest::listLike_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("expected");
    QTest::newRow("invalid") << QVariant() << false;
    QTest::newRow("string") << QVariant("abc") << false;
    QTest::newRow("double") << QVariant(1.5) << false;
    QTest::newRow("bytes") << QVariant(QByteArray("abc")) << false;
    QTest::newRow("map") << QVariant(QVariantMap()) << false;
    QTest::newRow("list") << QVariant(List()) << true;
    QTest::newRow("strings") << QVariant(QStringList()) << true;
    QTest::newRow("container") << QVariant::fromValue(QVector<int>()) << true;
}

void ValueTextTest::listLike()
{
    QFETCH(QVariant, value);
    QFETCH(bool, expected);
    QCOMPARE(isListLike(value), expected);
}

QTEST_GUILESS_MAIN(ValueTextTest)

#include "ValueTextTest.moc"
