#include "tests/golden/GoldenFolder.h"
#include "tests/support/QuietTest.h"
#include "tests/support/Records.h"

#include "refhost/engine/ExactValue.h"
#include "refhost/engine/FileBytes.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/TaskPacker.h"
#include "refhost/engine/TaskUnpacker.h"

#include <QCryptographicHash>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QVersionNumber>
#include <QtTest>

#include <algorithm>
#include <memory>

Q_DECLARE_METATYPE(GoldenRecord)

/// Records and packed tasks of all versions, one folder each, with the plug-in as a host loads it.
class GoldenRecordsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyOperationHasRecords();
    void nothingElseIsKept_data() { eachVersion(); }
    void nothingElseIsKept();
    void records_data() { eachRecord(); }
    void records();
    void cutOffAnywhere_data() { eachRecord(); }
    void cutOffAnywhere();
    void packedTask_data() { eachVersion(); }
    void packedTask();
    void newFolder();
    void noNewFolder_data();
    void noNewFolder();

private:
    void eachVersion() const;
    void eachRecord() const;
    std::unique_ptr<Operation> step(const GoldenRecord &record) const;

    std::unique_ptr<OperationCatalog> m_catalog;
    QStringList m_versions; ///< the oldest first
    QMap<QString, QList<GoldenRecord>> m_records;
};

namespace {

QString folderOf(const QString &version)
{
    return QString(GOLDEN_FOLDER) + '/' + version;
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

/// How many bytes a value takes in a record.
int sizeInRecord(const QVariant &value)
{
    if (value.userType() == QMetaType::Bool)
        return 1;
    if (value.userType() == QMetaType::Int)
        return 4;
    return 4 + 2 * value.toString().size();
}

/// What a property holds that was behind the end of its record.
bool isNothing(const QVariant &value)
{
    return value.userType() == QMetaType::QString ? value.toString().isEmpty() : value.toInt() == 0;
}

QString difference(const QVariant &actual, const QVariant &expected)
{
    return isSameValue(actual, expected)
               ? QString()
               : "has " + valueWords(actual) + ", expected " + valueWords(expected);
}

/// Runs the program that writes the folder of a version; its exit status and what it says.
int writeGolden(const QStringList &arguments, QString *said)
{
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(WRITE_GOLDEN, arguments);
    if (!program.waitForFinished())
        return -1;
    *said = QString::fromUtf8(program.readAll());
    return program.exitCode();
}

} // namespace

void GoldenRecordsTest::initTestCase()
{
    m_catalog = std::make_unique<OperationCatalog>(QStringList(PLUGIN_FILE));
    QVERIFY2(m_catalog->failures().isEmpty(), PLUGIN_FILE);
    m_versions = QDir(GOLDEN_FOLDER).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(m_versions.begin(), m_versions.end(), [](const auto &left, const auto &right) {
        return QVersionNumber::fromString(left) < QVersionNumber::fromString(right);
    });
    for (const QString &version : qAsConst(m_versions)) {
        const Result<QList<GoldenRecord>> records = readGoldenFolder(folderOf(version));
        QVERIFY2(records, records ? "" : qPrintable(records.problem().toString()));
        m_records.insert(version, records.value());
    }
}

void GoldenRecordsTest::eachVersion() const
{
    QTest::addColumn<QString>("version");
    for (const QString &version : m_versions)
        QTest::newRow(qPrintable(version)) << version;
}

void GoldenRecordsTest::eachRecord() const
{
    QTest::addColumn<GoldenRecord>("record");
    for (const QString &version : m_versions) {
        for (const GoldenRecord &record : m_records.value(version))
            QTest::newRow(qPrintable(version + '/' + record.fileName())) << record;
    }
}

std::unique_ptr<Operation> GoldenRecordsTest::step(const GoldenRecord &record) const
{
    const CatalogEntry *const entry = m_catalog->find(record.typeId);
    return std::unique_ptr<Operation>(entry ? entry->prototype->clone(nullptr) : nullptr);
}

// A version keeps its records before it goes out: run scripts/update-golden with its number.
void GoldenRecordsTest::everyOperationHasRecords()
{
    const QString version = m_catalog->plugins().front().manifest().version;
    QVERIFY(!m_versions.isEmpty());
    QCOMPARE(m_versions.last(), version.section('.', 0, 1));
    QMap<QString, int> counts;
    for (const GoldenRecord &record : m_records.value(m_versions.last()))
        ++counts[record.typeId];
    QStringList typeIds = m_catalog->typeIds();
    typeIds.sort();
    QCOMPARE(QStringList(counts.keys()), typeIds);
    for (const int count : qAsConst(counts))
        QCOMPARE(count, counts.first());
}

void GoldenRecordsTest::nothingElseIsKept()
{
    QFETCH(QString, version);
    QStringList expected{"all.task"};
    for (const GoldenRecord &record : m_records.value(version)) {
        if (!expected.contains(record.typeId + ".json"))
            expected.append(record.typeId + ".json");
        if (record.checksum.isEmpty())
            expected.append(record.fileName());
    }
    QStringList files = filesIn(folderOf(version));
    files.sort();
    expected.sort();
    QCOMPARE(files, expected);
}

void GoldenRecordsTest::records()
{
    QFETCH(GoldenRecord, record);
    const std::unique_ptr<Operation> written = step(record);
    QVERIFY2(written, "the operation is gone");
    QByteArray bytes = record.bytes;
    if (!record.checksum.isEmpty()) {
        for (auto value = record.properties.cbegin(); value != record.properties.cend(); ++value)
            written->setProperty(value.key().toUtf8(), value.value());
        bytes = saveRecord(*written);
        QCOMPARE(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex(),
                 record.checksum);
    }
    const std::unique_ptr<Operation> read = step(record);
    QCOMPARE(loadRecord(*read, bytes), QDataStream::Ok);
    QStringList names = OperationSchema(*read).propertyNames();
    names.sort();
    QCOMPARE(QStringList(record.properties.keys()), names);
    for (const QString &name : qAsConst(names)) {
        const QString found =
            difference(read->property(name.toUtf8()), record.properties.value(name));
        QVERIFY2(found.isEmpty(), qPrintable(name + ' ' + found));
    }
    QCOMPARE(bytes.left(4).toHex().toUInt(nullptr, 16), record.hostState);
    QCOMPARE(saveRecord(*read).toHex(), bytes.toHex());
}

// What stands before the cut is read, what would stand behind it is empty, 0 or false, and the step
// reads its whole record afterwards as if nothing had been.
void GoldenRecordsTest::cutOffAnywhere()
{
    QFETCH(GoldenRecord, record);
    const std::unique_ptr<Operation> read = step(record);
    QVERIFY2(read, "the operation is gone");
    const QStringList names = OperationSchema(*read).propertyNames();
    for (int size = 0; size < record.bytes.size(); ++size) {
        QCOMPARE(loadRecord(*read, record.bytes), QDataStream::Ok);
        QCOMPARE(loadRecord(*read, record.bytes.left(size)), QDataStream::ReadPastEnd);
        int end = 4;
        for (const QString &name : names) {
            const QVariant expected = record.properties.value(name);
            const QVariant actual = read->property(name.toUtf8());
            end += sizeInRecord(expected);
            const bool isRight = end <= size ? isSameValue(actual, expected) : isNothing(actual);
            QVERIFY2(isRight, qPrintable(QString("%1 of %2 bytes: %3 has %4")
                                             .arg(size)
                                             .arg(record.bytes.size())
                                             .arg(name, valueWords(actual))));
        }
    }
    QCOMPARE(loadRecord(*read, record.bytes.isEmpty() ? saveRecord(*read) : record.bytes),
             QDataStream::Ok);
}

void GoldenRecordsTest::packedTask()
{
    QFETCH(QString, version);
    const Result<QByteArray> file = readFileBytes(folderOf(version) + "/all.task");
    QVERIFY2(file, file ? "" : qPrintable(file.problem().toString()));
    const Result<Task> task = unpackTask(file.value(), *m_catalog);
    QVERIFY2(task, task ? "" : qPrintable(task.problem().toString()));
    QStringList steps;
    for (const auto &step : task.value().steps)
        steps.append(step->typeId() + ' ' + saveRecord(*step).toHex());
    QStringList expected;
    for (const GoldenRecord &record : m_records.value(version)) {
        if (record.checksum.isEmpty())
            expected.append(record.typeId + ' ' + record.bytes.toHex());
    }
    QCOMPARE(steps, expected);
    const Result<QByteArray> packed = packTask(task.value());
    QVERIFY(packed);
    QCOMPARE(packed.value().toHex(), file.value().toHex());
}

// The program writes what stands in the newest folder, and never writes into a folder that is
// there.
void GoldenRecordsTest::newFolder()
{
    const QTemporaryDir folder;
    const QString made = folder.filePath("made");
    const QString kept = folderOf(m_versions.last());
    QString said;
    QVERIFY2(writeGolden({PLUGIN_FILE, made}, &said) == 0, qPrintable(said));
    QCOMPARE(filesIn(made), filesIn(kept));
    const QStringList files = filesIn(made);
    for (const QString &file : files)
        QCOMPARE(readFileBytes(made + '/' + file).value(),
                 readFileBytes(kept + '/' + file).value());

    QVERIFY(QFile::remove(made + "/all.task"));
    QCOMPARE(writeGolden({PLUGIN_FILE, made}, &said), 2);
    QCOMPARE(said, "write-golden: " + made +
                       ": is there already; what a version has written never changes\n");
    QVERIFY(!QFile::exists(made + "/all.task"));
    QCOMPARE(filesIn(folder.path()), QStringList{"made"});
}

void GoldenRecordsTest::noNewFolder_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");
    const QString usage = "usage: write-golden PLUGIN FOLDER\n";
    QTest::newRow("nothing said") << QStringList() << usage;
    QTest::newRow("too much said") << QStringList{PLUGIN_FILE, "a", "b"} << usage;
    QTest::newRow("no plug-in") << QStringList{"/absent", "/absent/folder"} << "/absent: ";
    QTest::newRow("no place for it")
        << QStringList{PLUGIN_FILE, "/absent/folder"} << "/absent/folder: cannot be made\n";
}

void GoldenRecordsTest::noNewFolder()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, complaint);
    QString said;
    QCOMPARE(writeGolden(arguments, &said), 2);
    QVERIFY2(said.startsWith("write-golden: " + complaint), qPrintable(said));
    QCOMPARE(said.count('\n'), 1);
}

QTEST_GUILESS_MAIN(GoldenRecordsTest)

#include "GoldenRecordsTest.moc"
