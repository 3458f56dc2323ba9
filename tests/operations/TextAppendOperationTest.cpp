#include "tests/support/OperationSuite.h"

#include "operations/TextAppendOperation.h"

#include <QtTest>

class TextAppendOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextAppendOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextAppendOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextAppendOperation";
    facts.typeId = "text.append";
    facts.typeName = "添加文本";
    facts.icon = ":/images/text_append.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",
        "prop_appendText = 要添加的文本",
        "editor_appendText = VARREF",
        "varref_kind_appendText = string",
        "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", "", ""};
    facts.summaryTexts = QStringList{"添加文本"};
    facts.sentenceTexts = QStringList{"将 %1 添加到 %2 之后，存入 %3"};
    return facts;
}

void TextAppendOperationTest::resultRows() const
{
    const auto row = [](const char *name, const QString &source, const QString &added,
                        const QString &expected) {
        gives(name, {{"sourceText", source}, {"appendText", added}}, expected);
    };
    row("both empty", "", "", "");
    row("literals", "abc", "def", "abcdef");
    row("chinese", "文本", "操作", "文本操作");
    row("number-like source", "007", "x", "7x");
    row("number-like addition", "abc", "1.50", "abc1.5");
    row("two numbers are not added", "1", "2", "12");
    row("spaces of a text are kept", " a ", " b", " a  b");
    row("spaces of a number are not", " 5 ", " 6 ", "56");
    row("reference", "$s", "!", "text!");
    row("reference added", ">", "$s", ">text");
    row("same variable twice", "$s", "$s", "texttext");
    row("result as source", "$r", "+", "+");
    row("list", "$list", ".", "x, 1, y, z.");
    row("list member", "n=", "$list.Count", "n=3");
    row("table member", "$table.Columns", "$table.Rows", "22");
    row("missing variable", "$none", "b", "b");
    row("unknown member", "a", "$s.Count", "a");
    row("dollar alone", "$", "$", "$$");
    row("no escapes", "a", "\\n", "a\\n");
    row("line feed", "a\n", "b", "a\nb");
    row("surrogates joined", QChar(0xD83D), QChar(0xDE00), "\U0001F600");
    row("null character", QChar(0), "b", QString(QChar(0)) + "b");
}

void TextAppendOperationTest::presentationRows() const
{
    const auto row = [](const char *name, const QString &source, const QString &added,
                        const QString &result, const QString &summary, const QString &sentence) {
        shows(name, {{"sourceText", source}, {"appendText", added}, {"resultVar", result}}, summary,
              sentence);
    };
    row("all set", "$a", "x", "r", "添加文本: $a + x -> $r", "将 x 添加到 $a 之后，存入 $r");
    row("result with dollar", "$a", "x", "$r", "添加文本: $a + x -> $r",
        "将 x 添加到 $a 之后，存入 $r");
    row("defaults", "", "", "", "添加文本:  +  -> ", "将  添加到  之后，存入 ");
    row("numbers as stored", "007", "1.50", "r", "添加文本: 007 + 1.50 -> $r",
        "将 1.50 添加到 007 之后，存入 $r");
    row("marker of a later value", "%3", "x", "r", "添加文本: x + x -> $r",
        "将 x 添加到 $r 之后，存入 $r");
    row("marker of an earlier value", "%1", "x", "r", "添加文本: x + $r -> %4",
        "将 x 添加到 $r 之后，存入 %3");
    row("marker in the added text", "a", "%2", "r", "添加文本: a + $r -> %4",
        "将 a 添加到 a 之后，存入 $r");
    row("marker beyond the pattern", "%9", "x", "r", "添加文本: %9 + x -> $r",
        "将 x 添加到 %9 之后，存入 $r");
    row("percent signs", "%", "100%", "r", "添加文本: % + 100% -> $r",
        "将 100% 添加到 % 之后，存入 $r");
}

QTEST_GUILESS_MAIN(TextAppendOperationTest)

#include "TextAppendOperationTest.moc"
