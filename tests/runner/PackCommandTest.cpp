#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"
#include "tests/support/TraceText.h"

#include <QCryptographicHash>
#include <QDir>
#include <QtTest>

#include <memory>

/// "oprun pack" and "oprun unpack", and packed tasks given to the other commands.
class PackCommandTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void packsAndUnpacks_data();
    void packsAndUnpacks();
    void standardOutput();
    void eitherFormIn();
    void overItself();
    void sameForBothForms_data();
    void sameForBothForms();
    void refuses_data();
    void refuses();
    void whatJsonCannotSay();
    void foreignSteps();
    void fullDisk();
    void noOrdinaryFile();
    void fullOutput();
    void withoutPlugin();

private:
    using Outcome = OprunFolder::Outcome;

    /// That the run did its work and printed nothing.
    static void verifyQuiet(const Outcome &outcome);

    std::unique_ptr<OprunFolder> m_folder;
};

namespace {

const char sampleTask[] = R"({
    "steps": [
        {
            "appendText": "",
            "resultVar": "r",
            "sourceText": "$n",
            "type": "text.append"
        }
    ],
    "variables": {
        "n": {
            "type": "int",
            "value": 42
        },
        "r": {
            "type": "string"
        }
    }
}
)";

} // namespace

void PackCommandTest::initTestCase()
{
    m_folder = std::make_unique<OprunFolder>(OPRUN_FILE);
    QVERIFY(m_folder->write("a.json", sampleTask));
}

void PackCommandTest::verifyQuiet(const Outcome &outcome)
{
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.bytes, QByteArray());
    QCOMPARE(outcome.status, 0);
}

void PackCommandTest::packsAndUnpacks_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("sample") << QByteArray(sampleTask);
    QTest::newRow("nothing") << QByteArray("{\n    \"steps\": [\n    ],\n    \"variables\": {\n"
                                           "    }\n}\n");
    QTest::newRow("values") << QByteArray(R"({
    "steps": [
    ],
    "variables": {
        "nan": {
            "type": "double",
            "value": "nan"
        },
        "\ufeff变量": {
            "type": "list",
            "value": [
                9007199254740991,
                -1.5,
                "\udc00",
                "\ufeff",
                true,
                [
                    "😀"
                ]
            ]
        }
    }
}
)");
}

void PackCommandTest::packsAndUnpacks()
{
    QFETCH(QByteArray, json);
    QVERIFY(m_folder->write("任务.json", json));
    verifyQuiet(m_folder->run({"pack", "任务.json", "任务.task"}));
    QVERIFY(m_folder->read("任务.task").startsWith("\x89TASK\r\n\x1A"));
    verifyQuiet(m_folder->run({"unpack", "任务.task", "back.json"}));
    QCOMPARE(QString::fromUtf8(m_folder->read("back.json")), QString::fromUtf8(json));
    verifyQuiet(m_folder->run({"pack", "back.json", "again.task"}));
    QCOMPARE(m_folder->read("again.task"), m_folder->read("任务.task"));
}

void PackCommandTest::standardOutput()
{
    verifyQuiet(m_folder->run({"pack", "a.json", "a.task"}));
    const Outcome packed = m_folder->run({"pack", "a.json", "-"});
    QCOMPARE(packed.bytes.toHex(), m_folder->read("a.task").toHex());
    QCOMPARE(packed.status, 0);
    const Outcome unpacked = m_folder->run({"unpack", "a.task", "-"});
    QCOMPARE(unpacked.bytes, QByteArray(sampleTask));
    QCOMPARE(unpacked.status, 0);
    QVERIFY(!QFile::exists(m_folder->filePath("-")));
}

void PackCommandTest::eitherFormIn()
{
    verifyQuiet(m_folder->run({"pack", "a.json", "a.task"}));
    verifyQuiet(m_folder->run({"pack", "a.task", "b.task"}));
    QCOMPARE(m_folder->read("b.task"), m_folder->read("a.task"));
    verifyQuiet(m_folder->run({"unpack", "a.json", "b.json"}));
    QCOMPARE(m_folder->read("b.json"), QByteArray(sampleTask));
}

void PackCommandTest::overItself()
{
    verifyQuiet(m_folder->run({"pack", "a.json", "a.task"}));
    verifyQuiet(m_folder->run({"pack", "a.json", "a.json"}));
    QCOMPARE(m_folder->read("a.json"), m_folder->read("a.task"));
    verifyQuiet(m_folder->run({"unpack", "a.json", "a.json"}));
    QCOMPARE(m_folder->read("a.json"), QByteArray(sampleTask));
}

void PackCommandTest::sameForBothForms_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = QDir(EXAMPLE_FOLDER).entryList({"*.json"}, QDir::Files);
    for (const QString &name : names) {
        if (name != "operations.json")
            QTest::newRow(qPrintable(name)) << name;
    }
}

void PackCommandTest::sameForBothForms()
{
    QFETCH(QString, name);
    // Under one name, since warnings tell the name of the task.
    QFile::remove(m_folder->filePath("task"));
    QVERIFY(QFile::copy(QDir(EXAMPLE_FOLDER).filePath(name), m_folder->filePath("task")));
    const QList<QStringList> commands{{"run", "task"},
                                      {"run", "task", "--json"},
                                      {"run", "task", "--trace"},
                                      {"check", "task"},
                                      {"explain", "task"}};
    QList<Outcome> outcomes;
    for (const QStringList &command : commands)
        outcomes.append(m_folder->run(command));
    verifyQuiet(m_folder->run({"pack", "task", "task"}));
    QVERIFY(m_folder->read("task").startsWith('\x89'));
    for (int i = 0; i < commands.size(); ++i) {
        const Outcome outcome = m_folder->run(commands.at(i));
        QCOMPARE(outcome.out, outcomes.at(i).out);
        QCOMPARE(withoutTimes(outcome.err), withoutTimes(outcomes.at(i).err));
        QCOMPARE(outcome.status, 0);
        QVERIFY(!outcome.out.isEmpty());
    }
}

void PackCommandTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("err");
    const auto row = [](const char *name, const QStringList &arguments, const QString &err) {
        QTest::newRow(name) << arguments << err;
    };
    const auto usage = [](const QString &command) {
        return QString(" Try \"oprun %1 --help\".").arg(command);
    };
    row("no argument", {"pack"}, "pack: no argument; expected TASK OUT." + usage("pack"));
    row("one argument", {"unpack", "a.json"},
        "unpack: a.json; expected TASK OUT." + usage("unpack"));
    row("three arguments", {"pack", "a", "b", "c"},
        "pack: a b c; expected TASK OUT." + usage("pack"));
    row("foreign option", {"pack", "a.json", "out", "--json"},
        "pack: unknown option \"--json\"." + usage("pack"));
    for (const QString command : {"pack", "unpack"}) {
        row(qPrintable(command + ", no file"), {command, "none", "out"},
            "none: cannot be read (No such file or directory)");
        row(qPrintable(command + ", no task"), {command, "out", "out"},
            "out: line 1, column 1: malformed JSON (\"as\"; expected a value)");
        row(qPrintable(command + ", bad task"), {command, "bad.json", "out"},
            "bad.json: steps: 5; expected an array of steps");
        row(qPrintable(command + ", cut off"), {command, "cut.task", "out"},
            "cut.task: is cut off after 40 bytes; expected 132");
        row(qPrintable(command + ", altered"), {command, "altered.task", "out"},
            "altered.task: has been altered; its checksum is that of other bytes");
        row(qPrintable(command + ", newer"), {command, "newer.task", "out"},
            "newer.task: is of format 2; this program reads up to 1");
        row(qPrintable(command + ", no folder"), {command, "a.json", "none/out"},
            "none/out: cannot be written (No such file or directory)");
        row(qPrintable(command + ", folder"), {command, "a.json", "."},
            ".: cannot be written (Filename refers to a directory)");
        row(qPrintable(command + ", no name"), {command, "a.json", ""},
            "an empty file name; expected a file");
    }
    row("run, cut off", {"run", "cut.task"}, "cut.task: is cut off after 40 bytes; expected 132");
    row("explain, altered", {"explain", "altered.task"},
        "altered.task: has been altered; its checksum is that of other bytes");
}

void PackCommandTest::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, err);
    verifyQuiet(m_folder->run({"pack", "a.json", "a.task"}));
    const QByteArray packed = m_folder->read("a.task");
    m_folder->write("cut.task", packed.left(40));
    m_folder->write("altered.task", QByteArray(packed).replace(40, 1, "?"));
    m_folder->write("newer.task", QByteArray(packed).replace(11, 1, "\2"));
    m_folder->write("bad.json", "{\"steps\": 5}");
    m_folder->write("out", "as it was");
    const QStringList files = QDir(m_folder->path()).entryList();
    const Outcome outcome = m_folder->run(arguments);
    QCOMPARE(outcome.err, "oprun: " + err + '\n');
    QCOMPARE(outcome.bytes, QByteArray());
    QCOMPARE(outcome.status, 2);
    QCOMPARE(m_folder->read("out"), QByteArray("as it was"));
    QCOMPARE(QDir(m_folder->path()).entryList(), files);
}

void PackCommandTest::whatJsonCannotSay()
{
    m_folder->write("wide.json", R"({"steps": [], "variables": {
        "a": {"type": "list", "value": ["x", 9007199254740993]}}})");
    m_folder->write("out", "as it was");
    verifyQuiet(m_folder->run({"pack", "wide.json", "wide.task"}));
    // JSON has no number of 64 bits where 32 do.
    QByteArray packed = m_folder->read("wide.task").chopped(32);
    packed.replace(QByteArray::fromHex("0020000000000001"),
                   QByteArray::fromHex("0000000000000005"));
    packed += QCryptographicHash::hash(packed, QCryptographicHash::Sha256);
    m_folder->write("wide.task", packed);
    for (const char *out : {"out", "-"}) {
        const Outcome outcome = m_folder->run({"unpack", "wide.task", out});
        QCOMPARE(outcome.err, QString("oprun: wide.task: variables.a.value[1]: "
                                      "the 64-bit number 5; "
                                      "as JSON it would come back as the 32-bit number 5\n"));
        QCOMPARE(outcome.bytes, QByteArray());
        QCOMPARE(outcome.status, 2);
    }
    QCOMPARE(m_folder->read("out"), QByteArray("as it was"));
}

void PackCommandTest::foreignSteps()
{
    m_folder->write("odd.json", R"({"steps": [{"type": "text.pad"}, {"type": "odd.plain"}]})");
    const QStringList both{"--plugin", PLUGIN_FILE, "--plugin", ODD_PLUGIN};
    verifyQuiet(m_folder->run(QStringList{"pack", "odd.json", "odd.task"} + both));
    QCOMPARE(m_folder->run(QStringList{"run", "odd.task"} + both).status, 0);
    // The plug-in of a step is not there.
    const Outcome alone = m_folder->run({"unpack", "odd.task", "-", "--plugin", PLUGIN_FILE});
    QVERIFY2(alone.err.startsWith("oprun: odd.task: steps[1].type: \"odd.plain\"; "
                                  "expected text.append, text.between, "),
             qPrintable(alone.err));
    QCOMPARE(alone.err.count('\n'), 1);
    QCOMPARE(alone.status, 2);
    // An operation would not read what it writes.
    const QByteArray frugal = R"({"steps": [{"type": "odd.frugal"}]})";
    m_folder->write("odd.json", frugal);
    const Outcome refused = m_folder->run(QStringList{"pack", "odd.json", "odd.json"} + both);
    QCOMPARE(refused.err,
             QString("oprun: odd.json: steps[0]: odd.frugal cannot read its record of 18 bytes; "
                     "it has 4 bytes too many\n"));
    QCOMPARE(refused.status, 2);
    QCOMPARE(m_folder->read("odd.json"), frugal);
}

void PackCommandTest::fullDisk()
{
    // As if the disk were full: the system writes no file of more than nothing.
    m_folder->write("out", "as it was");
    const QStringList files = QDir(m_folder->path()).entryList();
    for (const QString command : {"pack", "unpack"}) {
        const Outcome outcome = m_folder->runShell("trap '' XFSZ; ulimit -f 0; exec \"$OPRUN\" " +
                                                   command + " a.json out");
        QCOMPARE(outcome.err, QString("oprun: out: cannot be written (File too large)\n"));
        QCOMPARE(outcome.status, 2);
        QCOMPARE(m_folder->read("out"), QByteArray("as it was"));
        QCOMPARE(QDir(m_folder->path()).entryList(), files);
    }
}

void PackCommandTest::noOrdinaryFile()
{
    // A new file must not take the place of a pipe or a device.
    const Outcome outcome = m_folder->runShell("mkfifo pipe; cat pipe > read & "
                                               "\"$OPRUN\" pack a.json pipe; wait; "
                                               "\"$OPRUN\" pack a.json - | cmp - read; "
                                               "test -p pipe && echo kept");
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString("kept\n"));
}

void PackCommandTest::fullOutput()
{
    // A device of Linux that is always full.
    const Outcome outcome = m_folder->runShell("exec \"$OPRUN\" pack a.json - >/dev/full");
    QCOMPARE(outcome.err,
             QString("oprun: standard output: cannot be written (No space left on device)\n"));
    QCOMPARE(outcome.status, 2);
}

void PackCommandTest::withoutPlugin()
{
    const Outcome outcome = m_folder->run({"pack", "a.json", "unmade", "--plugin", "none.so"});
    QCOMPARE(outcome.status, 3);
    QVERIFY(!QFile::exists(m_folder->filePath("unmade")));
}

QTEST_GUILESS_MAIN(PackCommandTest)

#include "PackCommandTest.moc"
