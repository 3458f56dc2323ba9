#include "tests/engine/RandomJson.h"
#include "tests/support/QuietTest.h"

#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonWriter.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <cmath>
#include <limits>

/// Reading and writing JSON text.
class JsonTextTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void places_data();
    void places();
    void objectsOnly_data();
    void objectsOnly();
    void membersInOrder();
    void escapes();
    void indentsAsQtDoes();
    void randomValues();
    void randomBytes();
    void hugeTexts_data();
    void hugeTexts();
};

namespace {

/// Bytes up to the end of the literal, zeros included.
template <int size>
QByteArray bytes(const char (&literal)[size])
{
    return {literal, size - 1};
}

} // namespace

void JsonTextTest::reads_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("text"); // as it is written again
    const auto row = [](const char *name, const QByteArray &json, const QString &text) {
        QTest::newRow(name) << json << text;
    };
    row("nothing in it", " { } ", "{}");
    row("white space", "\t[\r\n1 ,2 ]\n", "[1,2]");
    row("words", "[true,false,null]", "[true,false,null]");
    row("order of members", R"({"b":1,"a":2,"":3})", R"({"b":1,"a":2,"":3})");
    row("largest integer", "9223372036854775807", "9223372036854775807");
    row("smallest integer", "-9223372036854775808", "-9223372036854775808");
    row("2^53 + 1", "9007199254740993", "9007199254740993");
    row("2^63", "9223372036854775808", "9223372036854775808");
    row("2^64", "18446744073709551616", "18446744073709551616");
    row("below -2^63", "-9223372036854775809", "-9223372036854775809");
    row("zeros", "[0,-0,0.0,-0.0,0e9,-0e9]", "[0,-0.0,0.0,-0.0,0.0,-0.0]");
    row("whole doubles", "[1.0,1e2,1E+2,100e-2]", "[1.0,100.0,100.0,1.0]");
    row("doubles", "[0.1,-2.50,1e300,5e-324,1.7976931348623157e308,1e-400]",
        "[0.1,-2.5,1e+300,5e-324,1.7976931348623157e+308,0.0]");
    row("double of many digits", "0.1000000000000000055511151231257827021181583404541015625",
        "0.1");
    row("escapes", R"("\"\\\/\b\f\n\r\tA\u00e9\u4E2D\ud83d\ude00")",
        QString::fromUtf8(R"("\"\\/\b\f\n\r\tAé中😀")"));
    row("zero escape", R"("a\u0000b")", R"("a\u0000b")");
    row("other control characters", "\"\x7f\\u001f\"", "\"\x7f\\u001f\"");
    row("mark before the text", "\xEF\xBB\xBF{}", "{}");
    row("mark in a string", "\"\xEF\xBB\xBF\"", R"("\ufeff")");
    row("noncharacters", R"("\uffff\ufdd0")",
        QString("\"%1%2\"").arg(QChar(0xFFFF), QChar(0xFDD0)));
    row("replacement character", "\"\xEF\xBF\xBD\"", QString("\"%1\"").arg(QChar(0xFFFD)));
    row("high surrogate", R"("\ud800")", R"("\ud800")");
    row("low surrogate", R"("\uDFFF")", R"("\udfff")");
    row("high before a letter", R"("\ud83da")", R"("\ud83da")");
    row("high before a pair", R"("\ud83d\ud83d\ude00")", QString::fromUtf8(R"("\ud83d😀")"));
    row("low before high", R"("\ude00\ud83d")", R"("\ude00\ud83d")");
    row("high before an escape", R"("\ud83d\n")", R"("\ud83d\n")");
    row("no escape at all", R"("\\ud800")", R"("\\ud800")");
    row("escape after a backslash", R"("\\\ud800")", R"("\\\ud800")");
    row("surrogates in keys", R"({"\ud800":1,"\udc00":2})", R"({"\ud800":1,"\udc00":2})");
}

void JsonTextTest::reads()
{
    QFETCH(QByteArray, json);
    const Result<JsonValue> value = parseJson(json);
    QVERIFY2(value, qPrintable(value ? QString() : value.problem().toString()));
    QTEST(jsonText(value.value()), "text");
}

void JsonTextTest::refuses_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &json, int column,
                        const QString &reason) { QTest::newRow(name) << json << column << reason; };
    const QString end = "the end of the text; expected ";
    row("empty", "", 1, end + "a value");
    row("point first", "[.5]", 2, R"(".5"; expected a value)");
    row("plus", "+1", 1, R"("+1"; expected a value)");
    row("minus alone", "[-]", 3, R"("]"; expected a value)");
    row("leading zero", "[01]", 3, R"("1"; expected "," or "]" after an element)");
    row("no fraction", "[1.]", 4, R"("]"; expected a digit after the decimal point)");
    row("no exponent", "[1e+]", 5, R"("]"; expected a digit in the exponent)");
    row("hexadecimal", "[0x1]", 3, R"("x1"; expected "," or "]" after an element)");
    row("NaN", "[NaN]", 2, R"("NaN"; expected a value)");
    row("infinity", "-Infinity", 2, R"("Infinity"; expected a value)");
    row("word cut off", "[nul]", 2, R"("nul"; expected a value)");
    row("word in capitals", "True", 1, R"("True"; expected a value)");
    row("too large", "[1e400]", 2, "1e400; expected a number of at most 1.7976931348623157e308");
    row("too small", "-1.8e308", 1,
        "-1.8e308; expected a number of at most 1.7976931348623157e308");
    row("too many digits", QByteArray(400, '9'), 1,
        QString(200, '9') +
            "… (400 characters); expected a number of at most 1.7976931348623157e308");
    row("single quotes", "['a']", 2, R"("'"; expected a value)");
    row("unknown escape", R"(["C:\Users"])", 5, R"(\U is no escape; expected \\ for a backslash)");
    row("hexadecimal escape", R"("\x41")", 2, R"(\x is no escape; expected \\ for a backslash)");
    row("short escape", R"("\u12")", 2,
        R"(\u12" is no escape; expected four hexadecimal digits after \u)");
    row("sign in an escape", R"("\u+123")", 2,
        R"(\u+123 is no escape; expected four hexadecimal digits after \u)");
    row("escape at the end", "\"\\", 2, R"(\ is no escape; expected \\ for a backslash)");
    row("tab", "\"a\tb\"", 3, "the control character U+0009 within a string; expected an escape");
    row("zero", bytes("\"a\0b\""), 3,
        "the control character U+0000 within a string; expected an escape");
    row("zero after the end", bytes("{}\0"), 3, R"("\u0000"; expected the end of the text)");
    row("zero for a value", bytes("[\0]"), 2, R"("\u0000"; expected a value)");
    row("open string", "[\"a", 4, end + "\" at the end of a string");
    row("open array", "[1", 3, end + R"("," or "]" after an element)");
    row("open object", R"({"a":1)", 7, end + R"("," or "}" after a member)");
    row("no key", "{1:2}", 2, R"("1"; expected a key in double quotes)");
    row("no colon", R"({"a",1})", 5, R"(","; expected ":" after a key)");
    row("comma at the end of an array", "[1,]", 4, R"("]"; expected a value)");
    row("comma at the end of an object", R"({"a":1,})", 8,
        R"("}"; expected a key in double quotes)");
    row("comment", "[1] // one", 5, R"("/"; expected the end of the text)");
    row("two values", "1 2", 3, R"("2"; expected the end of the text)");
    row("other white space",
        "[\xC2\xA0"
        "1]",
        2, QString("\"%1\"; expected a value").arg(QChar(0xA0)));
    row("mark in the middle",
        "[\xEF\xBB\xBF"
        "1]",
        2, R"("\ufeff"; expected a value)");
    row("letter of two code units", "[\xF0\x9F\x98\x80]", 2,
        QString::fromUtf8("\"😀\"; expected a value"));
    row("key twice", R"({"a":{"a":1},"a":2})", 14,
        R"(the key "a" for the second time; expected each key once)");
    row("key twice, escaped", R"({"a":1, "\u0061":2})", 9,
        R"(the key "a" for the second time; expected each key once)");
    row("key of a zero twice", R"({"\u0000":1,"\u0000":2})", 13,
        R"(the key "\u0000" for the second time; expected each key once)");
    row("byte of no text", "[\"\xE4\xB8\xAD\xff\"]", 4, "bytes that are not UTF-8");
    row("cut off letter", "[\"\xEF\xBF\"]", 3, "bytes that are not UTF-8");
    row("surrogate in UTF-8", "\"\xEF\xBF\xBD\xED\xA0\x80\"", 3, "bytes that are not UTF-8");
    row("UTF-16", bytes("{\0}\0"), 2, R"("\u0000"; expected a key in double quotes)");
}

void JsonTextTest::refuses()
{
    QFETCH(QByteArray, json);
    QFETCH(int, column);
    QFETCH(QString, reason);
    const Result<JsonValue> value = parseJson(json);
    QVERIFY2(!value, qPrintable(value ? jsonText(value.value()) : QString()));
    QCOMPARE(value.problem().reason, Problem::Reason::MalformedJson);
    QCOMPARE(value.problem().toString(),
             QString("line 1, column %1: malformed JSON (%2)").arg(column).arg(reason));
}

void JsonTextTest::places_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("place");
    const auto row = [](const char *name, const QByteArray &json, const char *place) {
        QTest::newRow(name) << json << place;
    };
    row("first line", "[?", "line 7, column 2");
    row("third line", "[\r\n\n ?", "line 9, column 2");
    row("start of a line", "[\n?", "line 8, column 1");
    row("after a mark", "\xEF\xBB\xBF?", "line 7, column 1");
    row("code units", "[\"中😀\",?", "line 7, column 8");
    row("unpaired escapes before", R"(["\ud800x\udc00",?)", "line 7, column 18");
    row("unpaired escape at the place", R"([\ud800)", "line 7, column 2");
    row("unpaired escapes in lines", "[\"\\ud800\",\n\"\\ud800\",?", "line 8, column 10");
}

void JsonTextTest::places()
{
    QFETCH(QByteArray, json);
    const Result<JsonObject> object = parseJsonObject(json, "file", 7);
    QVERIFY(!object);
    QCOMPARE(object.problem().file, QString("file"));
    QTEST(object.problem().place, "place");
}

void JsonTextTest::objectsOnly_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("found");
    const auto row = [](const char *json, const char *found) {
        QTest::newRow(json) << QByteArray(json) << found;
    };
    row("", "an empty text");
    row(" \r\n\t", "an empty text");
    row("\xEF\xBB\xBF", "an empty text");
    row("null", "null");
    row("true", "true");
    row("5", "a number");
    row("123456789012345678901", "a number");
    row("\"a\"", "a string");
    row("[1]", "an array");
}

void JsonTextTest::objectsOnly()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, found);
    const Result<JsonObject> object = parseJsonObject(json, {});
    QVERIFY(!object);
    QCOMPARE(object.problem().toString(),
             QString("line 1, column 1: %1; expected an object in braces").arg(found));
}

void JsonTextTest::membersInOrder()
{
    QStringList members;
    const auto take = [&](const QString &key, const JsonValue &value) {
        members.append(key + '=' + jsonText(value));
    };
    QVERIFY(!parseJsonMembers(R"({"b":[{"x":1}],"a":{"y":[2]},"c":3})", 1, take));
    QCOMPARE(members, QStringList({R"(b=[{"x":1}])", R"(a={"y":[2]})", "c=3"}));
    members.clear();
    const auto problem = parseJsonMembers(R"({"a":1,"b":2,"a":3})", 5, take);
    QVERIFY(problem);
    QCOMPARE(problem->place, QString("line 5, column 14"));
    QCOMPARE(members, QStringList({"a=1", "b=2"}));
    // An array has no members.
    members.clear();
    QVERIFY(parseJsonMembers(R"([{"a":1}])", 1, take));
    QCOMPARE(members, QStringList());
}

void JsonTextTest::escapes()
{
    // Every code unit alone, and as it is written.
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const QString string{QChar(unit)};
        QByteArray text;
        appendJsonString(text, string);
        const Result<JsonValue> back = parseJson(text);
        QVERIFY2(back && back.value().toString() == string, text.constData());
        const bool escaped = unit < 0x20 || unit == '"' || unit == '\\' || unit == 0xFEFF ||
                             QChar(unit).isSurrogate();
        QCOMPARE(text.contains('\\'), escaped);
    }
}

void JsonTextTest::indentsAsQtDoes()
{
    const QByteArray json =
        R"({"a":[],"b":{},"c":[1,[],{"d":null}],"e":"x\n\"","f":0.5,"g":1000000,"h":-1e300})";
    const QJsonDocument document = QJsonDocument::fromJson(json);
    QCOMPARE(indentedJson(parseJson(json).value()), document.toJson());
    QCOMPARE(indentedJson(jsonFromQt(document.object())), document.toJson());
}

void JsonTextTest::randomValues()
{
    RandomJson random(20260823);
    for (int round = 0; round < 5000; ++round) {
        const JsonValue value = random.value();
        for (const QByteArray &text : {jsonText(value).toUtf8(), indentedJson(value)}) {
            const Result<JsonValue> back = parseJson(text);
            QVERIFY2(back, text.constData());
            QVERIFY2(isSameJson(value, back.value()), text.constData());
        }
    }
}

void JsonTextTest::randomBytes()
{
    // Whatever the bytes, there is a value that is written and read again, or a place.
    QRandomGenerator random(815);
    RandomJson values(4711);
    int readable = 0;
    for (int round = 0; round < 20000; ++round) {
        QByteArray text = jsonText(values.value()).toUtf8();
        for (int changes = random.bounded(3); changes > 0; --changes) {
            const char pieces[] = "{}[],:\"\\u0dD8e-+.19 \n\t\0\xff\xED";
            const int at = random.bounded(text.size() + 1);
            const auto piece = static_cast<uint>(random.bounded(int(sizeof pieces)));
            text.replace(at, random.bounded(3), QByteArray(1, pieces[piece]));
        }
        const Result<JsonValue> value = parseJson(text);
        if (!value) {
            QVERIFY(!value.problem().place.isEmpty());
            continue;
        }
        ++readable;
        const Result<JsonValue> back = parseJson(jsonText(value.value()).toUtf8());
        QVERIFY2(back && isSameJson(value.value(), back.value()), text.constData());
    }
    QVERIFY2(readable > 1000, qPrintable(QString::number(readable)));
}

void JsonTextTest::hugeTexts_data()
{
    QTest::addColumn<QByteArray>("json");
    constexpr int size = 1000000;
    QTest::newRow("brackets") << QByteArray(size, '[');
    QTest::newRow("objects") << QByteArray(R"({"a":)").repeated(size);
    QTest::newRow("surrogates") << '"' + QByteArray(R"(\ud800)").repeated(size) + '?';
    QTest::newRow("backslashes") << '"' + QByteArray(R"(\\)").repeated(size) + '?';
    QTest::newRow("digits") << QByteArray(size, '1');
    QTest::newRow("fraction") << "0." + QByteArray(size, '1') + '?';
    QTest::newRow("lines") << QByteArray(size, '\n') + '?';
    QTest::newRow("replacement characters")
        << '"' + QByteArray("\xEF\xBF\xBD").repeated(size) + '\xff';
    QByteArray keys = "{";
    for (int i = 0; i < size / 4; ++i)
        keys += '"' + QByteArray::number(i) + "\":0,";
    QTest::newRow("keys") << keys + "\"0\":1}";
}

/// A malformed text is refused in linear time; anything quadratic would take minutes.
void JsonTextTest::hugeTexts()
{
    QFETCH(QByteArray, json);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!parseJson(json));
    QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(JsonTextTest)

#include "JsonTextTest.moc"
