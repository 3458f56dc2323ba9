#include "tests/support/OperationSuite.h"

#include "operations/TextPadOperation.h"

#include <QtTest>

class TextPadOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextPadOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextPadOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextPadOperation";
    facts.typeId = "text.pad";
    facts.typeName = "填充文本";
    facts.icon = ":/images/text_pad.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",
        "prop_position = 填充位置",
        "editor_position = COMBO",
        "choices_position = 左边|中间|右边",
        "prop_index = 索引值",
        "editor_index = NUMVAR:INT",
        "show_when_index = position=1",
        "prop_padText = 填充文本",
        "editor_padText = VARREF",
        "varref_kind_padText = string",
        "prop_totalLength = 新文本总长度",
        "editor_totalLength = NUMVAR:INT",
        "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", 0, "", "", "", ""};
    facts.summaryTexts = QStringList{"填充文本", "左边"};
    facts.sentenceTexts = QStringList{"左边", "向 %1 的 %2 位置插入填充文本 %3（总长 %4）存入 %5"};
    return facts;
}

void TextPadOperationTest::resultRows() const
{
    const auto row = [](const char *name, const QString &source, const QString &fill,
                        const QString &total, int position, const QString &expected,
                        const QString &index = {}) {
        gives(name,
              {{"sourceText", source},
               {"padText", fill},
               {"totalLength", total},
               {"position", position},
               {"index", index}},
              expected);
    };
    row("left", "42", "ab*", "5", 0, "ab*42");
    row("number-like fill", "42", "000", "5", 0, "042");
    row("never repeated", "7", "0", "3", 0, "07");
    row("source longer than the total, left", "abcdef", "xyz", "4", 0, "abcdef");
    row("source longer than the total, middle", "abcdef", "xyz", "4", 1, "abcdef", "2");
    row("source longer than the total, right", "abcdef", "xyz", "4", 2, "abcdef");
    row("source as long as the total", "abcd", "xyz", "4", 2, "abcd");
    row("no total", "abc", "xyz", "", 2, "abcxyz");
    row("cut to the total", "abc", "xyz", "4", 2, "abcx");
    row("cut to the total on the left", "abc", "xyz", "5", 0, "xyabc");
    row("cut to the total in the middle", "abc", "xyz", "5", 1, "axybc", "1");
    row("total beyond the fill", "abc", "xyz", "100", 2, "abcxyz");
    row("largest total", "abc", "xyz", "2147483647", 2, "abcxyz");
    row("total zero", "abc", "xyz", "0", 2, "abcxyz");
    row("negative total", "abc", "xyz", "-1", 2, "abcxyz");
    row("total below one", "abc", "xyz", "0.9", 2, "abcxyz");
    row("total one", "", "xyz", "1", 2, "x");
    row("total with a fraction", "abc", "xyz", "4.9", 2, "abcx");
    row("total that is no number", "abc", "xyz", "many", 2, "abcxyz");
    row("total beyond 32 bits", "abc", "xyz", "1e10", 2, "abcxyz");
    row("total that is nan", "abc", "xyz", "nan", 2, "abcxyz");
    row("total from a variable", "ab", "xyz", "$n", 2, "abx");
    row("total from an undeclared variable", "ab", "xyz", "$none", 2, "abxyz");
    row("middle", "abcd", "-", "", 1, "ab-cd", "2");
    row("middle, index beyond the end", "abcd", "-", "", 1, "abcd-", "10");
    row("middle, index at the end", "abcd", "-", "", 1, "abcd-", "4");
    row("middle, negative index", "abcd", "-", "", 1, "-abcd", "-3");
    row("middle, index with a fraction", "abcd", "-", "", 1, "ab-cd", "2.9");
    row("middle, empty index", "abcd", "-", "", 1, "-abcd", "");
    row("middle, index that is no number", "abcd", "-", "", 1, "-abcd", "x");
    row("middle, index beyond 32 bits", "abcd", "-", "", 1, "-abcd", "1e10");
    row("middle, index from a variable", "abcd", "-", "", 1, "abc-d", "$n");
    row("index means nothing on the left", "abcd", "-", "", 0, "-abcd", "2");
    row("index means nothing on the right", "abcd", "-", "", 2, "abcd-", "2");
    row("unknown position", "abc", "x", "", 5, "xabc");
    row("negative position", "abc", "x", "", -1, "xabc");
    row("empty fill", "abc", "", "9", 0, "abc");
    row("empty fill in the middle", "abc", "", "9", 1, "abc", "1");
    row("empty source", "", "xyz", "2", 0, "xy");
    row("fill from a list", "a", "$list", "5", 2, "ax, 1");
    row("missing fill", "abc", "$none", "9", 0, "abc");
    row("inside a surrogate pair", "\U0001F600", "-", "", 1,
        QString(QChar(0xD83D)) + "-" + QChar(0xDE00), "1");
}

void TextPadOperationTest::presentationRows() const
{
    const auto row = [](const char *name, int position, const QString &summary,
                        const QString &sentence) {
        shows(name,
              {{"sourceText", "$n"},
               {"padText", "0"},
               {"totalLength", "5"},
               {"position", position},
               {"index", "7"},
               {"resultVar", "r"}},
              summary, sentence);
    };
    row("left", 0, "填充文本: 位置=左边 填充[0] 总长=5 $n -> $r",
        "向 $n 的 左边 位置插入填充文本 0（总长 5）存入 $r");
    row("middle", 1, "填充文本: 位置=中间 填充[0] 总长=5 $n -> $r",
        "向 $n 的 中间 位置插入填充文本 0（总长 5）存入 $r");
    row("right", 2, "填充文本: 位置=右边 填充[0] 总长=5 $n -> $r",
        "向 $n 的 右边 位置插入填充文本 0（总长 5）存入 $r");
    row("unknown position", 3, "填充文本: 位置=左边 填充[0] 总长=5 $n -> $r",
        "向 $n 的 左边 位置插入填充文本 0（总长 5）存入 $r");
    row("negative position", -1, "填充文本: 位置=左边 填充[0] 总长=5 $n -> $r",
        "向 $n 的 左边 位置插入填充文本 0（总长 5）存入 $r");
    shows("marker of a later value",
          {{"sourceText", "a"}, {"padText", "%5"}, {"totalLength", "9"}, {"resultVar", "r"}},
          "填充文本: 位置=左边 填充[a] 总长=9 a -> $r",
          "向 a 的 左边 位置插入填充文本 $r（总长 9）存入 $r");
    shows("defaults", {}, "填充文本: 位置=左边 填充[] 总长=  -> ",
          "向  的 左边 位置插入填充文本 （总长 ）存入 ");
}

QTEST_GUILESS_MAIN(TextPadOperationTest)

#include "TextPadOperationTest.moc"
