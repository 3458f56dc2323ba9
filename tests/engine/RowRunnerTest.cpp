#include "tests/support/QuietTest.h"

#include "refhost/engine/JsonFile.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/RowRunner.h"
#include "refhost/engine/TaskReader.h"

#include <QtTest>

#include <memory>

/// A task on one row after the other.
class RowRunnerTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void objects_data();
    void objects();
    void converts_data();
    void converts();
    void keepsExtraKeys_data();
    void keepsExtraKeys();
    void badObjects_data();
    void badObjects();
    void lines_data();
    void lines();
    void badLines_data();
    void badLines();
    void printed();
    void freshValuesForEachRow();
    void warningsNameTheStep();
    void withoutVariables();

private:
    Task task(const QByteArray &json = {}) const;

    std::unique_ptr<OperationCatalog> m_catalog;
};

namespace {

const char sampleTask[] = R"({
    "variables": {
        "word": {"type": "string", "value": "a"},
        "n": {"type": "int", "value": 3},
        "x": {"type": "double"},
        "on": {"type": "bool"},
        "l": {"type": "list"},
        "r": {"type": "string"}
    },
    "steps": [{"type": "text.append", "sourceText": "$word", "appendText": "$n", "resultVar": "r"}]
})";

const char warningTask[] = R"({
    "variables": {"n": {"type": "int"}},
    "steps": [{"type": "text.append", "resultVar": "n"}, {"type": "text.trim"}]
})";

RowFormat printing(const QStringList &names)
{
    return {{}, names, false};
}

RowFormat linesInto(const QString &variable)
{
    return {variable, {"r"}, true};
}

} // namespace

void RowRunnerTest::initTestCase()
{
    m_catalog = std::make_unique<OperationCatalog>(QStringList(PLUGIN_FILE));
    QVERIFY(m_catalog->failures().isEmpty());
}

Task RowRunnerTest::task(const QByteArray &json) const
{
    const auto object = parseJsonObject(json.isEmpty() ? QByteArray(sampleTask) : json, {});
    Result<Task> result = TaskReader(*m_catalog).read(object.value());
    return std::move(result.value());
}

void RowRunnerTest::objects_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("output");

    const auto row = [](const char *name, const char *json, const char *output) {
        QTest::newRow(name) << QByteArray(json) << QByteArray(output);
    };
    row("empty object", "{}", R"({"l":[],"n":3,"on":false,"r":"a3","word":"a","x":0})");
    row("all values", R"({"word":"中","n":-1,"x":2.5,"on":true,"l":[1,["b"]],"r":"old"})",
        R"({"l":[1,["b"]],"n":-1,"on":true,"r":"中-1","word":"中","x":2.5})");
    row("space around", " { \"n\" : 4 }\t",
        R"({"l":[],"n":4,"on":false,"r":"a4","word":"a","x":0})");
    row("what JSON has to escape", R"({"word":"\"\\\n\u0001\ud83d\ude00\ud800"})",
        "{\"l\":[],\"n\":3,\"on\":false,\"r\":\"\\\"\\\\\\n\\u0001😀\\ud8003\",\"word\":"
        "\"\\\"\\\\\\n\\u0001😀\\ud800\",\"x\":0}");
    row("infinite", R"({"x":"-inf"})",
        R"({"l":[],"n":3,"on":false,"r":"a3","word":"a","x":"-inf"})");
    row("numbers in a list", R"({"l":[110105194912310021,9223372036854775807,1.0,-0.0,0.1]})",
        "{\"l\":[110105194912310021,9223372036854775807,1.0,-0.0,0.1],\"n\":3,\"on\":false,"
        "\"r\":\"a3\",\"word\":\"a\",\"x\":0}");
    row("byte order mark in a text", R"({"word":"\ufeff"})",
        R"({"l":[],"n":3,"on":false,"r":"\ufeff3","word":"\ufeff","x":0})");
}

void RowRunnerTest::objects()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, output);

    RowRunner runner(task(), {});
    const RowOutcome outcome = runner.run(row, 1);
    QVERIFY2(!outcome.problem, qPrintable(outcome.problem ? outcome.problem->toString() : ""));
    QCOMPARE(outcome.output, output);
    QVERIFY(outcome.warnings.isEmpty());
}

void RowRunnerTest::converts_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("output");

    const auto row = [](const char *name, const QByteArray &value, const QByteArray &converted) {
        const QByteArray key = '"' + QByteArray(name) + "\":";
        QTest::addRow("%s: %s", name, value.constData())
            << '{' + key + value + '}' << '{' + key + converted + '}';
    };
    row("word", "99", "\"99\"");
    row("word", "-0", "\"-0\"");
    row("word", "1.50", "\"1.50\"");
    row("word", " 1E+2 ", "\"1E+2\"");
    row("word", "110105194912310021", "\"110105194912310021\"");
    row("word", "123456789012345678901234567890", "\"123456789012345678901234567890\"");
    row("word", "true", "\"true\"");
    row("word", "false", "\"false\"");
    row("n", "\"42\"", "42");
    row("n", "\"-7.0\"", "-7");
    row("n", "7.0", "7");
    row("x", "\"2.5\"", "2.5");
    row("x", "\"-inf\"", "\"-inf\"");
    row("x", "\"9007199254740992\"", "9007199254740992");
    row("x", "3", "3");
    row("on", "\"true\"", "true");
    row("on", "\"false\"", "false");
}

/// A scalar of another kind is read as "--set" reads its text.
void RowRunnerTest::converts()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, output);

    const QString name = QString::fromUtf8(row).section('"', 1, 1);
    RowRunner runner(task(), printing({name}));
    const RowOutcome outcome = runner.run(row, 1);
    QVERIFY2(!outcome.problem, qPrintable(outcome.problem ? outcome.problem->toString() : ""));
    QCOMPARE(outcome.output, output);
}

void RowRunnerTest::keepsExtraKeys_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("kept");

    const auto row = [](const char *name, const char *json, const char *kept) {
        QTest::newRow(name) << QByteArray(json) << QByteArray(kept);
    };
    row("none", R"({"word":"\"a\",{\\"})", "");
    row("number", R"({"a" : 1.50 })", R"(,"a":1.50)");
    row("around a variable", R"({"a":1,"word":"x","b":2})", R"(,"a":1,"b":2)");
    row("strings", R"({"a":"},\"","b":"\\","c":"\ud83d\ude00\ud800中"})",
        R"(,"a":"},\"","b":"\\","c":"\ud83d\ude00\ud800中")");
    row("nested", R"({"a":{"b":[1,{"c":"]"}], "word":"no"},"d":[],"e":{}})",
        R"(,"a":{"b":[1,{"c":"]"}], "word":"no"},"d":[],"e":{})");
    row("words", R"({"a":null,"b":true,"c":-1E+9})", R"(,"a":null,"b":true,"c":-1E+9)");
    row("keys", R"({"":1,"\u0062\"":2,"a:b,{":3})", R"(,"":1,"\u0062\"":2,"a:b,{":3)");
    row("wide", "{\"a\":123456789012345678901234567890}", ",\"a\":123456789012345678901234567890");
}

/// Their members come out as they are written, behind the variables.
void RowRunnerTest::keepsExtraKeys()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, kept);

    RowFormat format = printing({"n"});
    format.extra = RowFormat::Extra::Keep;
    RowRunner keeping(task(), format);
    QCOMPARE(keeping.run(row, 1).output, "{\"n\":3" + kept + '}');
    QCOMPARE(keeping.run("{}", 2).output, QByteArray("{\"n\":3}"));

    format.extra = RowFormat::Extra::Ignore;
    RowRunner ignoring(task(), format);
    QCOMPARE(ignoring.run(row, 1).output, QByteArray("{\"n\":3}"));

    format.printed.clear();
    format.extra = RowFormat::Extra::Keep;
    RowRunner without(task("{\"steps\":[]}"), format);
    const QByteArray all = without.run(R"({"a" : 1,"b":[]})", 1).output;
    QCOMPARE(all, QByteArray(R"({"a":1,"b":[]})"));
}

void RowRunnerTest::badObjects_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("text");

    using Reason = Problem::Reason;
    const auto row = [](const char *name, const QByteArray &json, Reason reason, const char *text) {
        QTest::newRow(name) << json << int(reason) << QString(text);
    };
    row("no JSON", "{\"n\":", Reason::MalformedJson,
        "line 7, column 6: malformed JSON (the end of the text; expected a value)");
    row("nothing", "", Reason::MalformedJson,
        "line 7, column 1: an empty text; expected an object in braces");
    row("array", "[1]", Reason::WrongKind,
        "line 7, column 1: an array; expected an object in braces");
    row("number", "5", Reason::WrongKind,
        "line 7, column 1: a number; expected an object in braces");
    row("two objects", "{}{}", Reason::MalformedJson,
        "line 7, column 3: malformed JSON (\"{\"; expected the end of the text)");
    row("no UTF-8", "{\"word\":\"\xff\"}", Reason::MalformedJson,
        "line 7, column 10: malformed JSON (bytes that are not UTF-8)");
    row("key twice", R"({"n":1,"n":2})", Reason::MalformedJson,
        "line 7, column 8: malformed JSON (the key \"n\" for the second time; expected each key "
        "once)");
    row("unknown variable and malformed", R"({"m":1,"n":.5})", Reason::MalformedJson,
        "line 7, column 12: malformed JSON (\".5\"; expected a value)");
    row("beyond 64 bits", R"({"l":[9223372036854775808]})", Reason::UnfitValue,
        "line 7, \"l\": 9223372036854775808; expected a whole number from -9223372036854775808 to "
        "9223372036854775807, or a string such as \"9223372036854775808\"");
    row("unknown variables", R"({"p":null,"word":7,"\"q":[1],"n":"x"})", Reason::UnknownVariable,
        "line 7: the task has no variables \"p\", \"\\\"q\"; expected l, n, on, r, word, x; "
        "\"--extra ignore\" drops such keys, \"--extra keep\" prints them");
    row("unknown variable", R"({"word":"a","m":1})", Reason::UnknownVariable,
        "line 7: the task has no variable \"m\"; expected l, n, on, r, word, x; "
        "\"--extra ignore\" drops such keys, \"--extra keep\" prints them");
    row("variable in another case", R"({"N":1})", Reason::UnknownVariable,
        "line 7: the task has no variable \"N\"; expected l, n, on, r, word, x (did you mean \"n\"?); "
        "\"--extra ignore\" drops such keys, \"--extra keep\" prints them");
    const char *const wholeNumber = "expected a whole number from -2147483648 to 2147483647";
    for (const char *text : {"\"\"", "\"x\"", "\"7.5\"", "\"2147483648\"", "\"007\"", "7.5", "true",
                             "2147483648", "null", "[1]", "\"[1]\""}) {
        row(text, "{\"n\":" + QByteArray(text) + '}', Reason::UnfitValue,
            qPrintable(QString("line 7, \"n\": %1; %2").arg(text, wholeNumber)));
    }
    for (const char *text : {"[]", "{}", "null"}) {
        row(qPrintable(QString("%1 for a text").arg(text)), "{\"word\":" + QByteArray(text) + '}',
            Reason::UnfitValue,
            qPrintable(QString("line 7, \"word\": %1; expected a string").arg(text)));
    }
    for (const char *text : {"1", "\"True\"", "\"1\"", "null"}) {
        row(qPrintable(QString("%1 for a bool").arg(text)), "{\"on\":" + QByteArray(text) + '}',
            Reason::UnfitValue,
            qPrintable(QString("line 7, \"on\": %1; expected true or false").arg(text)));
    }
    for (const char *text : {"\"9007199254740993\"", "\"1e999\"", "\"x\"", "true"}) {
        row(qPrintable(QString("%1 for a double").arg(text)), "{\"x\":" + QByteArray(text) + '}',
            Reason::UnfitValue,
            qPrintable(QString("line 7, \"x\": %1; expected a number, or one of \"inf\", \"-inf\" "
                               "and \"nan\"")
                           .arg(text)));
    }
    row("a text for a list", R"({"l":"[1]"})", Reason::UnfitValue,
        "line 7, \"l\": \"[1]\"; expected an array of strings, numbers, booleans and such arrays");
    row("null", R"({"word":null})", Reason::UnfitValue,
        "line 7, \"word\": null; expected a string");
}

void RowRunnerTest::badObjects()
{
    QFETCH(QByteArray, row);
    QFETCH(int, reason);
    QFETCH(QString, text);

    RowRunner runner(task(), {});
    const RowOutcome outcome = runner.run(row, 7);
    QVERIFY(outcome.problem);
    QCOMPARE(outcome.problem->toString(), text);
    QCOMPARE(int(outcome.problem->reason), reason);
    QCOMPARE(outcome.output, QByteArray());
}

void RowRunnerTest::lines_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("output");

    const auto row = [](const char *name, const char *variable, const QByteArray &line,
                        const QByteArray &output) {
        QTest::newRow(name) << QString(variable) << line << output;
    };
    row("text", "word", " b ", " b 3");
    row("empty", "word", "", "3");
    row("what looks like JSON", "word", "{\"n\":1}", "{\"n\":1}3");
    row("Chinese", "word", "中文", "中文3");
    row("zero character", "word", QByteArray("a\0b", 3), QByteArray("a\0b3", 4));
    row("mark in the middle of the input", "word", "\xEF\xBB\xBFx", "\xEF\xBB\xBFx3");
    row("number", "n", "12", "a12");
}

void RowRunnerTest::lines()
{
    QFETCH(QString, variable);
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, output);

    RowRunner runner(task(), linesInto(variable));
    const RowOutcome outcome = runner.run(row, 1);
    QVERIFY2(!outcome.problem, qPrintable(outcome.problem ? outcome.problem->toString() : ""));
    QCOMPARE(outcome.output, output);
}

void RowRunnerTest::badLines_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *variable, const QByteArray &line,
                        const char *text) {
        QTest::newRow(name) << QString(variable) << line << QString(text);
    };
    row("no UTF-8", "word", "a\xff", "line 2: bytes that are no text; expected UTF-8");
    row("UTF-8 cut off", "word", "\xE4\xB8", "line 2: bytes that are no text; expected UTF-8");
    row("no number", "n", "x",
        "line 2: \"x\"; expected a whole number from -2147483648 to 2147483647");
}

void RowRunnerTest::badLines()
{
    QFETCH(QString, variable);
    QFETCH(QByteArray, row);
    QFETCH(QString, text);

    RowRunner runner(task(), linesInto(variable));
    const RowOutcome outcome = runner.run(row, 2);
    QVERIFY(outcome.problem);
    QCOMPARE(outcome.problem->toString(), text);
}

void RowRunnerTest::printed()
{
    const QByteArray object = R"({"r":"a3","n":3})";
    RowRunner some(task(), printing({"r", "n", "r"}));
    QCOMPARE(some.run("{}", 1).output, object);

    const QByteArray quotes = R"({"word":"\"b\""})";
    const QByteArray lineBreak = R"({"word":"b\nc"})";
    RowRunner plain(task(), {{}, {"word"}, true});
    QCOMPARE(plain.run(quotes, 1).output, QByteArray("\"b\""));
    const RowOutcome broken = plain.run(lineBreak, 4);
    QVERIFY(broken.problem);
    QCOMPARE(broken.problem->toString(),
             QString("line 4: the value of \"word\" has a line break; expected one line, or "
                     "\"--json\" to print it as JSON"));

    const QByteArray list = R"(["b\nc",1])";
    RowRunner lists(task(), {{}, {"l"}, true});
    QCOMPARE(lists.run("{\"l\":" + list + '}', 1).output, list);
}

void RowRunnerTest::freshValuesForEachRow()
{
    const QByteArray good = R"({"word":"b","n":5})";
    const QByteArray bad = R"({"word":"c","n":"no"})";
    RowRunner runner(task(), printing({"r", "word"}));
    QCOMPARE(runner.run(good, 1).output, QByteArray("{\"r\":\"b5\",\"word\":\"b\"}"));
    QVERIFY(runner.run(bad, 2).problem);
    QCOMPARE(runner.run("{}", 3).output, QByteArray("{\"r\":\"a3\",\"word\":\"a\"}"));
}

void RowRunnerTest::warningsNameTheStep()
{
    RowRunner runner(task(warningTask), {});
    for (int round = 0; round < 2; ++round) {
        const RowOutcome outcome = runner.run("{}", 1);
        QVERIFY(!outcome.problem);
        QCOMPARE(outcome.warnings.size(), 2);
        QCOMPARE(outcome.warnings.at(0).step, 0);
        QCOMPARE(outcome.warnings.at(0).typeId, QString("text.append"));
        QCOMPARE(outcome.warnings.at(0).line,
                 QString("[TextOp] 变量 \"n\" 未声明为字符串，已跳过"));
        QCOMPARE(outcome.warnings.at(1).step, 1);
        QCOMPARE(outcome.warnings.at(1).line, QString("[TextTrim] 未指定结果变量，已跳过"));
    }
}

void RowRunnerTest::withoutVariables()
{
    RowRunner runner(task("{\"steps\": []}"), {});
    QCOMPARE(runner.run("{}", 1).output, QByteArray("{}"));
}

QTEST_GUILESS_MAIN(RowRunnerTest)
#include "RowRunnerTest.moc"
