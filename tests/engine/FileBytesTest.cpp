#include "tests/support/QuietTest.h"

#include "refhost/engine/FileBytes.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#    include <cerrno>
#    include <csignal>
#    include <sys/resource.h>
#endif

class FileBytesTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void writesAndReads();
    void writesThroughLinks();
    void cannotRead_data();
    void cannotRead();
    void cannotWrite_data();
    void cannotWrite();
    void tellsWhyPartsCannotBeWritten_data();
    void tellsWhyPartsCannotBeWritten();
};

namespace {

void addPaths(const QString &verb)
{
    QTest::addColumn<QString>("name"); // empty for no name at all
    QTest::addColumn<QString>("message");
    QTest::newRow("no name") << QString() << "an empty file name; expected a file";
    QTest::newRow("no folder") << "none/a"
                               << QString("cannot be %1 (No such file or directory)").arg(verb);
}

} // namespace

void FileBytesTest::writesAndReads()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("文件");
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    for (const QByteArray &bytes : {all, QByteArray(), QByteArray("\r\n"), all.repeated(10000)}) {
        QVERIFY(!writeFileBytes(path, bytes));
        const auto back = readFileBytes(path);
        QVERIFY(back);
        QCOMPARE(back.value(), bytes);
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("文件"));
}

void FileBytesTest::writesThroughLinks()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::link("target", folder.filePath("link")));
    for (const char *bytes : {"new", "newer"}) {
        QVERIFY(!writeFileBytes(folder.filePath("link"), bytes));
        QCOMPARE(readFileBytes(folder.filePath("target")).value(), QByteArray(bytes));
        QVERIFY(QFileInfo(folder.filePath("link")).isSymLink());
    }
}

void FileBytesTest::cannotRead_data()
{
    addPaths("read");
}

void FileBytesTest::cannotRead()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const auto bytes = readFileBytes(name.isEmpty() ? name : folder.filePath(name));
    QVERIFY(!bytes);
    QCOMPARE(bytes.problem().reason, Problem::Reason::UnreadableFile);
    QCOMPARE(bytes.problem().file, name.isEmpty() ? name : folder.filePath(name));
    QTEST(bytes.problem().message, "message");
}

void FileBytesTest::cannotWrite_data()
{
    addPaths("written");
    QTest::newRow("folder") << "."
                            << "cannot be written (Filename refers to a directory)";
}

void FileBytesTest::cannotWrite()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const auto problem = writeFileBytes(name.isEmpty() ? name : folder.filePath(name), "x");
    QVERIFY(problem);
    QCOMPARE(problem->reason, Problem::Reason::UnwritableFile);
    QCOMPARE(problem->file, name.isEmpty() ? name : folder.filePath(name));
    QTEST(problem->message, "message");
    QVERIFY(QDir(folder.path()).isEmpty());
}

void FileBytesTest::tellsWhyPartsCannotBeWritten_data()
{
    QTest::addColumn<int>("size");
    // Below, at and above the size at which content is handed to the system.
    for (const int size : {20'000, 65'536, 1'000'000})
        QTest::addRow("%d bytes", size) << size;
}

/// The system takes the first part of the content and then refuses the rest.
void FileBytesTest::tellsWhyPartsCannotBeWritten()
{
#ifdef Q_OS_UNIX
    QFETCH(int, size);
    const QTemporaryDir folder;
    const QString path = folder.filePath("file");
    QVERIFY(!writeFileBytes(path, "before"));
    struct rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit small = before;
    small.rlim_cur = 10'000;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto problem = writeFileBytes(path, QByteArray(size, 'x'));
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    QVERIFY(problem);
    QCOMPARE(problem->message, QString("cannot be written (%1)").arg(qt_error_string(EFBIG)));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("file"));
    QCOMPARE(readFileBytes(path).value(), QByteArray("before"));
#endif
}

QTEST_GUILESS_MAIN(FileBytesTest)

#include "FileBytesTest.moc"
