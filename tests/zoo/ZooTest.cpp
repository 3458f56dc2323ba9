#include "tests/support/OprunProcess.h"
#include "tests/support/QuietTest.h"
#include "tests/zoo/Animals.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

/// Every animal of the zoo fails the checks it was made to fail, and no other; and every check has
/// an animal that it catches.
class ZooTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void soundAnimalPasses();
    void exampleLacksOnlyItsIcon();
    void animals_data();
    void animals();
    void everyAnimalIsTold();
    void everyCheckCatchesOne();

private:
    QString fileOf(const QString &name) const;
    void makeAnimal(const QString &name, const QByteArray &content) const;

    QTemporaryDir m_made; ///< the animals that are not built but made of bytes
    QMap<QString, OprunOutcome> m_outcomes;
};

namespace {

/// The animals, to be looked at up to the level of their fault: those below have had their turn.
QList<Animal> upTo(int level, QList<Animal> animals)
{
    for (Animal &animal : animals)
        animal.options = QStringList{"--level", QString::number(level)} + animal.options;
    return animals;
}

QList<Animal> allAnimals()
{
    return upTo(3, fileAnimals() + catalogueAnimals() + schemaAnimals()) +
           upTo(4, behaviourAnimals()) + upTo(5, hostileAnimals());
}

/// A plug-in like `sound` that says of itself to be built with this minor version of Qt, and in
/// this mode, 0 for release and 1 for debug.
QByteArray builtWith(QByteArray sound, char minorVersion, char mode)
{
    // Magic, format, major version, minor version, mode.
    const QByteArray magic = "QTMETADATA !";
    const int header = sound.indexOf(magic) + magic.size();
    sound[header + 2] = minorVersion;
    sound[header + 3] = mode;
    return sound;
}

OprunOutcome validate(const QString &file, const QStringList &options)
{
    static const QTemporaryDir kept; // for the tasks that are left behind
    const QStringList arguments{"validate", "--json", file, "--keep", kept.path()};
    return runProgram(OPRUN_FILE, arguments + options);
}

/// Does the work on all numbers below `count`, as many at a time as there are processors.
void inParallel(int count, const std::function<void(int)> &work)
{
    std::atomic<int> next = 0;
    std::vector<std::thread> threads(static_cast<std::size_t>(QThread::idealThreadCount()));
    for (std::thread &thread : threads) {
        thread = std::thread([&] {
            for (int number = next++; number < count; number = next++)
                work(number);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}

/// The checks in the JSON that oprun printed about one plug-in.
QJsonArray checksIn(const QString &out)
{
    const QJsonObject json = QJsonDocument::fromJson(out.toUtf8()).object();
    return json.value("plugins").toArray().at(0).toObject().value("checks").toArray();
}

/// "result id" of each check in the JSON that neither passed nor was skipped; their details are
/// added to `details`.
QStringList caughtIn(const QString &out, QString &details)
{
    QStringList caught;
    const QJsonArray checks = checksIn(out);
    for (const QJsonValue &check : checks) {
        const QString result = check["result"].toString();
        if (result == "passed" || result == "skipped")
            continue;
        caught.append(result + ' ' + check["id"].toString());
        details += check["details"].toVariant().toStringList().join('\n') + '\n';
    }
    return caught;
}

} // namespace

QString ZooTest::fileOf(const QString &name) const
{
    const QString file = "/lib" + name + ".so";
    return QFile::exists(ZOO_FOLDER + file) ? ZOO_FOLDER + file : m_made.path() + file;
}

void ZooTest::makeAnimal(const QString &name, const QByteArray &content) const
{
    QFile file(fileOf(name));
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.errorString()));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void ZooTest::initTestCase()
{
    QFile file(fileOf("Sound"));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
    const QByteArray sound = file.readAll();
#ifdef QT_NO_DEBUG
    const char mode = 0;
#else
    const char mode = 1;
#endif
    makeAnimal("NewerQt", builtWith(sound, 99, mode));
    makeAnimal("OtherMode", builtWith(sound, 15, char(1 - mode)));
    makeAnimal("TextFile", "No library at all.\n");

    const QList<Animal> animals = allAnimals();
    std::vector<OprunOutcome> outcomes(std::size_t(animals.size()));
    inParallel(animals.size(), [&](int number) {
        const Animal &animal = animals.at(number);
        outcomes[std::size_t(number)] = validate(fileOf(animal.name), animal.options);
    });
    for (int i = 0; i < animals.size(); ++i)
        m_outcomes.insert(animals.at(i).name, outcomes[std::size_t(i)]);
}

void ZooTest::soundAnimalPasses()
{
    const OprunOutcome outcome = validate(fileOf("Sound"), {"--level", "5", "--operands"});
    QCOMPARE(outcome.err, QString());
    const QJsonArray checks = checksIn(outcome.out);
    QVERIFY(!checks.isEmpty());
    for (const QJsonValue &check : checks)
        QVERIFY2(check["result"] == "passed", qPrintable(outcome.out));
    QCOMPARE(outcome.status, 0);
}

void ZooTest::exampleLacksOnlyItsIcon()
{
    // The example in the interface header leaves the drawing to its reader.
    const OprunOutcome outcome = validate(GREET_PLUGIN, {"--level", "5"});
    QString details;
    const QStringList failed = caughtIn(outcome.out, details).filter("failed ");
    QCOMPARE(failed, QStringList("failed catalog.icons"));
    QVERIFY2(details.contains("greet.hello: icon: "), qPrintable(details));
}

void ZooTest::animals_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("caught");
    QTest::addColumn<QString>("detail");
    for (const Animal &animal : allAnimals()) {
        QTest::newRow(qPrintable(animal.name)) << animal.status << animal.caught << animal.detail;
    }
}

void ZooTest::animals()
{
    const OprunOutcome outcome = m_outcomes.value(QTest::currentDataTag());
    QCOMPARE(outcome.err, QString());
    QString details;
    const QStringList caught = caughtIn(outcome.out, details);
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
