#include "tests/support/OperationSuite.h"

#include "operations/TextCaseOperation.h"

#include <QtTest>

class TextCaseOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextCaseOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextCaseOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextCaseOperation";
    facts.typeId = "text.case";
    facts.typeName = "转换大小写";
    facts.icon = ":/images/text_case.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",
        "prop_mode = 转换为",
        "editor_mode = COMBO",
        "choices_mode = 大写|小写|首字母大写",
        "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", 0, ""};
    facts.summaryTexts = QStringList{"转换大小写", "大写"};
    facts.sentenceTexts = QStringList{"大写", "将 %1 转换为%2，存入 %3"};
    return facts;
}

void TextCaseOperationTest::resultRows() const
{
    const auto row = [](const char *name, int mode, const QString &source,
                        const QString &expected) {
        gives(name, {{"sourceText", source}, {"mode", mode}}, expected);
    };
    row("upper", 0, "Hello World", "HELLO WORLD");
    row("lower", 1, "Hello World", "hello world");
    row("capital first", 2, "hELLO wORLD", "Hello world");
    row("empty, upper", 0, "", "");
    row("empty, lower", 1, "", "");
    row("empty, capital first", 2, "", "");
    row("capital after a blank", 2, " hello", " hello");
    row("accent", 2, "élan", "Élan");
    row("digit first", 2, "123abc", "123abc");
    row("sharp s grows", 0, "straße", "STRASSE");
    row("sharp s first stays", 2, "ßa", "ßa");
    row("ligature grows", 0, "\uFB01x", "FIX");
    row("final sigma", 1, "ΣΑΣ", "σασ");
    row("dotted capital i", 1, "İ", "i\u0307");
    row("title case letter", 2, "ǆ", "Ǆ");
    row("chinese, upper", 0, "文本 123", "文本 123");
    row("chinese, lower", 1, "文本 123", "文本 123");
    row("chinese, capital first", 2, "文本 123", "文本 123");
    row("beyond the BMP, upper", 0, "\U00010428", "\U00010400");
    row("beyond the BMP, first unit has no case", 2, "\U00010428", "\U00010428");
    row("full-width letters", 0, "ａｂ", "ＡＢ");
    // Qt takes the unit after a lone high surrogate for its other half.
    row("lone surrogate", 0, QString(QChar(0xD801)) + "ab", QString(QChar(0xD801)) + "aB");
    row("variable", 0, "$s", "TEXT");
    row("number-like source", 0, "1e3", "1000");
    row("missing source", 0, "$none", "");
    warns("mode 3", {{"sourceText", "a"}, {"mode", 3}}, {"[TextCase] 未知模式 3 ，已跳过"});
    warns("mode -1", {{"sourceText", "a"}, {"mode", -1}}, {"[TextCase] 未知模式 -1 ，已跳过"});
    warns("unknown mode into an unfit variable", {{"mode", 5}, {"into", 1}},
          {"[TextCase] 未知模式 5 ，已跳过"});
}

void TextCaseOperationTest::presentationRows() const
{
    const auto row = [](const char *name, int mode, const QString &word) {
        shows(name, {{"sourceText", "$s"}, {"mode", mode}, {"resultVar", "r"}},
              "转换大小写: 模式=" + word + " $s -> $r", "将 $s 转换为" + word + "，存入 $r");
    };
    row("upper", 0, "大写");
    row("lower", 1, "小写");
    row("capital first", 2, "首字母大写");
    row("unknown mode", 3, "大写");
    row("negative mode", -1, "大写");
    shows("marker of a later value", {{"sourceText", "%4"}, {"resultVar", "$r"}},
          "转换大小写: 模式=大写 $r -> $r", "将 %4 转换为大写，存入 $r");
    shows("defaults", {}, "转换大小写: 模式=大写  -> ", "将  转换为大写，存入 ");
}

QTEST_GUILESS_MAIN(TextCaseOperationTest)

#include "TextCaseOperationTest.moc"
