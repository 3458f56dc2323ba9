#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include "refhost/engine/check/Finding.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

/// "oprun check" as a process: what it prints, and its exit status.
class CheckCommandTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void printsFindings();
    void counts_data();
    void counts();
    void printsJson();
    void jsonWithoutFindings();
    void refuses_data();
    void refuses();
    void refusesFacts_data();
    void refusesFacts();
    void oneLineEach();
    void nothingRuns();
    void otherPlugins();
    void examplesHaveEveryMistake();
    void everyMistakeIsDocumented();

private:
    OprunFolder::Outcome check(const QByteArray &task, const QStringList &more = {}) const;

    const OprunFolder m_oprun{OPRUN_FILE};
};

namespace {

const char cleanTask[] = R"({"variables": {"a": {"type": "string"}},
    "steps": [{"type": "text.reverse", "sourceText": "x", "resultVar": "a"}]})";

const char badTask[] = R"({
    "variables": {"line": {"type": "string", "value": ""}, "n": {"type": "int"}},
    "steps": [{"type": "text.reverse", "sourceText": "x", "resultVar": "line"},
              {"type": "text.append", "sourceText": "$lien", "appendText": "007"}]
})";

const QString allTypes = "text.append, text.substring, text.pad, text.between, text.trim, "
                         "text.reverse, text.case, text.toNumber, text.fromNumber, text.join, "
                         "text.split, text.find, text.replace";

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void CheckCommandTest::initTestCase()
{
    QVERIFY(m_oprun.write("clean.json", cleanTask));
}

OprunFolder::Outcome CheckCommandTest::check(const QByteArray &task, const QStringList &more) const
{
    m_oprun.write("task.json", task);
    return m_oprun.run(QStringList{"check", "task.json"} + more);
}

void CheckCommandTest::printsFindings()
{
    const OprunFolder::Outcome outcome = check(badTask);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out,
             QString("steps[1] text.append sourceText: error: \"$lien\" names no variable "
                     "[undeclared-variable]\n"
                     "  what happens: the operand counts as empty text\n"
                     "  what to do: declare \"lien\", or write \"$line\"\n"
                     "steps[1] text.append appendText: warning: \"007\" travels as a number "
                     "[number-as-text]\n"
                     "  what happens: the operand becomes the text \"7\"\n"
                     "  what to do: keep \"007\" in a string variable and refer to that\n"
                     "steps[1] text.append resultVar: error: no result variable is named "
                     "[empty-result]\n"
                     "  what happens: the step does nothing, as a rule with a warning\n"
                     "  what to do: name a variable to receive the result\n"
                     "variables.n: note: no step reads or writes \"n\" [unused-variable]\n"
                     "  what happens: it keeps the value it starts with\n"
                     "  what to do: use it, or leave it out\n"
                     "4 findings: 2 errors, 1 warning, 1 note\n"));
    QCOMPARE(outcome.status, 1);
}

void CheckCommandTest::counts_data()
{
    QTest::addColumn<QByteArray>("task");
    QTest::addColumn<QString>("last");
    QTest::addColumn<int>("status");
    QTest::newRow("none") << QByteArray(cleanTask) << "no findings" << 0;
    QTest::newRow("no steps") << QByteArray("{\"steps\": []}") << "no findings" << 0;
    QTest::newRow("note") << QByteArray(R"({"variables": {"a": {"type": "int"}}, "steps": []})")
                          << "1 finding: 1 note" << 1;
    QTest::newRow("error") << QByteArray(R"({"steps": [{"type": "text.reverse"}]})")
                           << "1 finding: 1 error" << 1;
    QTest::newRow("errors and warnings")
        << QByteArray(R"({"steps": [{"type": "text.reverse", "sourceText": "1.0"},
                                    {"type": "text.reverse", "sourceText": "2.0"}]})")
        << "4 findings: 2 errors, 2 warnings" << 1;
}

void CheckCommandTest::counts()
{
    QFETCH(QByteArray, task);
    const OprunFolder::Outcome outcome = check(task);
    QTEST(outcome.out.trimmed().section('\n', -1), "last");
    QTEST(outcome.status, "status");
}

void CheckCommandTest::printsJson()
{
    const OprunFolder::Outcome outcome = check(badTask, {"--json"});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 1);
    const QJsonObject json = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
    QCOMPARE(json.keys(), QStringList({"counts", "findings"}));
    QCOMPARE(json.value("counts").toObject(),
             (QJsonObject{{"error", 2}, {"warning", 1}, {"note", 1}}));
    const QJsonArray findings = json.value("findings").toArray();
    QCOMPARE(findings.size(), 4);
    const QJsonObject first{{"id", "undeclared-variable"},
                            {"severity", "error"},
                            {"step", 1},
                            {"type", "text.append"},
                            {"property", "sourceText"},
                            {"text", "$lien"},
                            {"message", "\"$lien\" names no variable"},
                            {"consequence", "the operand counts as empty text"},
                            {"remedy", "declare \"lien\", or write \"$line\""},
                            {"meant", "line"}};
    QCOMPARE(findings.first().toObject(), first);
    const QJsonObject last = findings.last().toObject();
    QCOMPARE(last.keys(), first.keys());
    QCOMPARE(last.value("step"), QJsonValue());
    QCOMPARE(last.value("type"), QJsonValue());
    QCOMPARE(last.value("property"), QJsonValue("n"));
    QCOMPARE(last.value("meant"), QJsonValue(""));
}

void CheckCommandTest::jsonWithoutFindings()
{
    const OprunFolder::Outcome outcome = check(cleanTask, {"--json"});
    const QJsonObject expected{{"findings", QJsonArray()},
                               {"counts", QJsonObject{{"error", 0}, {"warning", 0}, {"note", 0}}}};
    QCOMPARE(QJsonDocument::fromJson(outcome.out.toUtf8()).object(), expected);
    QCOMPARE(outcome.status, 0);
}

void CheckCommandTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("err");
    QTest::addColumn<int>("status");
    const auto row = [](const char *name, const QStringList &arguments, const char *err,
                        int status) { QTest::newRow(name) << arguments << err << status; };
    row("no task", {"check"}, "check: no argument; expected TASK. Try \"oprun check --help\".", 2);
    row("two tasks", {"check", "a", "b"}, "check: a b; expected TASK. Try \"oprun check --help\".",
        2);
    row("option of a run", {"check", "task.json", "--trace"},
        "check: unknown option \"--trace\". Try \"oprun check --help\".", 2);
    row("no file", {"check", "missing.json"},
        "missing.json: cannot be read (No such file or directory)", 2);
    row("unknown property", {"check", "bad.json"},
        "bad.json: steps[0].text: text.reverse has no such property; "
        "expected sourceText, resultVar",
        2);
    row("no such plug-in", {"check", "clean.json", "--plugin", "libNone.so"},
        "libNone.so: cannot be loaded as a plug-in (there is no such file)", 3);
}

void CheckCommandTest::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, err);
    QVERIFY(m_oprun.write("bad.json", R"({"steps": [{"type": "text.reverse", "text": ""}]})"));
    const OprunFolder::Outcome outcome = m_oprun.run(arguments);
    QCOMPARE(outcome.err, "oprun: " + err + '\n');
    QCOMPARE(outcome.out, QString());
    QTEST(outcome.status, "status");
}

void CheckCommandTest::refusesFacts_data()
{
    QTest::addColumn<QByteArray>("facts");
    QTest::addColumn<QString>("err");
    const auto row = [](const char *name, const char *facts, const QString &err) {
        QTest::newRow(name) << QByteArray(facts) << err;
    };
    const auto property = [&](const char *name, const char *fact, const QString &err) {
        row(name, QByteArray(R"({"operations": {"text.pad": )") + fact + "}}",
            "operations.text.pad" + err);
    };
    row("no object", "[]", "line 1, column 1: an array; expected an object in braces");
    row("unknown key", R"({"operatoins": {}})",
        "operatoins: unknown key; expected operations, warnings (did you mean \"operations\"?)");
    row("operations no object", R"({"operations": []})", "operations: []; expected an object");
    row("unknown operation", R"({"operations": {"greet.hello": {}}})",
        "operations.greet.hello: no such operation; expected " + allTypes);
    property("operation no object", "5", ": 5; expected an object");
    property("unknown property", R"({"width": {}})",
             ".width: unknown key; expected sourceText, position, index, padText, totalLength, "
             "resultVar");
    property("property no object", R"({"index": 0})", ".index: 0; expected an object");
    property("unknown fact", R"({"index": {"default": 0}})",
             ".index.default: unknown key; expected purpose, searchedIn, whenEmpty, whenNotFound");
    property("unknown purpose of a number", R"({"index": {"purpose": "begin"}})",
             ".index.purpose: \"begin\"; expected \"start\"");
    property("purpose of a number at a text", R"({"padText": {"purpose": "start"}})",
             ".padText.purpose: \"start\"; expected \"searchText\" or \"marker\" or "
             "\"separator\" or \"numberText\"");
    property("purpose of a choice", R"({"position": {"purpose": "start"}})",
             ".position.purpose: \"start\"; expected no purpose for this property");
    property("purpose no string", R"({"index": {"purpose": 1}})",
             ".index.purpose: 1; expected \"start\"");
    property("searched in nothing", R"({"padText": {"searchedIn": "text"}})",
             ".padText.searchedIn: \"text\"; expected the property with the text searched in");
    property("searched in itself", R"({"padText": {"searchedIn": "padText"}})",
             ".padText.searchedIn: \"padText\"; expected the property with the text searched in");
    property("default as a text", R"({"index": {"whenEmpty": "0"}})",
             ".index.whenEmpty: \"0\"; expected a number, at a numeric operand");
    property("default of a text", R"({"padText": {"whenEmpty": 0}})",
             ".padText.whenEmpty: 0; expected a number, at a numeric operand");
    property("result that is none", R"({"index": {"whenNotFound": -1}})",
             ".index.whenNotFound: -1; expected a number, at the result variable");

    row("warnings no array", R"({"warnings": {}})", "warnings: {}; expected an array");
    row("warning no object", R"({"warnings": ["x"]})", "warnings[0]: \"x\"; expected an object");
    row("warning without a line", R"({"warnings": [{"en": "x"}]})",
        "warnings[0].line: missing; expected a string");
    row("warning without English", R"({"warnings": [{"line": "x", "zh": "x"}]})",
        "warnings[0].en: missing; expected a string");
    row("explanation no string", R"({"warnings": [{"line": "x", "en": 1}]})",
        "warnings[0].en: 1; expected a string");
    row("no language", R"({"warnings": [{"line": "x", "en": "x"}, {"line": "x", "English": ""}]})",
        "warnings[1].English: unknown key; expected line, the name of a language");
    row("surplus marker", R"({"warnings": [{"line": "x %1", "en": "%1 and %2"}]})",
        "warnings[0].en: \"%2\"; expected a marker that the line has, too");
}

void CheckCommandTest::refusesFacts()
{
    QFETCH(QByteArray, facts);
    QFETCH(QString, err);
    const QString plugin = m_oprun.filePath("libFaulty.so");
    QFile::copy(PLUGIN_FILE, plugin);
    QVERIFY(m_oprun.write("libFaulty.facts.json", facts));
    const OprunFolder::Outcome outcome = m_oprun.run({"check", "clean.json", "--plugin", plugin},
                                                     {{"LD_LIBRARY_PATH", LIBRARY_FOLDER}});
    QCOMPARE(outcome.err, "oprun: " + m_oprun.filePath("libFaulty.facts.json") + ": " + err + '\n');
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 2);
}

void CheckCommandTest::oneLineEach()
{
    // Line breaks of any kind, in names and operands, do not break the lines.
    const OprunFolder::Outcome outcome = check(R"({"variables": {"a\nb\u2028c": {"type": "int"}},
        "steps": [{"type": "text.reverse", "sourceText": "$x\n\u2028y", "resultVar": "r\r\n"}]})");
    QCOMPARE(outcome.out.count('\n'), 3 * 3 + 1);
    QVERIFY(!outcome.out.contains(QChar(0x2028)));
    QVERIFY2(outcome.out.contains("\nvariables.a\\nb\\u2028c: note: "), qPrintable(outcome.out));
}

void CheckCommandTest::nothingRuns()
{
    // This step would log a warning.
    const OprunFolder::Outcome outcome = check(R"({"variables": {"n": {"type": "int"}},
        "steps": [{"type": "text.reverse", "sourceText": "x", "resultVar": "n"}]})");
    QCOMPARE(outcome.err, QString());
    QVERIFY(outcome.out.startsWith("steps[0] text.reverse resultVar: error: "));
}

void CheckCommandTest::otherPlugins()
{
    const QByteArray greeting = R"({"variables": {"name": {"type": "string", "value": "世界"},
        "r": {"type": "int"}}, "steps": [{"type": "greet.hello", "who": "$nmae", "resultVar": "r"}]})";
    const OprunFolder::Outcome greeted = check(greeting, {"--plugin", GREET_PLUGIN});
    QCOMPARE(greeted.out.section('\n', 0, 0),
             QString("steps[0] greet.hello who: error: \"$nmae\" names no variable "
                     "[undeclared-variable]"));
    QCOMPARE(greeted.out.section('\n', 3, 3),
             QString("steps[0] greet.hello resultVar: error: \"r\" is declared as int, not as "
                     "string [result-type]"));
    QCOMPARE(greeted.status, 1);
    QCOMPARE(check(R"({"variables": {"r": {"type": "string"}},
                       "steps": [{"type": "greet.hello", "who": "世界", "resultVar": "r"}]})",
                   {"--plugin", GREET_PLUGIN})
                 .out,
             QString("no findings\n"));

    const OprunFolder::Outcome edited = check(
        R"({"steps": [{"type": "editors.operands", "mode": 9}]})", {"--plugin", EDITORS_PLUGIN});
    QVERIFY2(edited.out.startsWith("steps[0] editors.operands mode: warning: 9 is none of the "
                                   "choices, which are 0 to 2 [unknown-mode]\n"),
             qPrintable(edited.out));
}

void CheckCommandTest::examplesHaveEveryMistake()
{
    const QDir folder(PROJECT_FOLDER "/examples/mistakes");
    const QStringList files = folder.entryList({"*.findings"});
    QVERIFY(files.size() >= 5);
    QByteArray all;
    for (const QString &file : files)
        all += readAll(folder.filePath(file));
    const QStringList ids = mistakeIds();
    for (const QString &id : ids)
        QVERIFY2(all.contains('[' + id.toUtf8() + "]\n"), qPrintable(id));
}

void CheckCommandTest::everyMistakeIsDocumented()
{
    const QString page = QString::fromUtf8(readAll(PROJECT_FOLDER "/docs/oprun.md"));
    const QString section = page.section("\n## Finding mistakes\n", 1).section("\n## ", 0, 0);
    QStringList documented;
    auto match = QRegularExpression("^\\| `([a-z-]+)` \\|", QRegularExpression::MultilineOption)
                     .globalMatch(section);
    while (match.hasNext())
        documented.append(match.next().captured(1));
    QCOMPARE(documented, mistakeIds());
}

QTEST_GUILESS_MAIN(CheckCommandTest)

#include "CheckCommandTest.moc"
