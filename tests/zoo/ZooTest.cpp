#include "tests/support/OprunProcess.h"
#include "tests/support/QuietTest.h"
#include "tests/zoo/Animals.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QtTest>

/// Every animal of the zoo fails the checks it was made to fail, and no other; and every check has
/// an animal that it catches.
class ZooTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void soundAnimalPasses();
    void animals_data();
    void animals();
    void everyAnimalIsTold();
    void everyCheckCatchesOne();
};

namespace {

QList<Animal> allAnimals()
{
    return fileAnimals() + catalogueAnimals() + schemaAnimals();
}

QString fileOf(const QString &name)
{
    return QString(ZOO_FOLDER) + "/lib" + name + ".so";
}

/// The checks in the JSON that oprun printed about one plug-in.
QJsonArray checksIn(const QString &out)
{
    const QJsonObject json = QJsonDocument::fromJson(out.toUtf8()).object();
    return json.value("plugins").toArray().at(0).toObject().value("checks").toArray();
}

} // namespace

void ZooTest::soundAnimalPasses()
{
    const OprunOutcome outcome =
        runProgram(OPRUN_FILE, {"validate", "--level", "5", fileOf("Sound"), "--json"});
    QCOMPARE(outcome.err, QString());
    const QJsonArray checks = checksIn(outcome.out);
    QVERIFY(!checks.isEmpty());
    for (const QJsonValue &check : checks)
        QVERIFY2(check["result"] == "passed", qPrintable(outcome.out));
    QCOMPARE(outcome.status, 0);
}

void ZooTest::animals_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("caught");
    QTest::addColumn<QString>("detail");
    QTest::addColumn<QStringList>("options");
    for (const Animal &animal : allAnimals()) {
        QTest::newRow(qPrintable(animal.name))
            << animal.status << animal.caught << animal.detail << animal.options;
    }
}

void ZooTest::animals()
{
    QFETCH(QStringList, options);
    const OprunOutcome outcome =
        runProgram(OPRUN_FILE, QStringList{"validate", "--level", "5", "--json",
                                           fileOf(QTest::currentDataTag())} +
                                   options);
    QCOMPARE(outcome.err, QString());
    QStringList caught;
    QString details;
    for (const QJsonValue &check : checksIn(outcome.out)) {
        const QString result = check["result"].toString();
        if (result == "passed" || result == "skipped")
            continue;
        caught.append(result + ' ' + check["id"].toString());
        details += check["details"].toVariant().toStringList().join('\n') + '\n';
    }
    QFETCH(QString, detail);
    QTEST(caught, "caught");
    QVERIFY2(details.contains(detail), qPrintable(details));
    QTEST(outcome.status, "status");
}

void ZooTest::everyAnimalIsTold()
{
    QSet<QString> told{"Sound"};
    for (const Animal &animal : allAnimals())
        told.insert(animal.name);
    const QStringList headers = QDir(ANIMAL_FOLDER).entryList({"*.h"});
    for (const QString &header : headers)
        QVERIFY2(told.contains(header.chopped(2)), qPrintable(header));
}

void ZooTest::everyCheckCatchesOne()
{
    QStringList caught;
    for (const Animal &animal : allAnimals()) {
        for (const QString &one : animal.caught)
            caught.append(one.section(' ', -1));
    }
    const OprunOutcome outcome = runProgram(OPRUN_FILE, {"validate", "--list"});
    const QStringList lines = outcome.out.split('\n', Qt::SkipEmptyParts);
    QVERIFY(!lines.isEmpty());
    for (const QString &line : lines)
        QVERIFY2(caught.contains(line.section(' ', 0, 0)), qPrintable(line));
}

QTEST_GUILESS_MAIN(ZooTest)

#include "ZooTest.moc"
