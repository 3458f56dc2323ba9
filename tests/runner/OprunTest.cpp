#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <memory>

/// oprun as a process: what it prints, what it complains of, and its exit status.
class OprunTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void runsTasks_data();
    void runsTasks();
    void refuses_data();
    void refuses();
    void printsJson();
    void explains();
    void listsTheCatalogue();
    void describesAnOperation();
    void modesByLabelOrNumber();
    void printsExamples();
    void checksExamples();
    void refusesExamples_data();
    void refusesExamples();
    void oddButLegalTasks_data();
    void oddButLegalTasks();
    void keepsTheOrderOfVariables();
    void pluginByRelativePath();
    void writesTheReferencePage();
    void helps_data();
    void helps();
    void pluginThatDoesNotLoad();
    void severalPlugins();
    void withoutAnyPlugin();
    void unreadableFile();
    void unwritableOutput();
    void utf8WhateverTheLocale_data();
    void utf8WhateverTheLocale();
    void nothingRunsUntilAllIsChecked();

private:
    using Outcome = OprunFolder::Outcome;

    Outcome run(const QStringList &arguments, const QMap<QString, QString> &environment = {}) const;
    void write(const QString &name, const QByteArray &content) const;

    std::unique_ptr<OprunFolder> m_folder;
};

namespace {

/// The operations in the order of the catalogue.
const QString allTypes =
    "text.append, text.between, text.join, text.split, text.pad, text.replace, text.reverse, text.find, text.substring, text.trim, text.toNumber, text.fromNumber, text.case";

const char sampleTask[] = R"({
    "variables": {
        "line": {"type": "string", "value": "key=value;"},
        "part": {"type": "string"},
        "parts": {"type": "list", "value": ["a", 1]},
        "count": {"type": "int", "value": 3},
        "ratio": {"type": "double", "value": 0.5},
        "done": {"type": "bool"}
    },
    "steps": [{"type": "text.append", "sourceText": "$line", "appendText": "!", "resultVar": "part"}]
})";

const char warningTask[] = R"({
    "variables": { "n": {"type": "int"} },
    "steps": [{"type": "text.append", "resultVar": "n"}, {"type": "text.append"}]
})";

} // namespace

void OprunTest::initTestCase()
{
    m_folder = std::make_unique<OprunFolder>(OPRUN_FILE);
    write("task.json", sampleTask);
    write("warn.json", warningTask);
    write("任务.json", sampleTask);
}

OprunTest::Outcome OprunTest::run(const QStringList &arguments,
                                  const QMap<QString, QString> &environment) const
{
    return m_folder->run(arguments, environment);
}

void OprunTest::write(const QString &name, const QByteArray &content) const
{
    QVERIFY(m_folder->write(name, content));
}

void OprunTest::runsTasks_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");

    const QString warnings = "oprun: warn.json: steps[0] (text.append): "
                             "[TextOp] 变量 \"n\" 未声明为字符串，已跳过\n"
                             "  what it means: the result is a text, and there is no variable "
                             "\"n\" of type string; nothing was written; declare it as string, or "
                             "name another one\n"
                             "oprun: warn.json: steps[1] (text.append): "
                             "[TextAppend] 未指定结果变量，已跳过\n"
                             "  what it means: no result variable is named, so the step did "
                             "nothing; name one in resultVar\n";
    QTest::newRow("all variables")
        << QStringList{"run", "task.json"} << 0
        << "count = 3\ndone = false\nline = \"key=value;\"\npart = \"key=value;!\"\n"
           "parts = [\"a\",1]\nratio = 0.5\n"
        << "";
    QTest::newRow("one variable, bare")
        << QStringList{"run", "task.json", "--print", "part"} << 0 << "key=value;!\n"
        << "";
    QTest::newRow("several, in the order asked for")
        << QStringList{"run", "--print", "parts", "--print=count", "task.json"} << 0
        << "[\"a\",1]\n3\n"
        << "";
    QTest::newRow("set") << QStringList{"run", "task.json", "--set", "line=a=b", "--print", "part"}
                         << 0 << "a=b!\n"
                         << "";
    QTest::newRow("set by type")
        << QStringList{"run",   "task.json", "--set", "count=-8",          "--set", "ratio=1e3",
                       "--set", "done=true", "--set", "parts=[[1],\"x\"]", "--set", "line="}
        << 0
        << "count = -8\ndone = true\nline = \"\"\npart = \"!\"\nparts = [[1],\"x\"]\nratio = 1000\n"
        << "";
    QTest::newRow("a warning is no failure") << QStringList{"run", "warn.json"} << 0 << "n = 0\n"
                                             << warnings;
    QTest::newRow("strict") << QStringList{"run", "warn.json", "--strict"} << 1 << "n = 0\n"
                            << warnings;
    QTest::newRow("strict without a warning")
        << QStringList{"run", "task.json", "--strict", "--print", "part"} << 0 << "key=value;!\n"
        << "";
}

void OprunTest::runsTasks()
{
    QFETCH(QStringList, arguments);
    const Outcome outcome = run(arguments);
    QTEST(outcome.err, "err");
    QTEST(outcome.out, "out");
    QTEST(outcome.status, "status");
}

void OprunTest::refuses_data()
{
    QTest::addColumn<QByteArray>("task");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("err");

    const QByteArray valid = sampleTask;
    const QStringList plain{"run", "bad.json"};
    const auto row = [](const char *name, const QByteArray &task, const QStringList &arguments,
                        const QString &err) { QTest::newRow(name) << task << arguments << err; };

    // Of the command line.
    row("no command", valid, {},
        "no command; expected catalog, describe, run, explain, check, pack, unpack, examples, docs, validate, help. Try \"oprun --help\".");
    row("unknown command", valid, {"walk"},
        "no command \"walk\"; expected catalog, describe, run, explain, check, pack, unpack, examples, docs, validate, help. Try \"oprun --help\".");
    row("unknown option", valid, {"run", "bad.json", "--fast"},
        "run: unknown option \"--fast\". Try \"oprun run --help\".");
    row("unknown option alone", valid, {"--fast"},
        "unknown option \"--fast\"; options of a command follow it. Try \"oprun --help\".");
    row("option before its command", valid, {"--set", "line=x", "run", "bad.json"},
        "unknown option \"--set\"; options of a command follow it. Try \"oprun run --help\".");
    row("empty file name", valid, {"run", ""}, "an empty file name; expected a file");
    row("message on one line", R"({"steps": [], "a\nb": 1})", plain,
        "bad.json: unknown key \"a\\nb\"; expected variables, steps");
    row("not UTF-8", "{\"steps\": [\"\xff\xfe\"]}", plain,
        "bad.json: line 1, column 13: malformed JSON (bytes that are not UTF-8)");
    row("deeply nested", QByteArray(2000, '['), plain,
        "bad.json: line 1, column 1025: malformed JSON (more than 1024 arrays and objects within each other)");
    row("option of another command", valid, {"catalog", "--trace"},
        "catalog: unknown option \"--trace\". Try \"oprun catalog --help\".");
    row("option without its value", valid, {"run", "bad.json", "--set"},
        "run: missing value after '--set'. Try \"oprun run --help\".");
    row("no task", valid, {"run"}, "run: no argument; expected TASK. Try \"oprun run --help\".");
    row("two tasks", valid, {"run", "a", "b"},
        "run: a b; expected TASK. Try \"oprun run --help\".");
    row("argument too many", valid, {"catalog", "x"},
        "catalog: x; expected none. Try \"oprun catalog --help\".");
    row("unknown type to describe", valid, {"describe", "text.glue"},
        "no operation \"text.glue\"; expected " + allTypes);
    row("unknown type of examples", valid, {"examples", "text.glue"},
        "no operation \"text.glue\"; expected " + allTypes);
    row("two types of examples", valid, {"examples", "text.pad", "text.trim"},
        "examples: text.pad text.trim; expected [TYPE]. Try \"oprun examples --help\".");
    row("unknown mode label",
        R"({"steps": [{"type": "text.trim"}, {"type": "text.pad", "position": "上边"}]})", plain,
        "bad.json: steps[1].position: \"上边\"; "
        "expected one of \"左边\", \"中间\", \"右边\", or the number of a choice");
    row("set without a value", valid, {"run", "bad.json", "--set", "line"},
        "--set: \"line\"; expected NAME=TEXT");
    row("set of an unknown variable", valid, {"run", "bad.json", "--set", "Line=x"},
        "--set: the task has no variable \"Line\"; "
        "expected count, done, line, part, parts, ratio (did you mean \"line\"?)");
    row("set of an unfit value", valid, {"run", "bad.json", "--set", "count=three"},
        "--set count: \"three\"; expected a whole number from -2147483648 to 2147483647");
    row("print of an unknown variable", valid, {"run", "bad.json", "--print", "x"},
        "--print: the task has no variable \"x\"; "
        "expected count, done, line, part, parts, ratio");
    row("print without any variable", "{\"steps\": []}", {"run", "bad.json", "--print", "x"},
        "--print: the task has no variable \"x\"; expected none at all");

    // Of the task file.
    row("no file", valid, {"run", "missing.json"},
        "missing.json: cannot be read (No such file or directory)");
    row("no file to explain", valid, {"explain", "missing.json"},
        "missing.json: cannot be read (No such file or directory)");
    row("key twice", R"({"steps": [], "variables": {"a": {"type": "int"}, "a": {"type": "int"}}})",
        plain,
        "bad.json: line 1, column 51: malformed JSON (the key \"a\" for the second time; "
        "expected each key once)");
    row("null", "null", plain, "bad.json: line 1, column 1: null; expected an object in braces");
    row("empty", "", plain,
        "bad.json: line 1, column 1: an empty text; expected an object in braces");
    row("path with backslashes", R"({"steps": [], "variables": {"a": "C:\Users\new"}})", plain,
        "bad.json: line 1, column 37: malformed JSON (\\U is no escape; expected \\\\ for a "
        "backslash)");
    row("whole number beyond 64 bits",
        R"({"steps": [], "variables": {"a": {"type": "table", "value": [[9223372036854775808]]}}})",
        plain,
        "bad.json: variables.a.value: 9223372036854775808; expected a whole number from "
        "-9223372036854775808 to 9223372036854775807, or a string such as "
        "\"9223372036854775808\"");
    row("malformed", "{\n  \"steps\": [,]\n}", plain,
        "bad.json: line 2, column 13: malformed JSON (\",\"; expected a value)");
    row("unknown key", "{\"steps\": [], \"name\": 1}", plain,
        "bad.json: unknown key \"name\"; expected variables, steps");
    row("unknown type", R"({"steps": [{"type": "text.glue"}]})", plain,
        "bad.json: steps[0].type: \"text.glue\"; expected " + allTypes);
    row("unknown type to explain", R"({"steps": [{"type": "text.glue"}]})", {"explain", "bad.json"},
        "bad.json: steps[0].type: \"text.glue\"; expected " + allTypes);
    row("unknown property", R"({"steps": [{"type": "text.append", "text": ""}]})", plain,
        "bad.json: steps[0].text: text.append has no such property; "
        "expected sourceText, appendText, resultVar");
    row("unfit property", R"({"steps": [{"type": "text.append", "sourceText": true}]})", plain,
        "bad.json: steps[0].sourceText: true; expected a string");
    row("unknown value type", R"({"variables": {"a": {"type": "text"}}, "steps": []})", plain,
        "bad.json: variables.a.type: \"text\"; expected int, double, string, bool, list, table");
    row("unfit value", R"({"variables": {"a": {"type": "bool", "value": 1}}, "steps": []})", plain,
        "bad.json: variables.a.value: 1; expected true or false");
}

void OprunTest::refuses()
{
    QFETCH(QByteArray, task);
    QFETCH(QStringList, arguments);
    QFETCH(QString, err);
    write("bad.json", task);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.err, "oprun: " + err + '\n');
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 2);
}

void OprunTest::printsJson()
{
    const Outcome all = run({"run", "task.json", "--json"});
    const QJsonObject object = QJsonDocument::fromJson(all.out.toUtf8()).object();
    QCOMPARE(object.keys(), QStringList({"count", "done", "line", "part", "parts", "ratio"}));
    QCOMPARE(object.value("part"), QJsonValue("key=value;!"));
    QCOMPARE(object.value("parts"), QJsonValue(QJsonArray{"a", 1}));

    const Outcome one = run({"run", "task.json", "--json", "--print", "count"});
    QCOMPARE(QJsonDocument::fromJson(one.out.toUtf8()).object(), (QJsonObject{{"count", 3}}));
}

void OprunTest::explains()
{
    const Outcome outcome = run({"explain", "task.json"});
    QCOMPARE(outcome.out, QString("steps[0]  添加文本: $line + ! -> $part\n"
                                  "          将 ! 添加到 $line 之后，存入 $part\n"));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
}

void OprunTest::listsTheCatalogue()
{
    const Outcome text = run({"catalog"});
    QCOMPARE(text.out.section('\n', 0, 1),
             QString("文本\n  text.append      添加文本    :/images/text_append.svg"));
    QStringList listed;
    const QStringList lines = text.out.split('\n', Qt::SkipEmptyParts).mid(1);
    for (const QString &line : lines)
        listed.append(line.simplified().section(' ', 0, 0));
    QCOMPARE(listed.join(", "), allTypes);

    const Outcome json = run({"catalog", "--json"});
    const QJsonArray roots =
        QJsonDocument::fromJson(json.out.toUtf8()).object().value("roots").toArray();
    QCOMPARE(roots.size(), 1);
    const QJsonObject root = roots.first().toObject();
    QCOMPARE(root.value("root"), QJsonValue("文本"));
    QCOMPARE(root.value("weight"), QJsonValue(500));
    const QJsonObject expected{{"typeId", "text.append"},
                               {"name", "添加文本"},
                               {"icon", ":/images/text_append.svg"},
                               {"weight", 0}};
    QCOMPARE(root.value("operations").toArray().first().toObject(), expected);
}

void OprunTest::describesAnOperation()
{
    const Outcome text = run({"describe", "text.append"});
    QCOMPARE(text.out,
             QString("text.append  添加文本  :/images/text_append.svg\n"
                     "PROPERTY    LABEL                   EDITOR          DEFAULT  REMARKS\n"
                     "sourceText  原文本                  VARREF          \"\"       "
                     "varref_kind string\n"
                     "appendText  要添加的文本            VARREF          \"\"       "
                     "varref_kind string\n"
                     "resultVar   新文本保存到字符串变量  VARNAME:STRING  \"\"       "
                     "varname_type string\n"));

    const Outcome json = run({"describe", "text.append", "--json"});
    const QJsonObject operation = QJsonDocument::fromJson(json.out.toUtf8()).object();
    QCOMPARE(operation.value("root"), QJsonValue("文本"));
    const QJsonObject expected{{"name", "sourceText"}, {"type", "QString"},
                               {"label", "原文本"},    {"default", ""},
                               {"editor", "VARREF"},   {"varref_kind", "string"}};
    QCOMPARE(operation.value("properties").toArray().first().toObject(), expected);
}

void OprunTest::modesByLabelOrNumber()
{
    for (const char *mode : {"\"右边\"", "2"}) {
        write("mode.json", QByteArray(R"({"variables": {"r": {"type": "string"}}, "steps": [
              {"type": "text.pad", "sourceText": "a", "padText": "-", "totalLength": 2,
               "resultVar": "r", "position": )") +
                               mode + "}]}");
        QCOMPARE(run({"run", "mode.json", "--print", "r"}).out, QString("a-\n"));
    }
}

void OprunTest::printsExamples()
{
    const Outcome one = run({"examples", "text.find"});
    QCOMPARE(one.out.section('\n', 0, 4), QString("text.find  查询子文本\n"
                                                  "  found\n"
                                                  "      sourceText: \"hello world\"\n"
                                                  "      searchText: \"o\"\n"
                                                  "      -> 4 (int)"));
    const Outcome all = run({"examples"});
    const QStringList types = allTypes.split(", ");
    for (const QString &type : types)
        QVERIFY2(all.out.contains('\n' + type + "  ") || all.out.startsWith(type),
                 qPrintable(type));
}

void OprunTest::checksExamples()
{
    const Outcome good = run({"examples", "--check"});
    QCOMPARE(good.err, QString());
    QVERIFY2(good.out.endsWith(" examples, 0 differ\n"), qPrintable(good.out));
    QCOMPARE(good.status, 0);

    // A copy of the plug-in with a book that is wrong in five ways.
    const QString plugin = m_folder->filePath("libCopy.so");
    QFile::copy(PLUGIN_FILE, plugin);
    write("libCopy.examples.json", R"({"text.reverse": {"examples": [
        {"name": "right", "settings": {"sourceText": "ab"}, "result": "ba"},
        {"name": "result", "settings": {"sourceText": "ab"}, "result": "ab"},
        {"name": "silent", "settings": {"sourceText": "ab"}},
        {"name": "warning", "into": "int", "settings": {}, "warnings": ["x"]},
        {"name": "other", "variables": {"x": {"type": "string"}},
         "settings": {"sourceText": "ab", "resultVar": "x"}},
        {"name": "setting", "settings": {"mode": 1}, "result": ""}]}})");
    const Outcome bad = run({"examples", "--check", "--plugin", plugin});
    QCOMPARE(bad.out, QString("6 examples, 5 differ\n"));
    QCOMPARE(bad.status, 1);
    const QStringList lines = bad.err.split('\n');
    QCOMPARE(lines.size(), 6);
    QCOMPARE(lines.at(0),
             QString("oprun: text.reverse, example \"result\": \"ba\"; expected \"ab\""));
    QCOMPARE(lines.at(1), QString("oprun: text.reverse, example \"silent\": \"ba\"; "
                                  "expected nothing written"));
    QCOMPARE(lines.at(2),
             QString("oprun: text.reverse, example \"warning\": nothing written, warning "
                     "[TextOp] 变量 \"result\" 未声明为字符串，已跳过; "
                     "expected nothing written, warning x"));
    QCOMPARE(lines.at(3), QString("oprun: text.reverse, example \"other\": nothing written, "
                                  "written to x; expected nothing written"));
    QVERIFY(lines.at(4).contains("steps[0].mode: text.reverse has no such property"));

    write("libCopy.examples.json", R"({"text.glue": {}})");
    const Outcome unknown = run({"examples", "--plugin", plugin});
    QCOMPARE(unknown.err, "oprun: " + m_folder->filePath("libCopy.examples.json") +
                              ": text.glue: no such operation; expected " + allTypes + '\n');
    QCOMPARE(unknown.status, 2);
    QFile::remove(m_folder->filePath("libCopy.examples.json"));
    QCOMPARE(run({"examples", "text.pad", "--plugin", plugin}).out,
             QString("text.pad  填充文本\n"));
}

void OprunTest::refusesExamples_data()
{
    QTest::addColumn<QByteArray>("book");
    QTest::addColumn<QString>("err");
    const QString members =
        "unknown key; expected into, name, result, settings, variables, warnings";
    const auto row = [](const char *name, const char *book, const QString &err) {
        QTest::newRow(name) << QByteArray(book) << err;
    };
    row("malformed", "{",
        "line 1, column 2: malformed JSON (the end of the text; expected a key in double quotes)");
    row("page no object", R"({"text.pad": []})", "text.pad: []; expected an object");
    row("unknown member of a page", R"({"text.pad": {"exmaples": []}})",
        "text.pad.exmaples: unknown key; expected about, examples (did you mean \"examples\"?)");
    row("examples no array", R"({"text.pad": {"examples": {}}})",
        "text.pad.examples: {}; expected an array");
    row("example no object", R"({"text.pad": {"examples": [5]}})",
        "text.pad.examples[0]: 5; expected an object");
    row("unknown member of an example", R"({"text.pad": {"examples": [{}, {"nam": ""}]}})",
        "text.pad.examples[1].nam: " + members + " (did you mean \"name\"?)");
    row("settings no object", R"({"text.pad": {"examples": [{"settings": 5}]}})",
        "text.pad.examples[0].settings: 5; expected an object");
    row("type no string", R"({"text.pad": {"examples": [{"into": 5}]}})",
        "text.pad.examples[0].into: 5; expected a string");
    row("type among the settings", R"({"text.pad": {"examples": [{"settings": {"type": "x"}}]}})",
        "text.pad.examples[0].settings.type: the type is that of the page; expected properties");
    row("result among the variables",
        R"({"text.pad": {"examples": [{"variables": {"result": {"type": "int"}}}]}})",
        "text.pad.examples[0].variables.result: the result is declared by \"into\"; "
        "expected other names");
}

void OprunTest::refusesExamples()
{
    QFETCH(QByteArray, book);
    QFETCH(QString, err);
    const QString plugin = m_folder->filePath("libFaulty.so");
    QFile::copy(PLUGIN_FILE, plugin);
    write("libFaulty.examples.json", book);
    for (const char *command : {"examples", "docs"}) {
        const Outcome outcome = run({command, "--plugin", plugin});
        QCOMPARE(outcome.err,
                 "oprun: " + m_folder->filePath("libFaulty.examples.json") + ": " + err + '\n');
        QCOMPARE(outcome.out, QString());
        QCOMPARE(outcome.status, 2);
    }
}

void OprunTest::oddButLegalTasks_data()
{
    QTest::addColumn<QByteArray>("task");
    QTest::addColumn<QString>("out");
    QTest::newRow("no steps") << QByteArray("{\"steps\": []}") << "";
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF{\"steps\": []}") << "";
    QTest::newRow("line feed in a name")
        << QByteArray(R"({"steps": [], "variables": {"a\nb": {"type": "int"}}})") << "a\\nb = 0\n";
    QTest::newRow("large integer in a list")
        << QByteArray(
               R"({"steps": [], "variables": {"a": {"type": "list", "value": [1e300, 0.1]}}})")
        << "a = [1e+300,0.1]\n";
}

void OprunTest::oddButLegalTasks()
{
    QFETCH(QByteArray, task);
    write("odd.json", task);
    const Outcome outcome = run({"run", "odd.json"});
    QCOMPARE(outcome.err, QString());
    QTEST(outcome.out, "out");
    QCOMPARE(outcome.status, 0);
}

void OprunTest::keepsTheOrderOfVariables()
{
    write("order.json", R"({"steps": [], "variables": {"z": {"type": "int"}, "a": {"type": "int"},
                            "中": {"type": "int"}, "A": {"type": "int"}}})");
    const QString unpacked = run({"unpack", "order.json", "-"}).out;
    QStringList places;
    for (const char *name : {"z", "a", "中", "A"})
        places.append(QString::number(unpacked.indexOf(QString("\n        \"%1\": ").arg(name))));
    QVERIFY2(!places.contains("-1"), qPrintable(unpacked));
    QStringList sorted = places;
    std::sort(sorted.begin(), sorted.end(), [](const QString &left, const QString &right) {
        return left.toInt() < right.toInt();
    });
    QCOMPARE(places, sorted);
    // What a run prints is in the order of names.
    QCOMPARE(run({"run", "order.json"}).out, QString("A = 0\na = 0\nz = 0\n中 = 0\n"));
}

void OprunTest::pluginByRelativePath()
{
    QFile::copy(PLUGIN_FILE, m_folder->filePath("libHere.so"));
    for (const char *path : {"libHere.so", "./libHere.so"}) {
        const Outcome outcome = run({"run", "task.json", "--print", "part", "--plugin", path});
        QCOMPARE(outcome.err, QString());
        QCOMPARE(outcome.out, QString("key=value;!\n"));
    }
}

void OprunTest::writesTheReferencePage()
{
    const Outcome page = run({"docs", "--icons", "pictures/"});
    QVERIFY(page.out.startsWith("# Operations\n"));
    QVERIFY(page.out.contains("\n## 填充文本 `text.pad`\n"));
    QVERIFY(page.out.contains("<img src=\"pictures/images/text_pad.svg\""));
    QVERIFY(page.out.contains(
        "| `position` | 填充位置 | `COMBO` | `0` | 0 左边 \\| 1 中间 \\| 2 右边 |"));
    QVERIFY(page.out.contains("| `index` | 索引值 | `NUMVAR:INT` | `\"\"` | "
                              "shown when position is 1 |"));
    QVERIFY(page.out.contains("| found | `sourceText: \"hello world\"`<br>`searchText: \"o\"` | "
                              "`4` | int |  |"));
    QVERIFY(run({"docs"}).out.contains("<img src=\":/images/text_pad.svg\""));
}

void OprunTest::helps_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("part");
    QTest::newRow("program") << QStringList{"--help"} << "explain   Prints the summary";
    QTest::newRow("short") << QStringList{"-h"} << "explain   Prints the summary";
    QTest::newRow("command") << QStringList{"run", "--help"} << "--set <NAME=TEXT>";
}

void OprunTest::helps()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, part);
    const Outcome outcome = run(arguments);
    QVERIFY2(outcome.out.contains(part), qPrintable(outcome.out));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
}

void OprunTest::pluginThatDoesNotLoad()
{
    write("libNone.so", "not a library");
    const Outcome outcome = run({"run", "task.json", "--plugin", "libNone.so"});
    QCOMPARE(outcome.err, QString("oprun: libNone.so: cannot be loaded as a plug-in "
                                  "(it is not a library)\n"));
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 3);

    const Outcome missing = run({"--plugin", "libMissing.so", "catalog"});
    QCOMPARE(missing.err, QString("oprun: libMissing.so: cannot be loaded as a plug-in "
                                  "(there is no such file)\n"));
    QCOMPARE(missing.status, 3);
}

void OprunTest::severalPlugins()
{
    const Outcome both = run({"catalog", "--plugin", GREET_PLUGIN, "--plugin", PLUGIN_FILE});
    QVERIFY(both.out.startsWith("问候\n  greet.hello  问候  :/images/greet_hello.svg\n文本\n"));

    write("greet.json", R"({"variables": {"r": {"type": "string"}}, "steps": [
          {"type": "greet.hello", "who": "世界", "resultVar": "r"}]})");
    const Outcome greeted = run({"run", "greet.json", "--plugin", GREET_PLUGIN, "--print", "r"});
    QCOMPARE(greeted.out, QString("你好，世界\n"));
}

void OprunTest::withoutAnyPlugin()
{
    // A copy of the program in a folder of its own finds nothing beside it.
    const QString copy = m_folder->filePath("oprun");
    QVERIFY(QFile::copy(OPRUN_FILE, copy));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_LIBRARY_PATH", LIBRARY_FOLDER);
    process.setProcessEnvironment(environment);
    process.start(copy, {"catalog"});
    QVERIFY(process.waitForFinished());
    const QString err = QString::fromUtf8(process.readAllStandardError());
    QVERIFY2(err.startsWith("oprun: no plug-in found in "), qPrintable(err));
    QVERIFY(err.endsWith("; expected one there or --plugin FILE\n"));
    QCOMPARE(process.exitCode(), 3);
}

void OprunTest::unreadableFile()
{
    const Outcome folder = run({"run", "."});
    QVERIFY2(folder.err.startsWith("oprun: .: cannot be read ("), qPrintable(folder.err));
    QCOMPARE(folder.status, 2);
}

void OprunTest::unwritableOutput()
{
    // A device of Linux that is always full.
    QProcess process;
    process.setWorkingDirectory(m_folder->path());
    process.setStandardOutputFile("/dev/full");
    process.start(OPRUN_FILE, {"run", "task.json"});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QString("oprun: standard output: cannot be written (No space left on device)\n"));
    QCOMPARE(process.exitCode(), 2);
}

void OprunTest::utf8WhateverTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    for (const char *locale : {"C", "C.UTF-8", "POSIX", "zh_CN.GB18030", "de_DE"})
        QTest::newRow(locale) << locale;
}

void OprunTest::utf8WhateverTheLocale()
{
    QFETCH(QString, locale);
    const Outcome outcome =
        run({"run", "任务.json", "--set", "line=变量\U0001F600", "--print", "part", "--trace"},
            {{"LC_ALL", locale}});
    QCOMPARE(outcome.out, QString("变量\U0001F600!\n"));
    QVERIFY(outcome.err.startsWith("steps[0]  添加文本: $line + ! -> $part\n"));
    QVERIFY(outcome.err.contains("          part = \"变量\U0001F600!\"\n"));
    QCOMPARE(outcome.status, 0);
}

void OprunTest::nothingRunsUntilAllIsChecked()
{
    write("late.json", R"({"variables": {"n": {"type": "int"}}, "steps": [
          {"type": "text.append", "resultVar": "n"}, {"type": "text.append", "x": 1}]})");
    const Outcome outcome = run({"run", "late.json", "--trace"});
    QCOMPARE(outcome.err.count('\n'), 1);
    QVERIFY(outcome.err.startsWith("oprun: late.json: steps[1].x: "));
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 2);
}

QTEST_GUILESS_MAIN(OprunTest)

#include "OprunTest.moc"
