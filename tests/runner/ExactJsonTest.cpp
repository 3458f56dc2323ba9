#include "tests/engine/RandomJson.h"
#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonWriter.h"

#include <QtTest>

#include <cmath>

/// What one oprun writes, another reads as the same values.
class ExactJsonTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void rows();
    void tasks();
    void unicodeOutsideJson();

private:
    std::unique_ptr<OprunFolder> m_folder;
};

namespace {

/// Names of variables that are hard to write.
const QStringList names{"l", QString(QChar(0xFEFF)) + "d", QString("s\"\n") + QChar(0xD800),
                        QString("t") + QChar(0xFFFF)};

/// A task with a list, a double, a string and a table that are empty, and no steps.
JsonValue emptyTask()
{
    const char *const types[] = {"list", "double", "string", "table"};
    JsonObject variables;
    for (int i = 0; i < names.size(); ++i)
        variables.append(names.at(i), JsonObject{{"type", QString(types[i])}});
    return JsonObject{{"variables", variables}, {"steps", JsonArray()}};
}

/// Values for the variables of the task.
JsonObject values(RandomJson &random)
{
    JsonArray table;
    for (int i = 0; i < 3; ++i)
        table.append(random.list());
    return {{names.at(0), random.list()},
            {names.at(1), random.finiteDouble()},
            {names.at(2), random.string()},
            {names.at(3), table}};
}

} // namespace

void ExactJsonTest::initTestCase()
{
    m_folder = std::make_unique<OprunFolder>(OPRUN_FILE);
    QVERIFY(m_folder->write("task.json", indentedJson(emptyTask())));
}

void ExactJsonTest::rows()
{
    constexpr int rowCount = 3000;
    RandomJson random(42);
    QList<JsonObject> expected;
    QByteArray rows;
    for (int i = 0; i < rowCount; ++i) {
        expected.append(values(random));
        appendJson(rows, expected.last());
        rows += '\n';
    }
    QVERIFY(m_folder->write("rows", rows));
    const auto first = m_folder->run({"run", "task.json", "--each", "rows", "--out", "first"});
    QCOMPARE(first.status, 0);
    const auto second = m_folder->run({"run", "task.json", "--each", "first", "--out", "second"});
    QCOMPARE(second.status, 0);
    const QByteArray written = m_folder->read("first");
    QCOMPARE(m_folder->read("second"), written);
    const QList<QByteArray> lines = written.split('\n');
    QCOMPARE(lines.size(), rowCount + 1);
    for (int i = 0; i < rowCount; ++i) {
        JsonObject sorted = expected.at(i);
        sorted.sort();
        const Result<JsonValue> line = parseJson(lines.at(i));
        QVERIFY2(line && isSameJson(sorted, line.value()), lines.at(i).constData());
    }
}

void ExactJsonTest::tasks()
{
    RandomJson random(43);
    for (int round = 0; round < 20; ++round) {
        const JsonObject start = values(random);
        JsonObject variables;
        for (const JsonMember &member : emptyTask().toObject().value("variables").toObject()) {
            JsonObject settings = member.value.toObject();
            settings.append("value", start.value(member.key));
            variables.append(member.key, settings);
        }
        const JsonObject task{{"steps", JsonArray()}, {"variables", variables}};
        QVERIFY(m_folder->write("random.json", indentedJson(task)));
        QCOMPARE(m_folder->run({"pack", "random.json", "random.task"}).err, QString());
        QCOMPARE(m_folder->run({"unpack", "random.task", "again.json"}).err, QString());
        QCOMPARE(m_folder->read("again.json"), m_folder->read("random.json"));
        JsonObject sorted = start;
        sorted.sort();
        const auto printed = m_folder->run({"run", "again.json", "--json"});
        const Result<JsonValue> back = parseJson(printed.bytes);
        QVERIFY2(back && isSameJson(sorted, back.value()), printed.bytes.constData());
    }
}

/// The byte order mark and unpaired surrogates are escaped wherever JSON is printed.
void ExactJsonTest::unicodeOutsideJson()
{
    QVERIFY(m_folder->write("bom.json", R"({"steps": [], "variables": {
        "a": {"type": "string", "value": "\ufeffx\ud800"}}})"));
    for (const QStringList &options : {QStringList{}, {"--json"}}) {
        const auto outcome = m_folder->run(QStringList{"run", "bom.json"} + options);
        QVERIFY2(outcome.bytes.contains(R"("\ufeffx\ud800")"), outcome.bytes.constData());
    }
}

QTEST_GUILESS_MAIN(ExactJsonTest)

#include "ExactJsonTest.moc"
