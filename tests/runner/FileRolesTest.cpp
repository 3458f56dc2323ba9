#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <memory>

/// oprun does not write a file that is another file of the same command.
class FileRolesTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void refuses_data();
    void refuses();
    void allows_data();
    void allows();

private:
    QMap<QString, QByteArray> content() const;

    std::unique_ptr<OprunFolder> m_folder;
};

namespace {

const char sampleTask[] = R"({"variables": {"n": {"type": "int", "value": 3}}, "steps": []})";

} // namespace

void FileRolesTest::init()
{
    m_folder = std::make_unique<OprunFolder>(OPRUN_FILE);
    QVERIFY(m_folder->write("task.json", sampleTask));
    QVERIFY(m_folder->write("rows", "{\"n\":1}\n"));
    QVERIFY(QDir(m_folder->path()).mkdir("plugins"));
    QVERIFY(QFile::copy(PLUGIN_FILE, m_folder->filePath("plugins/libOwn.so")));
    QVERIFY(m_folder->write("plugins/libOwn.examples.json", "{}"));
    QVERIFY(m_folder->write("plugins/libOwn_xx.qm", "no translation"));
    QVERIFY(QFile::link("task.json", m_folder->filePath("link-to-task")));
    QVERIFY(QFile::link("../new", m_folder->filePath("plugins/link-to-new")));
    QVERIFY(QFile::link("plugins/link-to-new", m_folder->filePath("link-to-link")));
    const auto linked = m_folder->runShell("ln task.json hard-link; ln rows hard-rows");
    QCOMPARE(linked.status, 0);
}

/// The content of every file of the folder.
QMap<QString, QByteArray> FileRolesTest::content() const
{
    QMap<QString, QByteArray> files;
    for (const QString folder : {"", "plugins/"}) {
        const QStringList names = QDir(m_folder->filePath(folder)).entryList(QDir::Files);
        for (const QString &name : names)
            files.insert(folder + name, m_folder->read(folder + name));
    }
    return files;
}

void FileRolesTest::refuses_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("message");

    const QString rows = "run task.json --each rows ";
    const auto row = [](const QString &line, const QString &message) {
        QTest::newRow(qPrintable(line)) << "$OPRUN " + line << message;
    };
    row(rows + "--out task.json",
        R"(--out: "task.json" is the same file as "task.json" (TASK); expected another file)");
    row(rows + "--errors task.json",
        R"(--errors: "task.json" is the same file as "task.json" (TASK); expected another file)");
    row(rows + "--errors rows",
        R"(--errors: "rows" is the same file as "rows" (--each); expected another file)");
    row(rows + "--errors hard-rows",
        R"(--errors: "hard-rows" is the same file as "rows" (--each); expected another file)");
    row(rows + "--out link-to-task",
        R"(--out: "link-to-task" is the same file as "task.json" (TASK); expected another file)");
    row(rows + "--out hard-link",
        R"(--out: "hard-link" is the same file as "task.json" (TASK); expected another file)");
    row("run link-to-task --each rows --out plugins/../task.json",
        R"(--out: "plugins/../task.json" is the same file as "link-to-task" (TASK); )"
        "expected another file");
    row("run task.json --lines n --errors rows < rows",
        R"(--errors: "rows" is the same file as standard input; expected another file)");
    row(rows + "--out new --errors ./new",
        R"(--errors: "./new" is the same file as "new" (--out); expected another file)");
    row(rows + "--out new --errors link-to-link",
        R"(--errors: "link-to-link" is the same file as "new" (--out); expected another file)");
    row(rows + "--out rows --errors rows",
        R"(--errors: "rows" is the same file as "rows" (--each); expected another file)");
    row(rows + "--out - --errors /dev/stdout",
        "--errors: leads to the same file as standard output; expected another file");
    row(rows + "--errors rows >> rows",
        R"(standard output: leads to the same file as "rows" (--each); expected another file)");
    row("run task.json >> task.json",
        R"(standard output: leads to the same file as "task.json" (TASK); expected another file)");
    row(rows + "--plugin plugins/libOwn.so --out plugins/libOwn.so",
        R"(--out: "plugins/libOwn.so" is the same file as "plugins/libOwn.so" (plug-in); )"
        "expected another file");
    row(rows + "--plugin plugins/libOwn.so --errors plugins/libOwn.examples.json",
        R"(--errors: "plugins/libOwn.examples.json" is the same file as )"
        R"("plugins/libOwn.examples.json" (plug-in); expected another file)");
    row("pack task.json plugins/libOwn_xx.qm --plugin plugins/libOwn.so",
        R"(OUT: "plugins/libOwn_xx.qm" is the same file as "plugins/libOwn_xx.qm" (plug-in); )"
        "expected another file");
    row("unpack task.json plugins/libOwn.so --plugin plugins/libOwn.so",
        R"(OUT: "plugins/libOwn.so" is the same file as "plugins/libOwn.so" (plug-in); )"
        "expected another file");
    for (const QString command : {"check", "explain"}) {
        row(command + " task.json >> task.json",
            R"(standard output: leads to the same file as "task.json" (TASK); expected another file)");
    }
    row("pack task.json - >> task.json",
        R"(OUT: leads to the same file as "task.json" (TASK); expected another file)");
}

void FileRolesTest::refuses()
{
    QFETCH(QString, line);
    QFETCH(QString, message);

    const auto before = content();
    const auto outcome = m_folder->runShell(line);
    QCOMPARE(outcome.err, "oprun: " + message + '\n');
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 2);
    QCOMPARE(content(), before);
}

void FileRolesTest::allows_data()
{
    QTest::addColumn<QString>("line");

    for (const char *line :
         {"run task.json --each rows --out rows", "run task.json --each hard-rows --out rows",
          "run task.json --each - --out rows < rows",
          "run task.json --each rows --out /dev/null --errors /dev/null",
          "run task.json --each rows > both 2>&1", "run task.json > /dev/null 2>&1",
          "run task.json --each rows --out new --errors other", "pack task.json task.json",
          "unpack task.json link-to-task", "pack task.json - > packed",
          "run task.json --plugin plugins/libOwn.so --each rows --out plugins/libOther.so"})
        QTest::newRow(line) << QString("$OPRUN %1").arg(line);
}

void FileRolesTest::allows()
{
    QFETCH(QString, line);

    const auto outcome = m_folder->runShell(line);
    QVERIFY2(outcome.status == 0, qPrintable(outcome.err));
    QVERIFY(!outcome.err.contains("same file"));
}

QTEST_GUILESS_MAIN(FileRolesTest)
#include "FileRolesTest.moc"
