#include "tests/support/QuietTest.h"

#include "refhost/engine/FactBook.h"
#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskRunner.h"
#include "refhost/engine/check/TaskCheck.h"

#include "Operation.h"

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(JsonObject)

/// Tasks without a mistake that use every property and every choice: a check finds nothing in them,
/// they run without a warning, and what they give is what was meant.
class CorrectTasksTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tasks_data();
    void tasks();
    void everySettingIsUsed();

private:
    void noteUse(const Operation &step);

    std::unique_ptr<OperationCatalog> m_catalog;
    FactBook m_book;
    JsonArray m_tasks;
    QSet<QString> m_used; ///< "type.property=value" of choices and flags, otherwise "type.property"
};

namespace {

bool hasFewValues(const PropertySchema &property)
{
    return !property.choices.isEmpty() || property.typeName == "bool";
}

QString useOf(const QString &typeId, const PropertySchema &property, const QVariant &value)
{
    const QString use = typeId + '.' + property.name;
    return hasFewValues(property) ? use + '=' + QString::number(value.toInt()) : use;
}

} // namespace

void CorrectTasksTest::initTestCase()
{
    m_catalog = std::make_unique<OperationCatalog>(QStringList(PLUGIN_FILE));
    const Result<FactBook> book = FactBook::read(*m_catalog);
    QVERIFY2(book, qPrintable(book ? QString() : book.problem().toString()));
    m_book = book.value();
    QFile file(TASKS_FILE);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Result<JsonValue> tasks = parseJson(file.readAll());
    QVERIFY2(tasks, qPrintable(tasks ? QString() : tasks.problem().toString()));
    m_tasks = tasks.value().toArray();
    QVERIFY(m_tasks.size() >= 40);
}

void CorrectTasksTest::tasks_data()
{
    QTest::addColumn<JsonObject>("json");
    QSet<QString> names;
    for (const JsonValue &task : qAsConst(m_tasks)) {
        const QString name = task.toObject().value("name").toString();
        QVERIFY2(!names.contains(name), qPrintable(name));
        names.insert(name);
        QTest::newRow(qPrintable(name)) << task.toObject();
    }
}

void CorrectTasksTest::tasks()
{
    QFETCH(JsonObject, json);
    const Result<Task> task =
        TaskReader(*m_catalog)
            .read({{"variables", json.value("variables")}, {"steps", json.value("steps")}});
    QVERIFY2(task, qPrintable(task ? QString() : task.problem().toString()));
    for (const Finding &finding : checkTask(task.value(), *m_catalog, m_book))
        QFAIL(qPrintable(finding.place() + ": " + finding.message));

    VariableScope scope = task.value().startScope();
    runTask(task.value(), scope, [&](const StepReport &report) {
        QVERIFY2(report.warnings.isEmpty(), qPrintable(report.warnings.join('\n')));
        noteUse(*report.step);
    });
    const JsonObject results = json.value("results").toObject();
    QVERIFY(!results.isEmpty());
    for (const JsonMember &result : results)
        QCOMPARE(jsonText(variantToJson(scope.get(result.key))), jsonText(result.value));
}

void CorrectTasksTest::noteUse(const Operation &step)
{
    const QString typeId = step.typeId();
    const OperationSchema schema(*m_catalog->find(typeId)->prototype);
    for (const PropertySchema &property : schema.properties()) {
        const QVariant value = step.property(qPrintable(property.name));
        if (hasFewValues(property) || value != property.defaultValue)
            m_used.insert(useOf(typeId, property, value));
    }
}

void CorrectTasksTest::everySettingIsUsed()
{
    if (m_used.isEmpty())
        return; // this function alone was asked for
    QCOMPARE(m_catalog->entries().size(), 13);
    for (const CatalogEntry &entry : m_catalog->entries()) {
        const OperationSchema schema(*entry.prototype);
        for (const PropertySchema &property : schema.properties()) {
            const int values = property.typeName == "bool" ? 2 : property.choices.size();
            for (int value = 0; value < qMax(values, 1); ++value) {
                const QString use = useOf(entry.typeId, property, value);
                QVERIFY2(m_used.contains(use), qPrintable(use));
            }
        }
    }
}

QTEST_GUILESS_MAIN(CorrectTasksTest)

#include "CorrectTasksTest.moc"
