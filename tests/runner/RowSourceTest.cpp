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
    RowSource source(write("a\n" + longLine + "\nb\n" + longLine), limit);
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
    RowSource source(write(QByteArray(limit - 1, 'x') + "\n"), limit);
    QVERIFY(!source.open());
    const auto batch = source.next(*m_interruption);
    QVERIFY(batch);
    QVERIFY(!batch->tooLong);
    QCOMPARE(batch->lines.size(), limit);
    QVERIFY(!source.next(*m_interruption));
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
