#include "tests/support/PlainOperation.h"
#include "tests/support/QuietTest.h"

#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyValue.h"

#include <QtTest>

Q_DECLARE_METATYPE(JsonValue)

namespace {

/// An operation with a property of every kind an editor knows.
class Sampler : public PlainOperation
{
    Q_OBJECT
    Q_CLASSINFO("prop_text", "原文本")
    Q_CLASSINFO("editor_text", "VARREF")
    Q_CLASSINFO("varref_type_text", "int,double,string")
    Q_CLASSINFO("prop_mode", "位置")
    Q_CLASSINFO("editor_mode", "COMBO")
    Q_CLASSINFO("choices_mode", "左边|中间|右边")
    Q_CLASSINFO("prop_count", "字符数")
    Q_CLASSINFO("editor_count", "NUMVAR:INT")
    Q_CLASSINFO("show_when_count", "mode=1|2")
    Q_CLASSINFO("prop_flag", "忽略大小写")
    Q_PROPERTY(QString text MEMBER m_text)
    Q_PROPERTY(int mode MEMBER m_mode)
    Q_PROPERTY(QString count MEMBER m_count)
    Q_PROPERTY(bool flag MEMBER m_flag)
    Q_PROPERTY(int plain MEMBER m_plain)
    Q_PROPERTY(double ratio MEMBER m_ratio)
    Q_PROPERTY(QStringList words MEMBER m_words)

private:
    QString m_text = "预设";
    int m_mode = 2;
    QString m_count;
    bool m_flag = true;
    int m_plain = 0;
    double m_ratio = 0.5;
    QStringList m_words;
};

} // namespace

class OperationSchemaTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void properties();
    void annotations();
    void lookUp();
    void values_data();
    void values();
    void choicesAreWrittenByLabel();
};

void OperationSchemaTest::properties()
{
    const OperationSchema schema{Sampler()};
    QCOMPARE(schema.propertyNames(),
             QStringList({"text", "mode", "count", "flag", "plain", "ratio", "words"}));
    QCOMPARE(schema.property("text")->defaultValue, QVariant("预设"));
    QCOMPARE(schema.property("mode")->defaultValue, QVariant(2));
    QCOMPARE(schema.property("flag")->defaultValue, QVariant(true));
    QCOMPARE(schema.property("words")->typeName, QString("QStringList"));
}

void OperationSchemaTest::annotations()
{
    const OperationSchema schema{Sampler()};
    const PropertySchema &text = *schema.property("text");
    QCOMPARE(text.label, QString("原文本"));
    QCOMPARE(text.editor, QString("VARREF"));
    QCOMPARE(text.restrictionKey, QString("varref_type"));
    QCOMPARE(text.restriction, QString("int,double,string"));
    QVERIFY(text.choices.isEmpty());
    QVERIFY(text.conditionName.isEmpty());

    const PropertySchema &mode = *schema.property("mode");
    QCOMPARE(mode.choices, QStringList({"左边", "中间", "右边"}));
    QVERIFY(mode.restrictionKey.isEmpty());

    const PropertySchema &count = *schema.property("count");
    QCOMPARE(count.conditionName, QString("mode"));
    QCOMPARE(count.conditionValues, QList<int>({1, 2}));

    const PropertySchema &flag = *schema.property("flag");
    QCOMPARE(flag.label, QString("忽略大小写"));
    QVERIFY(flag.editor.isEmpty());
}

void OperationSchemaTest::lookUp()
{
    const OperationSchema schema{Sampler()};
    QVERIFY(schema.property("count"));
    QVERIFY(!schema.property("Count"));
    QVERIFY(!schema.property("objectName"));
}

void OperationSchemaTest::values_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<JsonValue>("json");
    QTest::addColumn<QVariant>("value"); // invalid where it does not fit
    QTest::addColumn<QString>("message");

    const auto fits = [](const char *row, const char *property, const JsonValue &json,
                         const QVariant &value) {
        QTest::newRow(row) << property << json << value << "";
    };
    const auto fails = [](const char *row, const char *property, const JsonValue &json,
                          const char *message) {
        QTest::newRow(row) << property << json << QVariant() << message;
    };
    fits("text", "text", QString("$a"), "$a");
    fails("number for a text", "text", 5, "5; expected a string");
    fits("label", "mode", QString("中间"), 1);
    fits("number of a choice", "mode", 2, 2);
    fits("number outside the list", "mode", -7, -7);
    const char *choices = R"(expected one of "左边", "中间", "右边", or the number of a choice)";
    fails("no label", "mode", QString("上边"), qPrintable(QString("\"上边\"; ") + choices));
    fails("fraction for a choice", "mode", 1.5, qPrintable(QString("1.5; ") + choices));
    fits("numeric operand as text", "count", QString("$n"), "$n");
    fits("numeric operand as a number", "count", 12, "12");
    fits("numeric operand of 18 digits", "count", JsonValue(110105194912310021LL),
         "110105194912310021");
    fits("numeric operand beyond 64 bits", "count",
         JsonValue::WideInteger{"-123456789012345678901234567890"},
         "-123456789012345678901234567890");
    fits("minus zero as a numeric operand", "count", -0.0, "-0");
    fits("large numeric operand", "count", 1e6, "1000000");
    fits("fraction for a numeric operand", "count", -2.5, "-2.5");
    fails("bool for a numeric operand", "count", true, "true; expected a number or a string");
    fits("flag", "flag", false, false);
    fails("number for a flag", "flag", 1, "1; expected true or false");
    fits("plain int", "plain", 3, 3);
    fails("text for a plain int", "plain", QString("3"),
          "\"3\"; expected a whole number from -2147483648 to 2147483647");
    fits("double", "ratio", 0.25, 0.25);
    fails("list", "words", JsonArray{QString("a")},
          "[\"a\"]; expected nothing: a property of type QStringList cannot stand in a task file");
}

void OperationSchemaTest::values()
{
    QFETCH(QString, property);
    QFETCH(JsonValue, json);
    QFETCH(QVariant, value);
    QFETCH(QString, message);
    const OperationSchema schema{Sampler()};
    const Result<QVariant> result = propertyFromJson(json, *schema.property(property));
    QCOMPARE(bool(result), value.isValid());
    if (result)
        QCOMPARE(result.value(), value);
    else
        QCOMPARE(result.problem().toString(), message);
}

void OperationSchemaTest::choicesAreWrittenByLabel()
{
    const OperationSchema schema{Sampler()};
    QCOMPARE(jsonText(propertyToJson(1, *schema.property("mode"))), QString("\"中间\""));
    QCOMPARE(jsonText(propertyToJson(3, *schema.property("mode"))), QString("3"));
    QCOMPARE(jsonText(propertyToJson(-1, *schema.property("mode"))), QString("-1"));
    QCOMPARE(jsonText(propertyToJson(1, *schema.property("plain"))), QString("1"));
    QCOMPARE(jsonText(propertyToJson("x", *schema.property("text"))), QString("\"x\""));
    QCOMPARE(jsonText(propertyToJson(true, *schema.property("flag"))), QString("true"));
}

QTEST_GUILESS_MAIN(OperationSchemaTest)

#include "OperationSchemaTest.moc"
