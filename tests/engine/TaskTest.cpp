#include "tests/support/QuietTest.h"

#include "refhost/engine/JsonFile.h"
#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskRunner.h"
#include "refhost/engine/TaskWriter.h"

#include "Operation.h"

#include <QTemporaryDir>
#include <QtTest>

/// Reading, running and writing tasks on the built plug-in.
class TaskTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void reads();
    void refuses_data();
    void refuses();
    void refusesFiles_data();
    void refusesFiles();
    void runs();
    void tellsBeforeAndAfter();
    void runsAgain();
    void writesWhatItReads();
    void writesForeignSteps();

private:
    std::unique_ptr<OperationCatalog> m_catalog;
};

namespace {

const char sampleTask[] = R"({
    "variables": {
        "line": {"type": "string", "value": "key=value;"},
        "part": {"type": "string"},
        "count": {"type": "int", "value": 3}
    },
    "steps": [
        {"type": "text.append", "sourceText": "$line", "appendText": "!", "resultVar": "part"},
        {"type": "text.append", "sourceText": "$part", "appendText": "?", "resultVar": "count"},
        {"type": "text.append"}
    ]
})";

/// The value as text, the keys of its objects in ascending order.
QString sorted(const JsonValue &value)
{
    QStringList parts;
    for (const JsonMember &member : value.toObject())
        parts.append(jsonText(member.key) + ':' + sorted(member.value));
    parts.sort();
    for (const JsonValue &element : value.toArray())
        parts.append(sorted(element));
    const bool isScalar = !value.isArray() && !value.isObject();
    return isScalar ? jsonText(value) : '[' + parts.join(',') + ']';
}

} // namespace

void TaskTest::initTestCase()
{
    m_catalog = std::make_unique<OperationCatalog>(QStringList(PLUGIN_FILE));
    QVERIFY(m_catalog->failures().isEmpty());
}

void TaskTest::reads()
{
    const auto json = parseJsonObject(sampleTask, "task.json");
    QVERIFY(json);
    Result<Task> task = TaskReader(*m_catalog).read(json.value());
    QVERIFY2(task, qPrintable(task ? QString() : task.problem().toString()));
    QCOMPARE(task.value().variables.size(), 3);
    QCOMPARE(task.value().variable("line")->value, QVariant("key=value;"));
    QCOMPARE(task.value().variable("count")->type, VarType::Int);
    QVERIFY(!task.value().variable("Line"));
    QCOMPARE(task.value().steps.size(), std::size_t(3));
    QCOMPARE(task.value().steps.front()->property("sourceText"), QVariant("$line"));

    const VariableScope scope = task.value().startScope();
    QCOMPARE(scope.get("part"), QVariant(""));
    QCOMPARE(scope.get("count"), QVariant(3));
}

void TaskTest::refuses_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("text");

    using Reason = Problem::Reason;
    const auto row = [](const char *name, const char *json, Reason reason, const QString &text) {
        QTest::newRow(name) << json << int(reason) << text;
    };
    const QString allTypes = m_catalog->typeIds().join(", ");
    row("no steps", "{}", Reason::MissingKey, "steps: missing; expected an array of steps");
    row("steps no array", R"({"steps": {}})", Reason::WrongKind,
        "steps: {}; expected an array of steps");
    row("unknown key", R"({"steps": [], "setps": []})", Reason::UnknownKey,
        "unknown key \"setps\"; expected variables, steps (did you mean \"steps\"?)");
    row("variables no object", R"({"steps": [], "variables": [1]})", Reason::WrongKind,
        "variables: [1]; expected an object of variables");
    row("variable no object", R"({"steps": [], "variables": {"a": "x"}})", Reason::WrongKind,
        "variables.a: \"x\"; expected an object with \"type\" and \"value\"");
    row("nameless variable", R"({"steps": [], "variables": {"": {"type": "int"}}})",
        Reason::UnfitValue, "variables.: an empty name; expected a name");
    row("variable without a type", R"({"steps": [], "variables": {"a": {"value": 1}}})",
        Reason::MissingKey,
        "variables.a.type: missing; expected int, double, string, bool, list, table");
    row("unknown variable type", R"({"steps": [], "variables": {"a": {"type": "text"}}})",
        Reason::UnknownType,
        "variables.a.type: \"text\"; expected int, double, string, bool, list, table");
    row("unknown key of a variable",
        R"({"steps": [], "variables": {"a": {"type": "int", "v": 1}}})", Reason::UnknownKey,
        "variables.a: unknown key \"v\"; expected type, value");
    row("unfit value", R"({"steps": [], "variables": {"a": {"type": "int", "value": "1"}}})",
        Reason::UnfitValue,
        "variables.a.value: \"1\"; expected a whole number from -2147483648 to 2147483647");
    row("step no object", R"({"steps": [5]})", Reason::WrongKind,
        "steps[0]: 5; expected an object with \"type\" and properties");
    row("step without a type", R"({"steps": [{}]})", Reason::MissingKey,
        "steps[0].type: missing; expected " + allTypes);
    row("unknown step type", R"({"steps": [{"type": "text.append"}, {"type": "text.glue"}]})",
        Reason::UnknownType, "steps[1].type: \"text.glue\"; expected " + allTypes);
    row("type no string", R"({"steps": [{"type": 1}]})", Reason::UnknownType,
        "steps[0].type: 1; expected " + allTypes);
    row("unknown property", R"({"steps": [{"type": "text.append", "source": ""}]})",
        Reason::UnknownKey,
        "steps[0].source: text.append has no such property; "
        "expected sourceText, appendText, resultVar");
    row("property of QObject", R"({"steps": [{"type": "text.append", "objectName": "x"}]})",
        Reason::UnknownKey,
        "steps[0].objectName: text.append has no such property; "
        "expected sourceText, appendText, resultVar");
    row("unfit property", R"({"steps": [{"type": "text.append", "sourceText": 1}]})",
        Reason::UnfitValue, "steps[0].sourceText: 1; expected a string");
}

void TaskTest::refuses()
{
    QFETCH(QString, json);
    QFETCH(int, reason);
    const auto object = parseJsonObject(json.toUtf8(), {});
    QVERIFY(object);
    const Result<Task> task = TaskReader(*m_catalog).read(object.value());
    QVERIFY(!task);
    QCOMPARE(int(task.problem().reason), reason);
    QTEST(task.problem().toString(), "text");
}

void TaskTest::refusesFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("text");

    using Reason = Problem::Reason;
    const auto row = [](const char *name, const char *content, Reason reason, const char *text) {
        QTest::newRow(name) << QByteArray(content) << int(reason) << text;
    };
    row("empty", "", Reason::MalformedJson,
        "line 1, column 1: an empty text; expected an object in braces");
    row("missing comma", "{\n  \"steps\": []\n  \"x\": 1\n}", Reason::MalformedJson,
        "line 3, column 3: malformed JSON (\"\\\"\"; expected \",\" or \"}\" after a member)");
    row("column counts characters", "{\"变量\": nul}", Reason::MalformedJson,
        "line 1, column 8: malformed JSON (\"nul\"; expected a value)");
    row("more behind it", "{\"steps\": []}\n}", Reason::MalformedJson,
        "line 2, column 1: malformed JSON (\"}\"; expected the end of the text)");
    row("null", "null", Reason::WrongKind, "line 1, column 1: null; expected an object in braces");
    row("array", "[]", Reason::WrongKind,
        "line 1, column 1: an array; expected an object in braces");
    row("the file is named", "{\"steps\": 1}", Reason::WrongKind,
        "steps: 1; expected an array of steps");
}

void TaskTest::refusesFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(int, reason);
    QFETCH(QString, text);
    const QTemporaryDir folder;
    const QString path = folder.filePath("任务.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    const Result<Task> task = TaskReader(*m_catalog).readFile(path);
    QVERIFY(!task);
    QCOMPARE(int(task.problem().reason), reason);
    QCOMPARE(task.problem().toString(), path + ": " + text);
}

void TaskTest::runs()
{
    const auto json = parseJsonObject(sampleTask, {});
    Result<Task> task = TaskReader(*m_catalog).read(json.value());
    QVERIFY(task);
    VariableScope scope = task.value().startScope();
    QStringList log;
    runTask(task.value(), scope, [&](const StepReport &report) {
        log.append(
            QString("%1 %2 [%3] [%4]")
                .arg(report.index)
                .arg(report.step->typeId(), report.written.join(','), report.warnings.join(',')));
    });
    QCOMPARE(log, QStringList({"0 text.append [part] []",
                               "1 text.append [] [[TextOp] 变量 \"count\" 未声明为字符串，已跳过]",
                               "2 text.append [] [[TextAppend] 未指定结果变量，已跳过]"}));
    QCOMPARE(scope.get("part"), QVariant("key=value;!"));
    QCOMPARE(scope.get("count"), QVariant(3));
    // The steps are through with the scope.
    task.value().steps.front()->doOperation();
    QCOMPARE(takeWarnings(), QStringList());
}

void TaskTest::tellsBeforeAndAfter()
{
    const auto json = parseJsonObject(sampleTask, {});
    const Result<Task> task = TaskReader(*m_catalog).read(json.value());
    QVERIFY(task);
    VariableScope scope = task.value().startScope();
    QStringList log;
    runTask(
        task.value(), scope,
        [&](const StepReport &report) {
            log.append(QString("%1 after: %2").arg(report.index).arg(scope.get("part").toString()));
        },
        [&](const Operation &step) {
            log.append(QString("%1 before: %2").arg(step.typeId(), scope.get("part").toString()));
        });
    QCOMPARE(log, QStringList({"text.append before: ", "0 after: key=value;!",
                               "text.append before: key=value;!", "1 after: key=value;!",
                               "text.append before: key=value;!", "2 after: key=value;!"}));
}

void TaskTest::runsAgain()
{
    const auto json = parseJsonObject(
        R"({"variables": {"a": {"type": "string", "value": "x"}},
            "steps": [{"type": "text.append", "sourceText": "$a", "appendText": "y",
                       "resultVar": "a"}]})",
        {});
    Result<Task> task = TaskReader(*m_catalog).read(json.value());
    QVERIFY(task);
    for (int round = 0; round < 2; ++round) {
        VariableScope scope = task.value().startScope();
        runTask(task.value(), scope, [](const StepReport &) {});
        QCOMPARE(scope.get("a"), QVariant("xy"));
    }
}

void TaskTest::writesWhatItReads()
{
    const auto json = parseJsonObject(sampleTask, {});
    const Result<Task> task = TaskReader(*m_catalog).read(json.value());
    QVERIFY(task);
    const JsonObject written = taskToJson(task.value(), *m_catalog);
    QCOMPARE(written.keys(), QStringList({"steps", "variables"}));
    for (const char *const key : {"steps", "variables"})
        QCOMPARE(sorted(written.value(key)), sorted(json.value().value(key)));
    // In their order.
    QCOMPARE(written.value("variables").toObject().keys(), QStringList({"line", "part", "count"}));
}

void TaskTest::writesForeignSteps()
{
    // Without its plug-in a step has no known defaults, so all its properties are written.
    const auto json = parseJsonObject(R"({"steps": [{"type": "text.append"}]})", {});
    const Result<Task> task = TaskReader(*m_catalog).read(json.value());
    QVERIFY(task);
    const JsonObject step = stepToJson(*task.value().steps.front(), OperationCatalog({}));
    QCOMPARE(step.keys(), QStringList({"appendText", "resultVar", "sourceText", "type"}));
}

QTEST_GUILESS_MAIN(TaskTest)

#include "TaskTest.moc"
