#include "tests/support/OperationSuite.h"

#include "operations/TextFindOperation.h"

#include <QtTest>

class TextFindOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextFindOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextFindOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextFindOperation";
    facts.typeId = "text.find";
    facts.typeName = "查询子文本";
    facts.icon = ":/images/text_find.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string", "prop_searchText = 要查找的文本",
        "editor_searchText = VARREF",      "varref_kind_searchText = string",
        "prop_ignoreCase = 忽略大小写",    "prop_resultVar = 找的位置保存到整型变量",
        "editor_resultVar = VARNAME:INT",  "varname_type_resultVar = int",
    };
    facts.defaults = QVariantList{"", "", false, ""};
    facts.summaryTexts = QStringList{"查询子文本"};
    facts.sentenceTexts = QStringList{"在 %1 中查找 %2 的位置存入 %3"};
    facts.resultType = VarType::Int;
    facts.refusal = "数值类型不匹配，已跳过写入";
    facts.undeclaredRefusal = "未声明，已跳过写入";
    facts.refusedTypes = {VarType::List};
    return facts;
}

void TextFindOperationTest::resultRows() const
{
    const auto row = [](const char *name, const QString &source, const QString &search,
                        int expected, bool ignoreCase = false) {
        gives(name, {{"sourceText", source}, {"searchText", search}, {"ignoreCase", ignoreCase}},
              expected);
    };
    row("first", "hello world", "o", 4);
    row("case counts", "hello world", "O", -1);
    row("case does not count", "hello world", "O", 4, true);
    row("at the start", "hello", "he", 0);
    row("at the end", "hello", "lo", 3);
    row("whole text", "hello", "hello", 0);
    row("empty search", "abc", "", 0);
    row("empty search in an empty text", "", "", 0);
    row("empty text", "", "a", -1);
    row("longer than the text", "ab", "abc", -1);
    row("chinese", "文本操作", "操作", 2);
    row("pair before the match", "\U0001F600x", "x", 2);
    row("pair", "a\U0001F600", "\U0001F600", 1);
    row("half a pair", "a\U0001F600", QChar(0xDE00), 2);
    row("number-like search", "a10b", "10.0", 1);
    row("number-like text", "1.50", "0", -1);
    row("accents without case", "ÉCOLE", "école", 0, true);
    row("sharp s does not match ss", "STRASSE", "straße", -1, true);
    row("pair without case", "\U00010428", "\U00010400", 0, true);
    row("variable", "some text", "$s", 5);
    row("missing search", "abc", "$none", 0);
    row("missing text", "$none", "a", -1);
    row("in a list", "$list", "y", 6);

    const auto into = [](const char *name, const QString &search, int type,
                         const QVariant &expected) {
        gives(name, {{"sourceText", "hello"}, {"searchText", search}, {"into", type}}, expected);
    };
    into("double", "o", 2, 4.0);
    into("string", "o", 3, QString("4"));
    into("string, absent", "x", 3, QString("-1"));
    into("bool, at the start", "h", 4, false);
    into("bool, later", "o", 4, true);
    into("bool, absent", "x", 4, true);
    into("table is emptied", "o", 6, QVariantList());
    into("unknown type", "o", 7, 4.0);
    warns("list", {{"sourceText", "hello"}, {"searchText", "o"}, {"into", 5}},
          {"[TextOp] 变量 \"r\" 数值类型不匹配，已跳过写入"});
    warns("undeclared", {{"sourceText", "hello"}, {"searchText", "o"}, {"into", 0}},
          {"[TextOp] 变量 \"r\" 未声明，已跳过写入"});
}

void TextFindOperationTest::presentationRows() const
{
    shows("all set", {{"sourceText", "$s"}, {"searchText", "ab"}, {"resultVar", "pos"}},
          "查询子文本: 查找 ab in $s -> $pos", "在 $s 中查找 ab 的位置存入 $pos");
    shows("marker of a later value",
          {{"sourceText", "a"}, {"searchText", "%4"}, {"resultVar", "$r"}},
          "查询子文本: 查找 $r in a -> $r", "在 a 中查找 %4 的位置存入 $r");
    shows("marker in the text", {{"sourceText", "%3"}, {"searchText", "b"}, {"resultVar", "r"}},
          "查询子文本: 查找 b in $r -> %4", "在 $r 中查找 b 的位置存入 $r");
    shows("defaults", {}, "查询子文本: 查找  in  -> ", "在  中查找  的位置存入 ");
}

QTEST_GUILESS_MAIN(TextFindOperationTest)

#include "TextFindOperationTest.moc"
