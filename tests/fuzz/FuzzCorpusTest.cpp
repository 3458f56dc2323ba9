#include "tests/fuzz/JsonCheck.h"
#include "tests/fuzz/RecordCheck.h"
#include "tests/fuzz/SearchCheck.h"
#include "tests/fuzz/StepCheck.h"

#include <QDir>
#include <QtTest>

#include <random>

using Check = QString (*)(ByteSource);

Q_DECLARE_METATYPE(Check)

/// The checks of the fuzz targets without a fuzzer: on its kept inputs, and on random ones.
class FuzzCorpusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kept_data() { addChecks(); }
    void kept();
    void random_data() { addChecks(); }
    void random();

private:
    static void addChecks();
    static QString run(const QByteArray &bytes);
};

void FuzzCorpusTest::addChecks()
{
    QTest::addColumn<Check>("check");
    QTest::newRow("step") << &checkStep;
    QTest::newRow("search") << &checkSearch;
    QTest::newRow("record") << &checkRecord;
    QTest::newRow("json") << &checkJson;
}

QString FuzzCorpusTest::run(const QByteArray &bytes)
{
    QFETCH(Check, check);
    return check(ByteSource(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                            static_cast<std::size_t>(bytes.size())));
}

void FuzzCorpusTest::kept()
{
    QDir folder(CORPUS_FOLDER);
    QVERIFY(folder.cd(QTest::currentDataTag()));
    const QStringList names = folder.entryList(QDir::Files);
    QVERIFY2(names.size() >= 20, "the kept inputs are not there");
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString difference = run(file.readAll());
        QVERIFY2(difference.isEmpty(), qPrintable(name + ": " + difference));
    }
}

void FuzzCorpusTest::random()
{
    std::mt19937 generator(20211120);
    std::uniform_int_distribution<int> size(8, 160);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int i = 0; i < 20000; ++i) {
        QByteArray bytes(size(generator), '\0');
        for (char &value : bytes)
            value = static_cast<char>(byte(generator));
        const QString difference = run(bytes);
        QVERIFY2(difference.isEmpty(), qPrintable(bytes.toHex() + ": " + difference));
    }
}

QTEST_GUILESS_MAIN(FuzzCorpusTest)

#include "FuzzCorpusTest.moc"
