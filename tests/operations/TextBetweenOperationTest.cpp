#include "tests/support/OperationSuite.h"

#include "operations/TextBetweenOperation.h"

#include <QtTest>

class TextBetweenOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextBetweenOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextBetweenOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextBetweenOperation";
    facts.typeId = "text.between";
    facts.typeName = "截取文本";
    facts.icon = ":/images/text_between.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",
        "prop_cutMode = 截取位置",
        "editor_cutMode = COMBO",
        "choices_cutMode = 标识前|标识后|标识之间",
        "prop_startMarker = 开始标识",
        "editor_startMarker = VARREF",
        "varref_kind_startMarker = string",
        "show_when_startMarker = cutMode=1|2",
        "prop_endMarker = 结束标识",
        "editor_endMarker = VARREF",
        "varref_kind_endMarker = string",
        "show_when_endMarker = cutMode=0|2",
        "prop_ignoreCase = 忽略大小写",
        "prop_resultVar = 截取文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", 0, "", "", false, ""};
    facts.summaryTexts = QStringList{"截取文本"};
    facts.sentenceTexts = QStringList{"按标识从 %1 中截取文本存入 %2"};
    return facts;
}

void TextBetweenOperationTest::resultRows() const
{
    const auto row = [](const char *name, int mode, const QString &source, const QString &start,
                        const QString &end, const QString &expected, bool ignoreCase = false) {
        gives(name,
              {{"sourceText", source},
               {"cutMode", mode},
               {"startMarker", start},
               {"endMarker", end},
               {"ignoreCase", ignoreCase}},
              expected);
    };
    const QString pair = "key=value;";
    row("before", 0, pair, "", "=", "key");
    row("after", 1, pair, "=", "", "value;");
    row("between", 2, pair, "=", ";", "value");
    row("first pair only", 2, "a[b]c[d]", "[", "]", "b");
    row("first end marker only", 0, "a-b-c", "", "-", "a");
    row("first start marker only", 1, "a-b-c", "-", "", "b-c");
    row("one character as both markers", 2, "|x|y|", "|", "|", "x");
    row("case counts", 1, "Hello World", "world", "", "");
    row("case does not count, at the end", 1, "Hello World", "world", "", "", true);
    row("case does not count", 1, "Hello World", "hello", "", " World", true);
    row("case does not count, before", 0, "Hello World", "", "WORLD", "Hello ", true);
    row("case does not count, between", 2, "aBcD", "b", "d", "c", true);
    row("case counts, between", 2, "aBcD", "B", "d", "");
    row("end marker before the start marker", 2, "]x[", "[", "]", "");
    row("overlapping markers", 2, "aXYb", "XY", "Y", "");
    row("marker absent, before", 0, "abc", "", "x", "");
    row("marker absent, after", 1, "abc", "x", "", "");
    row("start marker absent, between", 2, "abc", "x", "c", "");
    row("end marker absent, between", 2, "abc", "a", "x", "");
    row("empty end marker, before", 0, "abc", "", "", "");
    row("empty start marker, after", 1, "abc", "", "", "abc");
    row("empty end marker, between", 2, "abc", "a", "", "");
    row("empty start marker, between", 2, "abc", "", "c", "ab");
    row("both markers empty, between", 2, "abc", "", "", "");
    row("empty source", 2, "", "a", "b", "");
    row("empty source and markers", 1, "", "", "", "");
    row("the other marker is not read, before", 0, pair, "absent", "=", "key");
    row("the other marker is not read, after", 1, pair, "=", "absent", "value;");
    row("number-like source", 1, "12.50", ".", "", "5");
    row("number-like marker", 1, "a1b", "1.0", "", "b");
    row("long markers", 2, "<b>文本</b>", "<b>", "</b>", "文本");
    row("marker from a variable", 2, "a text b", "$s", "b", " ");
    row("missing marker", 1, "abc", "$none", "", "abc");
    row("beyond the BMP", 1, "a\U0001F600b", "\U0001F600", "", "b");
    row("half a pair as marker", 1, "a\U0001F600b", QChar(0xD83D), "",
        QString(QChar(0xDE00)) + "b");

    warns("mode 3", {{"sourceText", "abc"}, {"cutMode", 3}},
          {"[TextBetween] 未知截取位置 3 ，已跳过"});
    warns("mode -1", {{"sourceText", "abc"}, {"cutMode", -1}},
          {"[TextBetween] 未知截取位置 -1 ，已跳过"});
    warns("mode 3 into an unfit variable", {{"cutMode", 3}, {"into", 1}},
          {"[TextBetween] 未知截取位置 3 ，已跳过"});
}

void TextBetweenOperationTest::presentationRows() const
{
    const auto row = [](const char *name, int mode, const QString &start, const QString &summary) {
        shows(name,
              {{"sourceText", "$s"},
               {"cutMode", mode},
               {"startMarker", start},
               {"endMarker", "]"},
               {"resultVar", "r"}},
              summary, "按标识从 $s 中截取文本存入 $r");
    };
    row("before", 0, "[", "截取文本: 位置=0 [[..]] $s -> $r");
    row("between", 2, "[", "截取文本: 位置=2 [[..]] $s -> $r");
    row("unknown mode", 7, "[", "截取文本: 位置=7 [[..]] $s -> $r");
    row("negative mode", -1, "[", "截取文本: 位置=-1 [[..]] $s -> $r");
    row("marker of a later value", 0, "%5", "截取文本: 位置=0 [$s..]] $s -> $r");
    shows("marker in the source", {{"sourceText", "%2"}, {"resultVar", "r"}},
          "截取文本: 位置=0 [..] $r -> %6", "按标识从 $r 中截取文本存入 $r");
    shows("defaults", {}, "截取文本: 位置=0 [..]  -> ", "按标识从  中截取文本存入 ");
}

QTEST_GUILESS_MAIN(TextBetweenOperationTest)

#include "TextBetweenOperationTest.moc"
