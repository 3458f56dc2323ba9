#include "tests/support/OperationSuite.h"

#include "operations/TextSubstringOperation.h"

#include <QtTest>

class TextSubstringOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextSubstringOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextSubstringOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextSubstringOperation";
    facts.typeId = "text.substring";
    facts.typeName = "获取子文本";
    facts.icon = ":/images/text_substring.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",
        "prop_startIndex = 起始位置（从 0 开始）",
        "editor_startIndex = NUMVAR:INT",
        "prop_lengthMode = 长度",
        "editor_lengthMode = COMBO",
        "choices_lengthMode = 到文本末尾|字符数",
        "prop_charCount = 字符数",
        "editor_charCount = NUMVAR:INT",
        "show_when_charCount = lengthMode=1",
        "prop_resultVar = 子文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", "", 0, "", ""};
    facts.summaryTexts = QStringList{"获取子文本"};
    facts.sentenceTexts = QStringList{"从 %1 的第 %2 位取 %3 个字符存入 %4"};
    return facts;
}

void TextSubstringOperationTest::resultRows() const
{
    const auto toEnd = [](const char *name, const QString &text, const QString &start,
                          const QString &expected) {
        gives(name, {{"sourceText", text}, {"startIndex", start}, {"charCount", "1"}}, expected);
    };
    const auto counted = [](const char *name, const QString &text, const QString &start,
                            const QString &count, const QString &expected) {
        gives(
            name,
            {{"sourceText", text}, {"startIndex", start}, {"lengthMode", 1}, {"charCount", count}},
            expected);
    };
    toEnd("to the end", "abcdef", "2", "cdef");
    toEnd("negative start", "abcdef", "-2", "abcdef");
    toEnd("start at the end", "abcdef", "6", "");
    toEnd("start beyond the end", "abcdef", "99", "");
    toEnd("start with a fraction", "abcdef", "1.9", "bcdef");
    toEnd("start just below zero", "abcdef", "-0.5", "abcdef");
    toEnd("empty start", "abcdef", "", "abcdef");
    toEnd("start that is no number", "abcdef", "x", "abcdef");
    toEnd("start beyond 32 bits", "abcdef", "1e10", "abcdef");
    toEnd("largest start", "abcdef", "2147483647", "");
    toEnd("infinite start", "abcdef", "inf", "abcdef");
    toEnd("start that is nan", "abcdef", "nan", "abcdef");
    toEnd("start from an integer variable", "abcdef", "$n", "def");
    toEnd("start from a double variable", "abcdef", "$d", "cdef");
    toEnd("start from a bool variable", "abcdef", "$yes", "bcdef");
    toEnd("start from an undeclared variable", "abcdef", "$none", "abcdef");
    toEnd("start from a list", "abcdef", "$list", "abcdef");
    toEnd("start from the length of a list", "abcdef", "$list.Count", "def");
    toEnd("number-like source", "0012345", "1", "2345");
    toEnd("empty source", "", "0", "");
    toEnd("missing source", "$none", "0", "");
    toEnd("inside a surrogate pair", "a\U0001F600b", "2", QString(QChar(0xDE00)) + "b");

    counted("counted", "abcdef", "2", "3", "cde");
    counted("count beyond the end", "abcdef", "2", "10", "cdef");
    counted("largest count", "abcdef", "2", "2147483647", "cdef");
    counted("count zero", "abcdef", "2", "0", "");
    counted("negative count", "abcdef", "2", "-1", "");
    counted("count that is no number", "abcdef", "2", "x", "");
    counted("empty count", "abcdef", "2", "", "");
    counted("count beyond 32 bits", "abcdef", "2", "1e10", "");
    counted("count with a fraction", "abcdef", "2", "2.9", "cd");
    counted("count from a variable", "abcdef", "1", "$n", "bcd");
    counted("count from an undeclared variable", "abcdef", "1", "$none", "");
    counted("negative start, counted", "abcdef", "-2", "2", "ab");
    counted("start beyond the end, counted", "abcdef", "9", "2", "");
    counted("pair counts as two", "\U0001F600b", "0", "2", "\U0001F600");

    gives("unknown mode", {{"sourceText", "abcdef"}, {"startIndex", "4"}, {"lengthMode", 2}}, "ef");
    gives("negative mode", {{"sourceText", "abcdef"}, {"startIndex", "4"}, {"lengthMode", -1}},
          "ef");
}

void TextSubstringOperationTest::presentationRows() const
{
    const auto row = [](const char *name, const QString &source, const QString &start,
                        const QString &count, const QString &summary, const QString &sentence) {
        shows(name,
              {{"sourceText", source},
               {"startIndex", start},
               {"charCount", count},
               {"resultVar", "r"}},
              summary, sentence);
    };
    row("all set", "$s", "2", "3", "获取子文本: $s[2,3] -> $r",
        "从 $s 的第 2 位取 3 个字符存入 $r");
    row("marker of a later value", "%3", "1", "2", "获取子文本: 1[1,2] -> $r",
        "从 2 的第 1 位取 2 个字符存入 $r");
    shows("counted mode shows the same",
          {{"sourceText", "$s"},
           {"startIndex", "2"},
           {"charCount", "3"},
           {"lengthMode", 1},
           {"resultVar", "$r"}},
          "获取子文本: $s[2,3] -> $r", "从 $s 的第 2 位取 3 个字符存入 $r");
    shows("defaults", {}, "获取子文本: [,] -> ", "从  的第  位取  个字符存入 ");
}

QTEST_GUILESS_MAIN(TextSubstringOperationTest)

#include "TextSubstringOperationTest.moc"
