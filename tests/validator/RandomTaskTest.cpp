#include "refhost/validator/trials/RandomTask.h"
#include "refhost/engine/JsonFile.h"
#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskWriter.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/OddSettings.h"
#include "refhost/validator/trials/RandomSource.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"

#include "tests/support/QuietTest.h"

#include "Operation.h"

#include <QtTest>

/// Random tasks are what their files say: a task read from its file is the task that was run.
class RandomTaskTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void filesGiveTheSameTask();
    void seedDecides();

private:
    CheckContext m_context{PLUGIN_FILE, 1, {}, {}};
    const OperationCatalog m_catalog{{PLUGIN_FILE}};
};

void RandomTaskTest::initTestCase()
{
    QCOMPARE(m_context.loadPlugin().value_or(QString()), QString());
}

void RandomTaskTest::filesGiveTheSameTask()
{
    constexpr int tasks = 200;
    const OperationCatalog noCatalog{QStringList()};
    const QList<Operation *> prototypes = m_context.newPrototypes();
    for (Operation *prototype : prototypes) {
        Specimen specimen(*prototype, m_context);
        RandomSource source(1, specimen.name());
        for (int i = 0; i < tasks; ++i) {
            const Task task = randomTask(source, specimen);
            const QByteArray bytes = indentedJson(taskToJson(task, noCatalog));
            const auto json = parseJsonObject(bytes, "file");
            QVERIFY2(json, bytes.constData());
            const auto read = TaskReader(m_catalog).read(json.value());
            if (!read)
                QFAIL(qPrintable(read.problem().toString()));
            const QStringList differing =
                differingNames(read.value().startScope(), task.startScope());
            QVERIFY2(differing.isEmpty(), qPrintable(differing.join(", ")));
            QCOMPARE(differences(*read.value().steps.front(), *task.steps.front(),
                                 OperationClass(*prototype)),
                     QStringList());
        }
    }
    qDeleteAll(prototypes);
}

void RandomTaskTest::seedDecides()
{
    const QList<Operation *> prototypes = m_context.newPrototypes();
    Specimen specimen(*prototypes.first(), m_context);
    const OperationCatalog noCatalog{QStringList()};
    const auto make = [&](quint32 seed, const QString &theme) {
        RandomSource source(seed, theme);
        QByteArray tasks;
        for (int i = 0; i < 10; ++i)
            tasks += indentedJson(taskToJson(randomTask(source, specimen), noCatalog));
        return tasks;
    };
    QCOMPARE(make(3, "text"), make(3, "text"));
    QVERIFY(make(3, "text") != make(4, "text"));
    QVERIFY(make(3, "text") != make(3, "test"));
    qDeleteAll(prototypes);
}

QTEST_GUILESS_MAIN(RandomTaskTest)

#include "RandomTaskTest.moc"
