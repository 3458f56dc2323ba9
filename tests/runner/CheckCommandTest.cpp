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
    row("no task", {"check"}, "check: no argument; expected TASK. Try \"oprun --help\".", 2);
    row("two tasks", {"check", "a", "b"}, "check: a b; expected TASK. Try \"oprun --help\".", 2);
    row("option of a run", {"check", "task.json", "--trace"},
        "Unknown option 'trace'. Try \"oprun --help\".", 2);
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
