#include "tests/support/OperationSuite.h"

#include "operations/TextReverseOperation.h"

#include <QtTest>

class TextReverseOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextReverseOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextReverseOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextReverseOperation";
    facts.typeId = "text.reverse";
    facts.typeName = "反转文本";
    facts.icon = ":/images/text_reverse.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",          "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",   "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING", "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", ""};
    facts.summaryTexts = QStringList{"反转文本"};
    facts.sentenceTexts = QStringList{"将 %1 反转后存入 %2"};
    return facts;
}

void TextReverseOperationTest::resultRows() const
{
    const auto row = [](const char *name, const QString &source, const QString &expected) {
        gives(name, {{"sourceText", source}}, expected);
    };
    row("latin", "abc", "cba");
    row("chinese", "文本操作", "作操本文");
    row("empty", "", "");
    row("one character", "a", "a");
    row("line break pair", "a\r\nb", "b\n\ra");
    row("surrogate pair", "\U0001F600", QString(QChar(0xDE00)) + QChar(0xD83D));
    row("pair within a text", "a\U0001F600b", "b" + QString(QChar(0xDE00)) + QChar(0xD83D) + "a");
    row("combining mark", "e\u0301x", "x\u0301e");
    row("number-like source", "1.50", "5.1");
    row("list", "$list", "z ,y ,1 ,x");
    row("variable", "$s", "txet");
    row("missing source", "$none", "");
}

void TextReverseOperationTest::presentationRows() const
{
    shows("all set", {{"sourceText", "$s"}, {"resultVar", "r"}}, "反转文本: 反转 $s -> $r",
          "将 $s 反转后存入 $r");
    shows("marker of a later value", {{"sourceText", "%3"}, {"resultVar", "$r"}},
          "反转文本: 反转 $r -> $r", "将 %3 反转后存入 $r");
    shows("marker of an earlier value", {{"sourceText", "%2"}, {"resultVar", "r"}},
          "反转文本: 反转 $r -> %3", "将 $r 反转后存入 $r");
    shows("defaults", {}, "反转文本: 反转  -> ", "将  反转后存入 ");
}

QTEST_GUILESS_MAIN(TextReverseOperationTest)

#include "TextReverseOperationTest.moc"
