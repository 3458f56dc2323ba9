#include "tests/support/OperationSuite.h"

#include "operations/TextToNumberOperation.h"

#include <QtTest>

#include <limits>

class TextToNumberOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextToNumberOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextToNumberOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextToNumberOperation";
    facts.typeId = "text.toNumber";
    facts.typeName = "文本转数值";
    facts.icon = ":/images/text_tonumber.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_type_sourceText = int,double,string",
        "prop_resultVar = 新数字保存到数值变量",
        "editor_resultVar = VARNAME:SCALAR",
        "varname_type_resultVar = scalar",
    };
    facts.defaults = QVariantList{"", ""};
    facts.summaryTexts = QStringList{"文本转数值"};
    facts.sentenceTexts = QStringList{"将 %1 解析为数值存入 %2"};
    facts.resultType = VarType::Double;
    facts.refusal = "数值类型不匹配，已跳过写入";
    facts.undeclaredRefusal = "未声明，已跳过写入";
    facts.refusedTypes = {VarType::List};
    return facts;
}

void TextToNumberOperationTest::resultRows() const
{
    const auto row = [](const char *name, const QString &source, double expected) {
        gives(name, {{"sourceText", source}}, expected);
    };
    row("whole", "42", 42.0);
    row("fraction", "-3.7", -3.7);
    row("blanks around", " 12.5 ", 12.5);
    row("exponent", "1.5e3", 1500.0);
    row("plus sign", "+7", 7.0);
    row("zeros in front", "007", 7.0);
    row("point first", ".5", 0.5);
    row("infinite", "inf", std::numeric_limits<double>::infinity());
    row("integer variable", "$n", 3.0);
    row("double variable", "$d", 2.5);
    row("length of a list", "$list.Count", 3.0);

    const auto fails = [](const char *name, const QString &source, const QString &shown) {
        warns(name, {{"sourceText", source}},
              {"[TextToNumber] 无法将 \"" + shown + "\" 解析为数值，已跳过"});
    };
    fails("words", "abc", "abc");
    fails("empty", "", "");
    fails("blank", "  ", "  ");
    fails("empty variable", "$blank", "");
    fails("missing variable", "$none", "");
    fails("comma for the point", "12,5", "12,5");
    fails("group separators", "1,000", "1,000");
    fails("hexadecimal", "0x1A", "0x1A");
    fails("letter behind", "12a", "12a");
    fails("full-width digits", "１２", "１２");
    fails("currency", "¥12", "¥12");
    fails("list of several items", "$list", "x, 1, y, z");
    fails("bool variable", "$yes", "true");
    fails("quotes are escaped", "a\"b", "a\\\"b");
    fails("line breaks are escaped", "1\n2", "1\\n2");
    warns("unread text into an undeclared variable", {{"sourceText", "x"}, {"into", 0}},
          {"[TextToNumber] 无法将 \"x\" 解析为数值，已跳过"});

    const auto into = [](const char *name, const QString &source, int type,
                         const QVariant &expected) {
        gives(name, {{"sourceText", source}, {"into", type}}, expected);
    };
    into("int", "1e3", 1, 1000);
    into("int, rounded down", "-3.7", 1, -4);
    into("int, half up", "2.5", 1, 3);
    into("int, half down", "-2.5", 1, -2);
    into("string", "-3.7", 3, QString("-3.7"));
    into("string, whole", "4.0", 3, QString("4"));
    into("bool, zero", "0", 4, false);
    into("bool, other", "0.001", 4, true);
    into("bool, nan", "nan", 4, true);
    into("table is emptied", "5", 6, QVariantList());
    into("unknown type", "5", 7, 5.0);
    warns("list", {{"sourceText", "5"}, {"into", 5}},
          {"[TextOp] 变量 \"r\" 数值类型不匹配，已跳过写入"});
    warns("undeclared", {{"sourceText", "5"}, {"into", 0}},
          {"[TextOp] 变量 \"r\" 未声明，已跳过写入"});
}

void TextToNumberOperationTest::presentationRows() const
{
    shows("all set", {{"sourceText", "$s"}, {"resultVar", "r"}}, "文本转数值: $s -> $r",
          "将 $s 解析为数值存入 $r");
    shows("marker of a later value", {{"sourceText", "%3"}, {"resultVar", "$r"}},
          "文本转数值: $r -> $r", "将 %3 解析为数值存入 $r");
    shows("defaults", {}, "文本转数值:  -> ", "将  解析为数值存入 ");
}

QTEST_GUILESS_MAIN(TextToNumberOperationTest)

#include "TextToNumberOperationTest.moc"
