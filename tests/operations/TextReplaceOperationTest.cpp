#include "tests/support/OperationSuite.h"

#include "operations/TextReplaceOperation.h"

#include <QtTest>

class TextReplaceOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextReplaceOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;
};

OperationSuite::Facts TextReplaceOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextReplaceOperation";
    facts.typeId = "text.replace";
    facts.typeName = "替换文本";
    facts.icon = ":/images/text_replace.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",          "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",   "prop_oldText = 要替换的文本",
        "editor_oldText = VARREF",           "varref_kind_oldText = string",
        "prop_ignoreCase = 忽略大小写",      "prop_newText = 替换为",
        "editor_newText = VARREF",           "varref_kind_newText = string",
        "prop_replaceScope = 替换范围",      "editor_replaceScope = COMBO",
        "choices_replaceScope = 全部|首个",  "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING", "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", "", false, "", 0, ""};
    facts.summaryTexts = QStringList{"替换文本", "全部"};
    facts.sentenceTexts = QStringList{"全部", "将 %1 中的 %2 替换为 %3（范围 %4）存入 %5"};
    return facts;
}

void TextReplaceOperationTest::resultRows() const
{
    const auto row = [](const char *name, const QString &source, const QString &search,
                        const QString &replacement, const QString &all, const QString &first,
                        bool ignoreCase = false) {
        const QByteArray firstName = QByteArray(name) + ", first";
        Settings settings{{"sourceText", source},
                          {"oldText", search},
                          {"newText", replacement},
                          {"ignoreCase", ignoreCase}};
        gives(name, settings, all);
        settings.insert("replaceScope", 1);
        gives(firstName.constData(), settings, first);
    };
    row("case counts", "aXbxc", "x", "-", "aXb-c", "aXb-c");
    row("case does not count", "aXbxc", "x", "-", "a-b-c", "a-bxc", true);
    row("no overlap", "aaa", "aa", "b", "ba", "ba");
    row("no cascade", "aa", "a", "aa", "aaaa", "aaa");
    row("empty search", "abc", "", "-", "-a-b-c-", "-abc");
    row("empty search and replacement", "abc", "", "", "abc", "abc");
    row("empty search in an empty text", "", "", "-", "-", "-");
    row("empty text", "", "a", "-", "", "");
    row("empty search, case does not count", "ab", "", "-", "-a-b-", "-ab", true);
    row("absent", "abc", "x", "-", "abc", "abc");
    row("removed", "a-b-c", "-", "", "abc", "ab-c");
    row("longer", "a,b,c", ",", " and ", "a and b and c", "a and b,c");
    row("shorter", "a and b and c", " and ", ",", "a,b,c", "a,b and c");
    row("of one length", "cat cat", "cat", "dog", "dog dog", "dog cat");
    row("whole text", "abc", "abc", "x", "x", "x");
    row("longer than the text", "ab", "abc", "x", "ab", "ab");
    row("replacement holds the search", "ab", "a", "bab", "babb", "babb");
    row("chinese", "甲乙甲", "甲", "丙丁", "丙丁乙丙丁", "丙丁乙甲");
    row("number-like search", "ab1.0", "1.0", "x", "abx.0", "abx.0");
    row("number-like replacement", "abc", "b", "1.50", "a1.5c", "a1.5c");
    row("no pattern", "a.b", ".", "-", "a-b", "a-b");
    row("no references in the replacement", "ab", "a", "\\1", "\\1b", "\\1b");
    row("beyond the BMP", "a\U0001F600b\U0001F600", "\U0001F600", "x", "axbx", "axb\U0001F600");
    row("half a pair", "\U0001F600", QChar(0xD83D), "x", "x" + QString(QChar(0xDE00)),
        "x" + QString(QChar(0xDE00)));
    row("pair without case", "\U00010428", "\U00010400", "x", "x", "x", true);
    row("list as text", "$list", ", ", "/", "x/1/y/z", "x/1, y, z");
    row("from variables", "a text", "$s", "$n", "a 3", "a 3");
    row("missing search", "ab", "$none", "-", "-a-b-", "-ab");
    row("missing replacement", "abc", "b", "$none", "ac", "ac");

    row("replaced by itself", "abab", "ab", "ab", "abab", "abab");
    row("pair beside its halves", "\U00010400" + QString(QChar(0xDC00)), QChar(0xDC00), "-",
        QString(QChar(0xD801)) + "--", QString(QChar(0xD801)) + "-" + QChar(0xDC00));
    row("half a pair ignoring case", "\U00010400" + QString(QChar(0xDC00)), QChar(0xDC00), "-",
        "\U00010400-", QString(QChar(0xD801)) + "-" + QChar(0xDC00), true);
    gives("many, made longer",
          {{"sourceText", QString("a,").repeated(3000)}, {"oldText", ","}, {"newText", "--"}},
          QString("a--").repeated(3000));
    gives("many, made shorter",
          {{"sourceText", QString("aXX").repeated(3000)}, {"oldText", "xx"}, {"ignoreCase", true}},
          QString(3000, 'a'));
    warns("too large",
          {{"sourceText", QString(70000, 'a')}, {"oldText", "a"}, {"newText", QString(70000, 'b')}},
          {"[TextReplace] 结果过大，已跳过"});

    const Settings twice{{"sourceText", "xx"}, {"oldText", "x"}, {"newText", "y"}};
    Settings unknown = twice;
    unknown.insert("replaceScope", 2);
    gives("unknown scope", unknown, QString("yy"));
    unknown.insert("replaceScope", -1);
    gives("negative scope", unknown, QString("yy"));
}

void TextReplaceOperationTest::presentationRows() const
{
    const auto row = [](const char *name, int scope, const QString &word) {
        shows(name,
              {{"sourceText", "$s"},
               {"oldText", "a"},
               {"newText", "b"},
               {"replaceScope", scope},
               {"resultVar", "out"}},
              "替换文本: a -> b (范围=" + word + ") $s -> $out",
              "将 $s 中的 a 替换为 b（范围 " + word + "）存入 $out");
    };
    row("all", 0, "全部");
    row("first", 1, "首个");
    row("unknown scope", 2, "全部");
    row("negative scope", -1, "全部");
    shows("marker in the text",
          {{"sourceText", "%2"}, {"oldText", "a"}, {"newText", "b"}, {"resultVar", "r"}},
          "替换文本: a -> b (范围=全部) $r -> %6", "将 a 中的 a 替换为 b（范围 全部）存入 $r");
    shows("marker of a later value",
          {{"sourceText", "s"}, {"oldText", "%5"}, {"newText", "b"}, {"resultVar", "$r"}},
          "替换文本: s -> b (范围=全部) s -> $r", "将 s 中的 $r 替换为 b（范围 全部）存入 $r");
    shows("defaults", {}, "替换文本:  ->  (范围=全部)  -> ", "将  中的  替换为 （范围 全部）存入 ");
}

QTEST_GUILESS_MAIN(TextReplaceOperationTest)

#include "TextReplaceOperationTest.moc"
