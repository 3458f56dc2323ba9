#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonValue.h"

#include <QtTest>

#include <cmath>
#include <limits>

class JsonValueTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void fits_data();
    void fits();
    void doesNotFit_data();
    void doesNotFit();
    void text_data();
    void text();
    void toJson_data();
    void toJson();
    void specialNumbers();
    void appendedText();
};

namespace {

JsonValue json(const char *text)
{
    return parseJson(QByteArray(text)).value();
}

} // namespace

void JsonValueTest::fits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("int") << "-7" << 1 << QVariant(-7);
    QTest::newRow("largest int") << "2147483647" << 1 << QVariant(2147483647);
    QTest::newRow("smallest int") << "-2147483648" << 1 << QVariant(-2147483647 - 1);
    QTest::newRow("int with a point") << "2.0" << 1 << QVariant(2);
    QTest::newRow("double") << "2.5" << 2 << QVariant(2.5);
    QTest::newRow("whole double") << "3" << 2 << QVariant(3.0);
    QTest::newRow("infinite") << "\"-inf\"" << 2
                              << QVariant(-std::numeric_limits<double>::infinity());
    QTest::newRow("string") << "\"文本\"" << 3 << QVariant("文本");
    QTest::newRow("empty string") << "\"\"" << 3 << QVariant("");
    QTest::newRow("bool") << "true" << 4 << QVariant(true);
    QTest::newRow("empty list") << "[]" << 5 << QVariant(QVariantList());
    QTest::newRow("mixed list") << "[1, 2.5, \"a\", false, [3]]" << 5
                                << QVariant(listOf({1, 2.5, "a", false, listOf({3})}));
    QTest::newRow("large whole number in a list")
        << "[9007199254740993]" << 5 << QVariant(listOf({9007199254740993LL}));
    QTest::newRow("whole doubles in a list")
        << "[1e300, 1.0, 2e0, -0]" << 5 << QVariant(listOf({1e300, 1.0, 2.0, -0.0}));
    QTest::newRow("beyond 64 bits for a double")
        << "123456789012345678901234567890" << 2 << QVariant(123456789012345678901234567890.0);
    QTest::newRow("54 bits for a double")
        << "9007199254740993" << 2 << QVariant(9007199254740992.0);
    QTest::newRow("table") << "[[1, 2], []]" << 6
                           << QVariant(listOf({listOf({1, 2}), QVariantList()}));
}

void JsonValueTest::fits()
{
    QFETCH(QString, text);
    QFETCH(int, type);
    QFETCH(QVariant, value);
    const Result<QVariant> result =
        variantFromJson(json(text.toUtf8().constData()), static_cast<VarType>(type));
    QVERIFY(result);
    QCOMPARE(result.value(), value);
    QCOMPARE(result.value().userType(), value.userType());
}

void JsonValueTest::doesNotFit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("message");

    const QString ints = "a whole number from -2147483648 to 2147483647";
    const QString doubles = R"(a number, or one of "inf", "-inf" and "nan")";
    const QString wide = "a whole number from -9223372036854775808 to 9223372036854775807, "
                         "or a string such as ";
    QTest::newRow("fraction for an int") << "2.5" << 1 << "2.5; expected " + ints;
    QTest::newRow("too large int") << "2147483648" << 1 << "2147483648; expected " + ints;
    QTest::newRow("text for an int") << "\"2\"" << 1 << "\"2\"; expected " + ints;
    QTest::newRow("bool for an int") << "true" << 1 << "true; expected " + ints;
    QTest::newRow("null for an int") << "null" << 1 << "null; expected " + ints;
    QTest::newRow("text for a double") << "\"2.5\"" << 2 << "\"2.5\"; expected " + doubles;
    QTest::newRow("number for a string") << "1" << 3 << "1; expected a string";
    QTest::newRow("number for a bool") << "1" << 4 << "1; expected true or false";
    QTest::newRow("text for a list")
        << "\"a\"" << 5 << "\"a\"; expected an array of strings, numbers, booleans and such arrays";
    QTest::newRow("null in a list")
        << "[null]" << 5
        << "[null]; expected an array of strings, numbers, booleans and such arrays";
    QTest::newRow("object deep in a list")
        << "[[{}]]" << 5
        << "[[{}]]; expected an array of strings, numbers, booleans and such arrays";
    QTest::newRow("2^63 in a list")
        << "[[9223372036854775808]]" << 5
        << "9223372036854775808; expected " + wide + "\"9223372036854775808\"";
    QTest::newRow("below -2^63 in a table")
        << "[[-9223372036854775809]]" << 6
        << "-9223372036854775809; expected " + wide + "\"-9223372036854775809\"";
    QTest::newRow("2^63 for an int")
        << "9223372036854775808" << 1 << "9223372036854775808; expected " + ints;
    QTest::newRow("flat table") << "[[1],2]" << 6
                                << "[[1],2]; expected an array of rows, each an array";
    QTest::newRow("no type") << "1" << 0 << "1; expected a value of a known type";
}

void JsonValueTest::doesNotFit()
{
    QFETCH(QString, text);
    QFETCH(int, type);
    const Result<QVariant> result =
        variantFromJson(json(text.toUtf8().constData()), static_cast<VarType>(type));
    QVERIFY(!result);
    QCOMPARE(result.problem().reason, Problem::Reason::UnfitValue);
    QTEST(result.problem().toString(), "message");
}

void JsonValueTest::text_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value"); // invalid where the text does not fit

    QTest::newRow("string as it is") << " \"a\" " << 3 << QVariant(" \"a\" ");
    QTest::newRow("empty string") << "" << 3 << QVariant("");
    QTest::newRow("int") << "42" << 1 << QVariant(42);
    QTest::newRow("words for an int") << "forty" << 1 << QVariant();
    QTest::newRow("nothing for an int") << "" << 1 << QVariant();
    QTest::newRow("two values") << "1,2" << 1 << QVariant();
    QTest::newRow("double") << "1e3" << 2 << QVariant(1000.0);
    QTest::newRow("infinite") << "inf" << 2 << QVariant(std::numeric_limits<double>::infinity());
    QTest::newRow("bool") << "false" << 4 << QVariant(false);
    QTest::newRow("number for a bool") << "1" << 4 << QVariant();
    QTest::newRow("18 digits in a list")
        << "[110105194912310021]" << 5 << QVariant(listOf({110105194912310021LL}));
    QTest::newRow("bad escape in a list") << R"(["\q"])" << 5 << QVariant();
    QTest::newRow("list") << R"(["a", 1])" << 5 << QVariant(listOf({"a", 1}));
    QTest::newRow("open list") << R"(["a")" << 5 << QVariant();
    QTest::newRow("table") << "[[1]]" << 6 << QVariant(listOf({listOf({1})}));
}

void JsonValueTest::text()
{
    QFETCH(QString, text);
    QFETCH(int, type);
    QFETCH(QVariant, value);
    const Result<QVariant> result = variantFromText(text, static_cast<VarType>(type));
    QCOMPARE(bool(result), value.isValid());
    if (result)
        QCOMPARE(result.value(), value);
    else
        QCOMPARE(result.problem().reason, Problem::Reason::UnfitValue);
}

void JsonValueTest::toJson_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("invalid") << QVariant() << "\"\"";
    QTest::newRow("string") << QVariant("a\n\"文\"") << R"("a\n\"文\"")";
    QTest::newRow("int") << QVariant(-5) << "-5";
    QTest::newRow("long") << QVariant(9007199254740991LL) << "9007199254740991";
    QTest::newRow("double") << QVariant(2.5) << "2.5";
    QTest::newRow("whole double") << QVariant(4.0) << "4";
    QTest::newRow("not a number") << QVariant(std::nan("")) << "\"nan\"";
    QTest::newRow("64 bits") << QVariant(std::numeric_limits<qlonglong>::min())
                             << "-9223372036854775808";
    QTest::newRow("million as a double") << QVariant(1e6) << "1000000";
    QTest::newRow("2^62 as a double") << QVariant(4611686018427387904.0) << "4611686018427388000";
    QTest::newRow("2^64 as a double") << QVariant(18446744073709551616.0) << "18446744073709552000";
    QTest::newRow("large double") << QVariant(1e22) << "1e+22";
    QTest::newRow("minus zero") << QVariant(-0.0) << "-0.0";
    QTest::newRow("doubles in a list") << QVariant(listOf({4.0, -0.0, 1e22, 0.5, listOf({1e6})}))
                                       << "[4.0,-0.0,1e+22,0.5,[1000000.0]]";
    QTest::newRow("byte order mark") << QVariant(QString(QChar(0xFEFF)) + "x") << "\"\\ufeffx\"";
    QTest::newRow("bool") << QVariant(true) << "true";
    QTest::newRow("list") << QVariant(listOf({"a", 1, listOf({true})})) << "[\"a\",1,[true]]";
    QTest::newRow("strings") << QVariant(QStringList({"a", "b"})) << "[\"a\",\"b\"]";
}

void JsonValueTest::toJson()
{
    QFETCH(QVariant, value);
    QTEST(jsonText(variantToJson(value)), "expected");
}

void JsonValueTest::specialNumbers()
{
    const double values[] = {std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(), std::nan("")};
    for (const double value : values) {
        const auto back = variantFromJson(variantToJson(value), VarType::Double);
        QVERIFY(back);
        const double number = back.value().toDouble();
        QVERIFY(number == value || (std::isnan(number) && std::isnan(value)));
    }
}

void JsonValueTest::appendedText()
{
    QVariantList values{QVariant(),
                        "",
                        QString(),
                        "中文",
                        "a\"b\\c/d\b\f\n\r\t\x01\x1f\x7f<>&'",
                        QString(QChar(0xD800)),
                        QString::fromUtf8("😀"),
                        QString(QChar(0)),
                        QString(QChar(0xFFFF)),
                        0,
                        std::numeric_limits<int>::min(),
                        9007199254740993LL,
                        0.1,
                        -0.0,
                        1e300,
                        std::numeric_limits<double>::infinity(),
                        std::numeric_limits<double>::quiet_NaN(),
                        true,
                        QStringList({"a", "b\n"}),
                        QVariantList()};
    for (int unit = 0; unit < 0x300; ++unit)
        values.append(QString(QChar(unit)));
    values.append(listOf({listOf({1, "x"}), QVariantList(), "y"}));
    for (const QVariant &value : qAsConst(values)) {
        QByteArray text("before ");
        appendJsonText(text, value);
        QCOMPARE(text, "before " + jsonText(variantToJson(value)).toUtf8());
    }
}

QTEST_GUILESS_MAIN(JsonValueTest)

#include "JsonValueTest.moc"
