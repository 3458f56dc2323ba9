#include "tests/support/QuietTest.h"

#include "refhost/runner/rows/Interruption.h"
#include "refhost/runner/rows/RowSource.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// Lines of a file, batch by batch.
class RowSourceTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void batches_data();
    void batches();
    void passesOverLinesThatAreTooLong();
    void longestLine();
    void looksAhead();
    void skips_data();
    void skips();
    void refuses_data();
    void refuses();

private:
    QString write(const QByteArray &content) const;

    std::unique_ptr<Interruption> m_interruption;
    QTemporaryDir m_folder;
};

void RowSourceTest::initTestCase()
{
    m_interruption = std::make_unique<Interruption>();
    QVERIFY(m_folder.isValid());
}

QString RowSourceTest::write(const QByteArray &content) const
{
    QFile file(m_folder.filePath("rows"));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return {};
    return file.fileName();
}

void RowSourceTest::batches_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("lines");

    const auto row = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content << content;
    };
    row("nothing", "");
    row("one line", "a\n");
    row("no line break at the end", "a\nb");
    row("empty lines", "\n\n\na\n\n");
    row("many lines", QByteArray("abc\n").repeated(100'000));
    row("a line over several blocks", QByteArray(300'000, 'x') + "\ny\n" + QByteArray(70'000, 'z'));
    row("lines that end with the block",
        QByteArray(65'535, 'x') + '\n' + QByteArray(65'535, 'y') + '\n');
    row("zero characters", QByteArray("a\0b\nc", 5));
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                   "a\nb")
                                     << QByteArray("a\nb");
    QTest::newRow("nothing but a byte order mark") << QByteArray("\xEF\xBB\xBF") << QByteArray();
    QTest::newRow("a second mark stays") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF"
                                                       "a\n")
                                         << QByteArray("\xEF\xBB\xBF"
                                                       "a\n");
}

void RowSourceTest::batches()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, lines);

    RowSource source(write(content));
    QVERIFY(!source.open());
    QByteArray found;
    qint64 number = 0;
    while (const auto batch = source.next(*m_interruption)) {
        QCOMPARE(batch->number, number++);
        QCOMPARE(batch->firstLine, qint64(found.count('\n')) + 1);
        QVERIFY(!batch->tooLong);
        found += batch->lines;
        QVERIFY(found.endsWith('\n') || found.size() == lines.size());
    }
    QVERIFY(!source.problem());
    QCOMPARE(found, lines);
    QVERIFY(!source.next(*m_interruption));
}

void RowSourceTest::passesOverLinesThatAreTooLong()
{
    const int limit = 300'000;
    const QByteArray longLine(limit + 200'000, 'x');
    RowSource source(write("a\n" + longLine + "\nb\n" + longLine), 1, limit);
    QVERIFY(!source.open());
    QByteArray found;
    QList<qint64> tooLong;
    while (const auto batch = source.next(*m_interruption)) {
        found += batch->lines;
        if (batch->tooLong)
            tooLong.append(batch->firstLine);
    }
    QCOMPARE(found, QByteArray("a\nb\n"));
    QCOMPARE(tooLong, (QList<qint64>{2, 4}));
}

void RowSourceTest::longestLine()
{
    const int limit = 300'000;
    RowSource source(write(QByteArray(limit - 1, 'x') + "\n"), 1, limit);
    QVERIFY(!source.open());
    const auto batch = source.next(*m_interruption);
    QVERIFY(batch);
    QVERIFY(!batch->tooLong);
    QCOMPARE(batch->lines.size(), limit);
    QVERIFY(!source.next(*m_interruption));
}

void RowSourceTest::looksAhead()
{
    RowSource source(write("\xEF\xBB\xBF\n \na\nb"), 7);
    QVERIFY(!source.open());
    for (const bool hasBlankRows : {true, false})
        QCOMPARE(*source.head(hasBlankRows, *m_interruption), QByteArray("\n \na\nb"));
    const auto batch = source.next(*m_interruption);
    QVERIFY(batch);
    QCOMPARE(batch->lines, QByteArray("\n \na\n"));
    QCOMPARE(batch->number, 0);
    QCOMPARE(batch->firstLine, 7);
    QCOMPARE(source.next(*m_interruption)->lines, QByteArray("b"));
}

void RowSourceTest::skips_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("hasBlankRows");
    QTest::addColumn<int>("skipped");
    QTest::addColumn<QByteArray>("rest");
    QTest::addColumn<int>("line");

    const QByteArray sample = "\xEF\xBB\xBF\na\n \r\nb\n\nc";
    QTest::newRow("none") << sample << 0 << true << 0 << QByteArray("\na\n \r\nb\n\nc") << 1;
    QTest::newRow("lines") << sample << 2 << true << 2 << QByteArray(" \r\nb\n\nc") << 3;
    QTest::newRow("rows") << sample << 2 << false << 2 << QByteArray("\nc") << 5;
    QTest::newRow("all rows") << sample << 3 << false << 3 << QByteArray() << 6;
    QTest::newRow("too many") << sample << 9 << true << 6 << QByteArray() << 6;
    QTest::newRow("only the mark of the file is one")
        << QByteArray("a\n\xEF\xBB\xBF\n") << 1 << true << 1 << QByteArray("\xEF\xBB\xBF\n") << 2;
    QTest::newRow("many blocks") << QByteArray("abcd\n").repeated(100'000) << 99'998 << true
                                 << 99'998 << QByteArray("abcd\nabcd\n") << 99'999;
    QTest::newRow("long lines") << QByteArray(300'000, 'x') + "\n" + QByteArray(9, 'y') + "\nz" << 1
                                << true << 1 << QByteArray("yyyyyyyyy\nz") << 2;
}

void RowSourceTest::skips()
{
    QFETCH(QByteArray, content);
    QFETCH(int, count);
    QFETCH(bool, hasBlankRows);
    QFETCH(int, skipped);
    QFETCH(QByteArray, rest);
    QFETCH(int, line);

    // With and without a limit that the long line exceeds.
    for (const int limit : {RowSource::longestRow, 200'000}) {
        RowSource source(write(content), 1, limit);
        QVERIFY(!source.open());
        QVERIFY(source.head(hasBlankRows, *m_interruption));
        QCOMPARE(source.skip(count, hasBlankRows, *m_interruption), skipped);
        QByteArray found;
        qint64 number = 0;
        while (const auto batch = source.next(*m_interruption)) {
            QCOMPARE(batch->firstLine, line + found.count('\n'));
            QCOMPARE(batch->number, number++);
            found += batch->lines;
        }
        QCOMPARE(found, rest);
    }
}

void RowSourceTest::refuses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    const QString missing = m_folder.filePath("none");
    QTest::newRow("no such file") << missing
                                  << missing + ": cannot be read (No such file or directory)";
    QTest::newRow("folder") << m_folder.path()
                            << m_folder.path() + ": cannot be read (file to open is a directory)";
    QTest::newRow("empty name") << ""
                                << "an empty file name; expected a file";
}

void RowSourceTest::refuses()
{
    QFETCH(QString, name);
    QFETCH(QString, text);

    RowSource source(name);
    const auto problem = source.open();
    QVERIFY(problem);
    QCOMPARE(problem->toString(), text);
    QCOMPARE(problem->reason, Problem::Reason::UnreadableFile);
}

QTEST_GUILESS_MAIN(RowSourceTest)
#include "RowSourceTest.moc"
