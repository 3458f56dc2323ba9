#include "tests/support/OperationSuite.h"

#include "operations/TextFromNumberOperation.h"

#include <QLocale>
#include <QtTest>

class TextFromNumberOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override
    {
        return new TextFromNumberOperation(parent);
    }
    void resultRows() const override;
    void presentationRows() const override;

private Q_SLOTS:
    void groupsAsTheDefaultLocaleDoes_data();
    void groupsAsTheDefaultLocaleDoes();
};

OperationSuite::Facts TextFromNumberOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextFromNumberOperation";
    facts.typeId = "text.fromNumber";
    facts.typeName = "数值转文本";
    facts.icon = ":/images/text_fromnumber.svg";
    facts.annotations = QStringList{
        "prop_value = 原数值",
        "editor_value = NUMVAR:SCALAR",
        "prop_decimals = 小数位数",
        "editor_decimals = NUMVAR:INT",
        "prop_useGrouping = 使用千分位符",
        "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", "", false, ""};
    facts.summaryTexts = QStringList{"数值转文本"};
    facts.sentenceTexts = QStringList{"将 %1 转为文本（小数位数 %2）存入 %3"};
    return facts;
}

void TextFromNumberOperationTest::resultRows() const
{
    const auto row = [](const char *name, const QString &value, const QString &decimals,
                        const QString &expected) {
        gives(name, {{"value", value}, {"decimals", decimals}}, expected);
    };
    row("two places", "1234567.891", "2", "1234567.89");
    row("no places by default", "3.7", "", "4");
    row("negative places", "3.7", "-3", "4");
    row("places with a fraction", "3.14159", "2.9", "3.14");
    row("places that are no number", "3.7", "many", "4");
    row("places beyond 32 bits", "3.7", "2147483648", "4");
    row("infinite places", "3.7", "inf", "4");
    row("places that are nan", "3.7", "nan", "4");
    row("all the places there are", "5e-324", "1074", QString::number(5e-324, 'f', 1074));
    row("more places than there are", "-5e-324", "1075", QString::number(-5e-324, 'f', 1074) + "0");
    row("thousands of places", "0.1", "3000", QString::number(0.1, 'f', 3000));
    row("places of infinity", "inf", "3000", "inf");
    row("places of nan", "nan", "3000", "nan");
    row("places from a variable", "2", "$n", "2.000");
    row("places from an undeclared variable", "3.7", "$none", "4");
    row("places from a list", "3.7", "$list", "4");
    row("zeros behind", "1.5", "3", "1.500");
    row("negative number", "-0.126", "2", "-0.13");
    row("rounds the binary value", "2.675", "2", "2.67");
    row("half", "0.5", "0", "1");
    row("large number without exponent", "1e20", "0", "100000000000000000000");
    row("small number", "1e-7", "3", "0.000");
    row("integer variable", "$n", "1", "3.0");
    row("double variable", "$d", "1", "2.5");
    row("bool variable", "$yes", "0", "1");
    row("length of a list", "$list.Count", "0", "3");
    row("infinite", "inf", "2", "inf");
    row("nan", "nan", "2", "nan");
    row("a million places", "1", "1000000", "1." + QString(1000000, '0'));
    row("a typed number with blanks", " 5 ", "1", "5.0");

    const auto fails = [](const char *name, const QString &value, const QString &shown) {
        warns(name, {{"value", value}},
              {"[TextFromNumber] 无法解析原数值 \"" + shown + "\" ，已跳过"});
    };
    fails("words", "abc", "abc");
    fails("empty", "", "");
    fails("group separators", "1,234", "1,234");
    fails("missing variable, shown as stored", "$none", "$none");
    fails("string variable, shown as stored", "$s", "$s");
    fails("list variable", "$list", "$list");
    fails("unknown member", "$list.Size", "$list.Size");
    fails("quotes are escaped", "\"", "\\\"");
    warns("no number into an unfit variable", {{"value", "x"}, {"into", 1}},
          {"[TextFromNumber] 无法解析原数值 \"x\" ，已跳过"});
}

void TextFromNumberOperationTest::presentationRows() const
{
    shows("all set", {{"value", "$x"}, {"decimals", "2"}, {"resultVar", "r"}},
          "数值转文本: $x (小数=2, 千分位=0) -> $r", "将 $x 转为文本（小数位数 2）存入 $r");
    shows("grouping",
          {{"value", "$x"}, {"decimals", "2"}, {"useGrouping", true}, {"resultVar", "$r"}},
          "数值转文本: $x (小数=2, 千分位=1) -> $r", "将 $x 转为文本（小数位数 2）存入 $r");
    shows("marker of a later value", {{"value", "%4"}, {"decimals", "2"}, {"resultVar", "r"}},
          "数值转文本: 0 (小数=2, 千分位=0) -> $r", "将 %4 转为文本（小数位数 2）存入 $r");
    shows("defaults", {}, "数值转文本:  (小数=, 千分位=0) -> ", "将  转为文本（小数位数 ）存入 ");
}

void TextFromNumberOperationTest::groupsAsTheDefaultLocaleDoes_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("decimals");
    QTest::addColumn<QString>("expected");
    QTest::newRow("C") << "C"
                       << "1234567.891"
                       << "2"
                       << "1234567.89";
    QTest::newRow("English") << "en_US"
                             << "1234567.891"
                             << "2"
                             << "1,234,567.89";
    QTest::newRow("Chinese") << "zh_CN"
                             << "1234567.891"
                             << "0"
                             << "1,234,568";
    QTest::newRow("German") << "de_DE"
                            << "-1234567.891"
                            << "2"
                            << "-1.234.567,89";
    QTest::newRow("below a thousand") << "en_US"
                                      << "999.5"
                                      << "1"
                                      << "999.5";
    QTest::newRow("negative decimals") << "en_US"
                                       << "1234.7"
                                       << "-3"
                                       << "1,235";
    // Zeros beyond what Qt is asked for are those of the language.
    QTest::newRow("digits of its own") << "ar_EG"
                                       << "1234.5"
                                       << "2000" << QLocale("ar_EG").toString(1234.5, 'f', 2000);
    QVERIFY(QLocale("ar_EG").zeroDigit() != QLatin1Char('0'));
}

void TextFromNumberOperationTest::groupsAsTheDefaultLocaleDoes()
{
    QFETCH(QString, locale);
    QFETCH(QString, value);
    QFETCH(QString, decimals);
    const QLocale before;
    QLocale::setDefault(QLocale(locale));
    VariableScope scope;
    scope.declare("r", VarType::String);
    TextFromNumberOperation operation;
    operation.setValue(value);
    operation.setDecimals(decimals);
    operation.setUseGrouping(true);
    operation.setResultVar("r");
    operation.setVariableScope(&scope);
    operation.doOperation();
    // Without grouping the locale means nothing.
    operation.setUseGrouping(false);
    VariableScope plain = scope;
    operation.setVariableScope(&plain);
    operation.doOperation();
    QLocale::setDefault(before);
    QTEST(scope.get("r").toString(), "expected");
    QCOMPARE(plain.get("r").toString(),
             QString::number(value.toDouble(), 'f', qMax(0, decimals.toInt())));
}

QTEST_GUILESS_MAIN(TextFromNumberOperationTest)

#include "TextFromNumberOperationTest.moc"
