#include "tests/support/OperationSuite.h"
#include "tests/support/RecordingTranslator.h"

#include "operations/TextSplitOperation.h"

#include <QtTest>

class TextSplitOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextSplitOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;

private Q_SLOTS:
    void sentencesAreTranslated();
};

OperationSuite::Facts TextSplitOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextSplitOperation";
    facts.typeId = "text.split";
    facts.typeName = "分割文本";
    facts.icon = ":/images/text_split.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",
        "prop_splitMode = 分隔符类型",
        "editor_splitMode = COMBO",
        "choices_splitMode = 固定宽度|自定义字符",
        "prop_width = 宽度",
        "editor_width = NUMVAR:INT",
        "show_when_width = splitMode=0",
        "prop_separator = 分隔符",
        "editor_separator = VARREF",
        "varref_kind_separator = string",
        "show_when_separator = splitMode=1",
        "prop_resultVar = 新文本保存到列表变量",
        "editor_resultVar = VARNAME:LIST",
        "varname_type_resultVar = list",
    };
    facts.defaults = QVariantList{"", 0, "", "", ""};
    facts.summaryTexts = QStringList{"分割文本", "固定宽度"};
    facts.sentenceTexts = QStringList{"将 %1 按固定宽度 %2 分割存入 %3"};
    facts.resultType = VarType::List;
    facts.refusal = "未声明为列表，已跳过";
    facts.undeclaredRefusal = facts.refusal;
    facts.refusedTypes = {VarType::Int,  VarType::Double, VarType::String,
                          VarType::Bool, VarType::Table,  static_cast<VarType>(7)};
    return facts;
}

void TextSplitOperationTest::resultRows() const
{
    using List = QVariantList;
    const auto wide = [](const char *name, const QString &source, const QString &width,
                         const List &expected) {
        gives(name, {{"sourceText", source}, {"width", width}, {"separator", "b"}}, expected);
    };
    wide("a new step", "abc", "", {"a", "b", "c"});
    wide("two by two", "abcde", "2", {"ab", "cd", "e"});
    wide("even", "abcd", "2", {"ab", "cd"});
    wide("wider than the text", "abcde", "10", {"abcde"});
    wide("as wide as the text", "abcde", "5", {"abcde"});
    wide("with a fraction", "abcde", "2.9", {"ab", "cd", "e"});
    wide("zero", "abc", "0", {"a", "b", "c"});
    wide("below one", "abc", "0.5", {"a", "b", "c"});
    wide("negative", "abc", "-3", {"a", "b", "c"});
    wide("no number", "abc", "abc", {"a", "b", "c"});
    wide("beyond 32 bits", "abc", "1e10", {"a", "b", "c"});
    wide("nan", "abc", "nan", {"a", "b", "c"});
    wide("largest", "abc", "2147483647", {"abc"});
    wide("from a variable", "abcde", "$n", {"abc", "de"});
    wide("from an undeclared variable", "abc", "$none", {"a", "b", "c"});
    wide("from a list", "abc", "$list", {"a", "b", "c"});
    wide("empty source", "", "2", {});
    wide("missing source", "$none", "2", {});
    wide("number-like source", "12.50", "2", {"12", ".5"});
    wide("pair cut in two", "\U0001F600", "1", {QString(QChar(0xD83D)), QString(QChar(0xDE00))});

    const auto at = [](const char *name, const QString &source, const QString &separator,
                       const List &expected, int mode = 1) {
        gives(
            name,
            {{"sourceText", source}, {"splitMode", mode}, {"separator", separator}, {"width", "2"}},
            expected);
    };
    at("commas", "a,,b,", ",", {"a", "", "b", ""});
    at("separator first", ",a", ",", {"", "a"});
    at("separator only", ",", ",", {"", ""});
    at("separator absent", "abc", ",", {"abc"});
    at("case counts", "aXbxc", "x", {"aXb", "c"});
    at("no pattern", "a.b", ".", {"a", "b"});
    at("no pattern of several", "a.*b", ".*", {"a", "b"});
    at("no overlap", "aaaa", "aa", {"", "", ""});
    at("no overlap, odd", "aaa", "aa", {"", "a"});
    at("long separator", "甲——乙——丙", "——", {"甲", "乙", "丙"});
    at("empty separator", "abc", "", {"abc"});
    at("empty separator and source", "", "", {""});
    at("empty source", "", ",", {""});
    at("separator longer than the source", "a", "abc", {"a"});
    at("number-like separator", "10.52", "0.50", {"1", "2"});
    at("no escapes", "a\\nb\nc", "\\n", {"a", "b\nc"});
    at("blank separator", "a b  c", " ", {"a", "b", "", "c"});
    at("separator from a variable", "1text2", "$s", {"1", "2"});
    at("missing separator", "abc", "$none", {"abc"});
    at("beyond the BMP", "a\U0001F600b", "\U0001F600", {"a", "b"});
    at("half a pair", "a\U0001F600b", QChar(0xD83D), {"a", QString(QChar(0xDE00)) + "b"});
    at("unknown mode", "a,b", ",", {"a", "b"}, 2);
    at("negative mode", "a,b", ",", {"a", "b"}, -1);
}

void TextSplitOperationTest::presentationRows() const
{
    const auto row = [](const char *name, int mode, const QString &summary,
                        const QString &sentence) {
        shows(name,
              {{"sourceText", "$s"},
               {"splitMode", mode},
               {"width", "3"},
               {"separator", ";"},
               {"resultVar", "parts"}},
              summary, sentence);
    };
    row("width", 0, "分割文本: 类型=固定宽度 $s -> $parts", "将 $s 按固定宽度 3 分割存入 $parts");
    row("separator", 1, "分割文本: 类型=自定义字符 $s -> $parts",
        "将 $s 按自定义分隔符 ; 分割存入 $parts");
    row("unknown mode", 2, "分割文本: 类型=固定宽度 $s -> $parts", "将 $s 分割存入 $parts");
    row("negative mode", -1, "分割文本: 类型=固定宽度 $s -> $parts", "将 $s 分割存入 $parts");
    shows("marker of a later value", {{"sourceText", "%3"}, {"width", "9"}, {"resultVar", "r"}},
          "分割文本: 类型=固定宽度 $r -> %4", "将 $r 按固定宽度 9 分割存入 $r");
    shows("defaults", {}, "分割文本: 类型=固定宽度  -> ", "将  按固定宽度  分割存入 ");
}

void TextSplitOperationTest::sentencesAreTranslated()
{
    RecordingTranslator translator;
    TextSplitOperation operation;
    operation.setSplitMode(1);
    translator.takeRequests();
    operation.description();
    QCOMPARE(translator.takeRequests(),
             QStringList("TextSplitOperation|将 %1 按自定义分隔符 %2 分割存入 %3"));
    operation.setSplitMode(2);
    operation.description();
    QCOMPARE(translator.takeRequests(), QStringList("TextSplitOperation|将 %1 分割存入 %2"));
    operation.setSplitMode(1);
    operation.toString();
    QVERIFY(translator.takeRequests().contains("TextSplitOperation|自定义字符"));
}

QTEST_GUILESS_MAIN(TextSplitOperationTest)

#include "TextSplitOperationTest.moc"
