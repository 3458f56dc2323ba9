#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"
#include "tests/support/TraceText.h"

#include <QRegularExpression>
#include <QtTest>

/// "oprun run --trace": what it shows of each step.
class StepTraceTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsAStep_data();
    void showsAStep();
    void showsTheTime();
    void operandsAreThoseBeforeTheStep();
    void stepOfAnotherPlugin();
    void resultsAndStatusStay();

private:
    QString trace(const QByteArray &steps, const QStringList &more = {}) const;

    const OprunFolder m_oprun{OPRUN_FILE};
};

namespace {

const char variables[] = R"("variables": {
    "line": {"type": "string", "value": "key=value;"},
    "long": {"type": "string"},
    "parts": {"type": "list", "value": ["a", 1]},
    "many": {"type": "list", "value": ["1234567890", "1234567890", "1234567890", "1234567890",
                                       "1234567890", "1234567890"]},
    "count": {"type": "int", "value": 3},
    "part": {"type": "string"}
})";

} // namespace

QString StepTraceTest::trace(const QByteArray &steps, const QStringList &more) const
{
    m_oprun.write("task.json", QByteArray("{") + variables + ", \"steps\": [" + steps + "]}");
    return m_oprun.run(QStringList{"run", "task.json", "--trace", "--print", "part"} + more).err;
}

void StepTraceTest::showsAStep_data()
{
    QTest::addColumn<QByteArray>("step");
    QTest::addColumn<QString>("lines"); // without summary and sentence

    const auto row = [](const char *name, const char *step, const QStringList &lines) {
        QString text;
        for (const QString &line : lines)
            text += QString(10, ' ') + line + '\n';
        QTest::newRow(name) << QByteArray(step) << text;
    };
    row("references and literals",
        R"({"type": "text.append", "sourceText": "$line", "appendText": "!", "resultVar": "part"})",
        {R"(sourceText: "$line" is "key=value;")", R"(appendText: "!")",
         R"(part = "key=value;!")"});
    row("literal that travels as a number",
        R"({"type": "text.append", "sourceText": "007", "appendText": "7", "resultVar": "part"})",
        {R"(sourceText: "007" is "7")", R"(appendText: "7")", R"(part = "77")"});
    row("undeclared", R"({"type": "text.reverse", "sourceText": "$lien", "resultVar": "part"})",
        {R"(sourceText: "$lien" is "", since there is no such value)", R"(part = "")"});
    row("list as text", R"({"type": "text.reverse", "sourceText": "$parts", "resultVar": "part"})",
        {R"(sourceText: "$parts" is "a, 1")", R"(part = "1 ,a")"});
    row("numbers, and what the choice hides",
        R"({"type": "text.substring", "sourceText": "$line", "startIndex": "$parts.Count",
            "charCount": "$count", "resultVar": "part"})",
        {R"(sourceText: "$line" is "key=value;")", R"(startIndex: "$parts.Count" is 2)",
         R"(part = "y=value;")"});
    row("numbers that are none",
        R"({"type": "text.substring", "sourceText": "ab", "startIndex": "", "lengthMode": 1,
            "charCount": "2x", "resultVar": "part"})",
        {R"(sourceText: "ab")", R"(startIndex: "" is no number)", R"(charCount: "2x" is no number)",
         R"(part = "")"});
    row("variable by its name",
        R"({"type": "text.join", "listVar": "parts", "separator": "\n", "resultVar": "part"})",
        {R"(listVar: "parts" is ["a",1])", R"(separator: "\n")", R"(part = "a\n1")"});
    row("no variable of that name",
        R"({"type": "text.join", "listVar": "$parts", "separator": "-", "resultVar": "part"})",
        {R"(listVar: "$parts" is no variable)", R"(separator: "-")", R"(part = "")",
         QString::fromUtf8("warning: [TextOp] 变量 \"$parts\" 不是列表类型，已跳过"),
         "  what it means: there is no variable \"$parts\" of type list to join; the result is an "
         "empty text; name a list variable"});
    row("long list",
        R"({"type": "text.join", "listVar": "many", "separator": "", "resultVar": "count"})",
        {R"(listVar: "many" is ["1234567890","1234567890","1234567890","1234567890","123456… (6 elements))",
         R"(separator: "")",
         QString::fromUtf8("warning: [TextOp] 变量 \"count\" 未声明为字符串，已跳过"),
         "  what it means: the result is a text, and there is no variable \"count\" of type string; "
         "nothing was written; declare it as string, or name another one"});
    row("nothing to write into", R"({"type": "text.reverse", "sourceText": "ab"})",
        {R"(sourceText: "ab")", QString::fromUtf8("warning: [TextReverse] 未指定结果变量，已跳过"),
         "  what it means: no result variable is named, so the step did nothing; name one in "
         "resultVar"});
}

void StepTraceTest::showsAStep()
{
    QFETCH(QByteArray, step);
    const QString shown = withoutTimes(trace(step));
    QVERIFY2(shown.startsWith("steps[0]  "), qPrintable(shown));
    QTEST(shown.section('\n', 2), "lines");
}

void StepTraceTest::showsTheTime()
{
    const QString shown = trace(R"({"type": "text.reverse", "resultVar": "part"},
                                   {"type": "text.reverse", "resultVar": "part"})");
    const QStringList times =
        shown.split('\n').filter(QRegularExpression("^ {10}took \\d+\\.\\d µs$"));
    QCOMPARE(times.size(), 2);
    QVERIFY(shown.endsWith(times.last() + '\n'));
}

void StepTraceTest::operandsAreThoseBeforeTheStep()
{
    const QString text = QString(59, 'a') + "\U0001F600" + QString(40, 'b');
    const char *const step =
        R"({"type": "text.append", "sourceText": "x", "appendText": "$long", "resultVar": "long"})";
    const QString shown = trace(QByteArray(step) + ", " + step, {"--set", "long=" + text});
    // Half a surrogate pair is not shown.
    const QString first =
        "appendText: \"$long\" is \"" + QString(59, 'a') + "…\" (101 characters)\n";
    QVERIFY2(shown.contains(first), qPrintable(shown));
    const QString second =
        "appendText: \"$long\" is \"x" + QString(59, 'a') + "…\" (102 characters)\n";
    QVERIFY2(shown.contains(second), qPrintable(shown));
    // What is written is shown in full.
    QVERIFY2(shown.contains("          long = \"xx" + text + "\"\n"), qPrintable(shown));
}

void StepTraceTest::stepOfAnotherPlugin()
{
    m_oprun.write(
        "greet.json",
        R"({"variables": {"r": {"type": "string"}, "n": {"type": "string", "value": "世界"}},
          "steps": [{"type": "greet.hello", "who": "$n", "resultVar": "r"}]})");
    const OprunFolder::Outcome outcome =
        m_oprun.run({"run", "greet.json", "--plugin", GREET_PLUGIN, "--trace"});
    QCOMPARE(withoutTimes(outcome.err), QString("steps[0]  问候: $n\n"
                                                "          问候 $n\n"
                                                "          who: \"$n\" is \"世界\"\n"
                                                "          r = \"你好，$n\"\n"));
    QCOMPARE(outcome.status, 0);
}

void StepTraceTest::resultsAndStatusStay()
{
    m_oprun.write("warn.json", R"({"variables": {"r": {"type": "string"}}, "steps": [
          {"type": "text.reverse", "sourceText": "ab", "resultVar": "r"}, {"type": "text.reverse"}]})");
    const QStringList arguments{"run", "warn.json", "--print", "r", "--strict"};
    const OprunFolder::Outcome plain = m_oprun.run(arguments);
    const OprunFolder::Outcome traced = m_oprun.run(arguments + QStringList("--trace"));
    QCOMPARE(traced.out, QString("ba\n"));
    QCOMPARE(traced.out, plain.out);
    QCOMPARE(traced.status, 1);
    QCOMPARE(traced.status, plain.status);
}

QTEST_GUILESS_MAIN(StepTraceTest)

#include "StepTraceTest.moc"
