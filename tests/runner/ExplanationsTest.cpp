#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QtTest>

/// The explanations of warning lines that come with a plug-in, as "oprun run" prints them.
class ExplanationsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void standsBelowItsLine();
    void languages_data();
    void languages();
    void sameExplanationOnce();
    void tracedStep();
    void rows();
    void fileOfErrors();
    void unusableFile();
    void otherPlugin();
    void longParts();

private:
    QString errorsOf(const QByteArray &steps, const QStringList &options = {},
                     const QMap<QString, QString> &environment = {}) const;

    const OprunFolder m_oprun{OPRUN_FILE};
};

namespace {

const char join[] = R"({"type": "text.join", "listVar": "x", "resultVar": "r"})";
const char joinLine[] =
    "oprun: task.json: steps[0] (text.join): [TextOp] 变量 \"x\" 不是列表类型，已跳过\n";
const char joinMeaning[] = "  what it means: there is no variable \"x\" of type list to join; the "
                           "result is an empty text; name a list variable\n";

} // namespace

QString ExplanationsTest::errorsOf(const QByteArray &steps, const QStringList &options,
                                   const QMap<QString, QString> &environment) const
{
    m_oprun.write("task.json", R"({"variables": {"x": {"type": "string"}, "n": {"type": "int"},
        "r": {"type": "string"}}, "steps": [)" +
                                   steps + "]}");
    return m_oprun.run(QStringList{"run", "task.json"} + options, environment).err;
}

void ExplanationsTest::standsBelowItsLine()
{
    QCOMPARE(errorsOf(join), QString(joinLine) + joinMeaning);
}

void ExplanationsTest::languages_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("isChinese");
    QTest::newRow("C") << ""
                       << "C" << false;
    QTest::newRow("POSIX") << ""
                           << "POSIX" << false;
    QTest::newRow("English") << ""
                             << "en_US.UTF-8" << false;
    QTest::newRow("German") << ""
                            << "de_DE.UTF-8" << false;
    QTest::newRow("Chinese") << ""
                             << "zh_CN.UTF-8" << true;
    QTest::newRow("Chinese asked for") << "zh"
                                       << "C" << true;
    QTest::newRow("English asked for") << "en"
                                       << "zh_CN.UTF-8" << false;
}

void ExplanationsTest::languages()
{
    QFETCH(QString, language);
    QFETCH(QString, locale);
    QFETCH(bool, isChinese);
    const QStringList options =
        language.isEmpty() ? QStringList() : QStringList("--lang=" + language);
    const QString last = errorsOf(join, options, {{"LC_ALL", locale}}).section('\n', 1, 1);
    QCOMPARE(last.contains("there is no variable \"x\" of type list"), !isChinese);
    QCOMPARE(last.contains("没有可供拼接的列表变量 \"x\"，结果为空文本"), isChinese);
}

void ExplanationsTest::sameExplanationOnce()
{
    const QByteArray other = R"({"type": "text.join", "listVar": "n", "resultVar": "r"})";
    const QStringList lines =
        errorsOf(QByteArray(join) + ',' + join + ',' + other).trimmed().split('\n');
    QCOMPARE(lines.size(), 5);
    QVERIFY(lines.at(1).startsWith("  what it means: there is no variable \"x\""));
    QVERIFY(lines.at(2).startsWith("oprun: task.json: steps[1]"));
    QVERIFY(lines.at(3).startsWith("oprun: task.json: steps[2]"));
    QVERIFY(lines.at(4).startsWith("  what it means: there is no variable \"n\""));
}

void ExplanationsTest::tracedStep()
{
    const QString indent(10, ' ');
    const QString expected =
        indent + "warning: [TextOp] 变量 \"x\" 不是列表类型，已跳过\n" + indent + joinMeaning;
    const QString traced = errorsOf(QByteArray(join) + ',' + join, {"--trace"});
    QCOMPARE(traced.count(expected), 2);
}

void ExplanationsTest::rows()
{
    // Of each kind the first line is explained, in the order of the rows.
    m_oprun.write("rows.txt", "a\nb\n1\nc\n");
    const QByteArray step = R"({"type": "text.toNumber", "sourceText": "$x", "resultVar": "n"})";
    for (const char *jobs : {"1", "4"}) {
        const QStringList lines =
            errorsOf(step, {"--each", "rows.txt", "--lines", "x", "--jobs", jobs, "--out", "out"})
                .trimmed()
                .split('\n');
        QCOMPARE(lines.size(), 5);
        QVERIFY(
            lines.at(0).contains("line 1: steps[0] (text.toNumber): [TextToNumber] 无法将 \"a\""));
        QVERIFY(lines.at(1).startsWith("  what it means: \"a\" cannot be read as a number"));
        QVERIFY(lines.at(2).contains("line 2: "));
        QVERIFY(lines.at(3).contains("line 4: "));
        QVERIFY(lines.at(4).contains("4 rows"));
    }
}

void ExplanationsTest::fileOfErrors()
{
    m_oprun.write("rows.txt", "a\n");
    const QByteArray step = R"({"type": "text.toNumber", "sourceText": "$x", "resultVar": "n"})";
    const QString errors = errorsOf(
        step, {"--each", "rows.txt", "--lines", "x", "--errors", "errors", "--lang", "zh"});
    QCOMPARE(errors.count('\n'), 1);
    QCOMPARE(QString::fromUtf8(m_oprun.read("errors")),
             QString("{\"line\":1,\"step\":0,\"type\":\"text.toNumber\","
                     "\"warning\":\"[TextToNumber] 无法将 \\\"a\\\" 解析为数值，已跳过\"}\n"));
}

void ExplanationsTest::unusableFile()
{
    const QString plugin = m_oprun.filePath("libCopy.so");
    QFile::copy(PLUGIN_FILE, plugin);
    const QMap<QString, QString> libraries{{"LD_LIBRARY_PATH", LIBRARY_FOLDER}};
    QCOMPARE(errorsOf(join, {"--plugin", plugin}, libraries), QString(joinLine));
    m_oprun.write("libCopy.facts.json", R"({"warning": []})");
    QCOMPARE(
        errorsOf(QByteArray(join) + ',' + join, {"--plugin", plugin}, libraries),
        QString(joinLine) + "oprun: " + m_oprun.filePath("libCopy.facts.json") +
            ": warning: unknown key; expected operations, warnings (did you mean \"warnings\"?)\n" +
            QString(joinLine).replace("steps[0]", "steps[1]"));
    // Without a warning nobody asks.
    QCOMPARE(
        errorsOf(R"({"type": "text.reverse", "resultVar": "r"})", {"--plugin", plugin}, libraries),
        QString());
}

void ExplanationsTest::otherPlugin()
{
    // The lines of one plug-in are not explained by another.
    QCOMPARE(errorsOf(R"({"type": "greet.hello", "who": "a", "resultVar": "n"})",
                      {"--plugin", GREET_PLUGIN})
                 .count("what it means"),
             0);
}

void ExplanationsTest::longParts()
{
    const QString text(100000, 'x');
    const QString errors =
        errorsOf((R"({"type": "text.toNumber", "sourceText": ")" + text + R"(", "resultVar": "n"})")
                     .toUtf8());
    const QString meaning = errors.section('\n', 1, 1);
    QVERIFY2(meaning.size() < 300, qPrintable(QString::number(meaning.size())));
    QVERIFY(meaning.startsWith("  what it means: \"xxxxx"));
}

QTEST_GUILESS_MAIN(ExplanationsTest)

#include "ExplanationsTest.moc"
