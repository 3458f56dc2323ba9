#include "tests/support/OperationSuite.h"

#include "operations/TextTrimOperation.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

class TextTrimOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextTrimOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;

private Q_SLOTS:
    void sameAsTheLoops();
    void longRunsAreNotSlow();
};

OperationSuite::Facts TextTrimOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextTrimOperation";
    facts.typeId = "text.trim";
    facts.typeName = "文本去空格";
    facts.icon = ":/images/text_trim.svg";
    facts.annotations = QStringList{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",
        "prop_mode = 位置",
        "editor_mode = COMBO",
        "choices_mode = 头部|尾部|头尾|所有",
        "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", 0, ""};
    facts.summaryTexts = QStringList{"文本去空格", "头部"};
    facts.sentenceTexts = QStringList{"头部", "去除 %1 %2的空格，存入 %3"};
    return facts;
}

void TextTrimOperationTest::resultRows() const
{
    const auto row = [](const char *name, int mode, const QString &source,
                        const QString &expected) {
        gives(name, {{"sourceText", source}, {"mode", mode}}, expected);
    };
    row("start", 0, "  a  ", "a  ");
    row("end", 1, "  a  ", "  a");
    row("both ends", 2, "  a  ", "a");
    row("everywhere", 3, "  a  ", "a");
    row("everywhere, inner tab", 3, "a b\tc", "abc");
    row("everywhere, ideographic space", 3, "甲　乙", "甲乙");
    row("both ends, inner blanks stay", 2, " a  b ", "a  b");
    row("only white space, start", 0, " \t\n", "");
    row("only white space, end", 1, " \t\n", "");
    row("only white space, both ends", 2, " \t\n", "");
    row("only white space, everywhere", 3, " \t\n", "");
    row("empty, start", 0, "", "");
    row("empty, end", 1, "", "");
    row("empty, both ends", 2, "", "");
    row("empty, everywhere", 3, "", "");
    row("nothing to trim", 2, "abc", "abc");
    row("ascii controls", 2, "\t\n\v\f\r a", "a");
    row("next line", 2,
        "\u0085"
        "a\u0085",
        "a");
    row("no-break space", 2,
        "\u00A0"
        "a\u00A0",
        "a");
    row("line and paragraph separators", 2,
        "\u2028"
        "a\u2029",
        "a");
    row("zero-width space is none", 2,
        "\u200B"
        "a\uFEFF",
        "\u200B"
        "a\uFEFF");
    row("null character is none", 2, QString(QChar(0)) + " ", QString(QChar(0)));
    row("lone surrogates stay", 3, QString(QChar(0xDE00)) + " " + QChar(0xD83D),
        QString(QChar(0xDE00)) + QChar(0xD83D));
    row("number-like source", 1, " 5 ", "5");
    row("list", 3, "$list", "x,1,y,z");
    row("missing source", 0, "$none", "");
    warns("mode 4", {{"sourceText", "a"}, {"mode", 4}}, {"[TextTrim] 未知模式 4 ，已跳过"});
    warns("mode -1", {{"sourceText", "a"}, {"mode", -1}}, {"[TextTrim] 未知模式 -1 ，已跳过"});
    warns("unknown mode into an unfit variable", {{"mode", 7}, {"into", 5}},
          {"[TextTrim] 未知模式 7 ，已跳过"});
}

void TextTrimOperationTest::presentationRows() const
{
    const auto row = [](const char *name, int mode, const QString &word) {
        shows(name, {{"sourceText", "$s"}, {"mode", mode}, {"resultVar", "r"}},
              "文本去空格: 模式=" + word + " 去空格 $s -> $r",
              "去除 $s " + word + "的空格，存入 $r");
    };
    row("start", 0, "头部");
    row("end", 1, "尾部");
    row("both ends", 2, "头尾");
    row("everywhere", 3, "所有");
    row("unknown mode", 4, "头部");
    row("negative mode", -1, "头部");
    shows("marker of a later value", {{"sourceText", "%4"}, {"resultVar", "r"}},
          "文本去空格: 模式=头部 去空格 $r -> $r", "去除 %4 头部的空格，存入 $r");
    shows("defaults", {}, "文本去空格: 模式=头部 去空格  -> ", "去除  头部的空格，存入 ");
}

namespace {

/// Trimming character by character, as it is defined.
QString trimmedByLoops(QString text, int mode)
{
    if (mode == 3) {
        QString kept;
        kept.reserve(text.size());
        for (const QChar unit : qAsConst(text)) {
            if (!unit.isSpace())
                kept.append(unit);
        }
        return kept;
    }
    if (mode == 0 || mode == 2) {
        while (!text.isEmpty() && text.at(0).isSpace())
            text.remove(0, 1);
    }
    if (mode == 1 || mode == 2) {
        while (!text.isEmpty() && text.at(text.size() - 1).isSpace())
            text.chop(1);
    }
    return text;
}

QString trimmedByOperation(const QString &text, int mode)
{
    VariableScope scope;
    scope.declare("in", VarType::String, text);
    scope.declare("out", VarType::String);
    TextTrimOperation operation;
    operation.setSourceText("$in");
    operation.setMode(mode);
    operation.setResultVar("out");
    operation.setVariableScope(&scope);
    operation.doOperation();
    return scope.get("out").toString();
}

} // namespace

void TextTrimOperationTest::sameAsTheLoops()
{
    const QString alphabet = QString("  \t\n\u00A0\u3000\u2028\u0085ab文") + QChar(0xD83D) +
                             QChar(0xDE00) + QChar(0xFEFF) + QChar(0x200B) + QChar(0);
    QRandomGenerator random(20240229);
    for (int round = 0; round < 20000; ++round) {
        QString text;
        const int size = random.bounded(12);
        for (int i = 0; i < size; ++i)
            text += alphabet.at(random.bounded(alphabet.size()));
        for (int mode = 0; mode <= 3; ++mode)
            QCOMPARE(trimmedByOperation(text, mode), trimmedByLoops(text, mode));
    }
}

void TextTrimOperationTest::longRunsAreNotSlow()
{
    const QString blanks(400000, ' ');
    QElapsedTimer timer;
    timer.start();
    for (int mode = 0; mode <= 3; ++mode) {
        QCOMPARE(trimmedByOperation(blanks, mode), QString());
        QCOMPARE(trimmedByOperation(blanks + 'x', mode).size(), mode == 1 ? blanks.size() + 1 : 1);
    }
    // Removed one by one they would take many times that, here about a hundredth.
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(TextTrimOperationTest)

#include "TextTrimOperationTest.moc"
