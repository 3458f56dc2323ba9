#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

/// The answers of oprun, as a process, to command lines: what it refuses, and with which words.
class CommandLineTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void namesThatAreNotUtf8_data();
    void namesThatAreNotUtf8();
    void repeatedOptions_data();
    void repeatedOptions();
    void everyValueCountsOrIsRefused();
    void suggestions_data();
    void suggestions();
    void answers_data();
    void answers();
    void tasksOnStandardInput_data();
    void tasksOnStandardInput();
    void filesThatAreNoPlugins_data();
    void filesThatAreNoPlugins();
    void prototypesThatAreNone_data();
    void prototypesThatAreNone();

private:
    void addShellColumns() const;
    void runShellRow() const;

    std::unique_ptr<OprunFolder> m_folder;
};

namespace {

const QString commands = "catalog, describe, run, explain, check, pack, unpack, examples, docs, "
                         "validate, help";
const QString types = "text.append, text.between, text.join, text.split, text.pad, text.replace, "
                      "text.reverse, text.find, text.substring, text.trim, text.toNumber, "
                      "text.fromNumber, text.case";

const char task[] = R"({
    "variables": {"line": {"type": "string", "value": "ab"}, "result": {"type": "string"}},
    "steps": [{"type": "text.append", "sourceText": "$line", "appendText": "!",
               "resultVar": "result"}]
})";

/// The words of an error about a plug-in.
QString notLoaded(const QString &file, const QString &reason)
{
    return QString("%1: cannot be loaded as a plug-in (%2)").arg(file, reason);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The first bytes of a library for another processor than that of this program.
QByteArray changed(QByteArray library, int index, char byte)
{
    library[index] = byte;
    return library.left(4096);
}

} // namespace

void CommandLineTest::init()
{
    QuietTest::init();
    m_folder = std::make_unique<OprunFolder>(OPRUN_FILE);
    QVERIFY(m_folder->write("t.json", task));
    QVERIFY(m_folder->write("-dash.json", task));
    QVERIFY(m_folder->write("rows", "{\"line\": \"x\"}\n"));
}

void CommandLineTest::addShellColumns() const
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");
    QTest::addColumn<int>("status");
}

/// Runs the line of the row. Messages are given without the name of the program before them.
void CommandLineTest::runShellRow() const
{
    QFETCH(QString, line);
    QFETCH(QString, err);
    const auto outcome = m_folder->runShell(line);
    QCOMPARE(outcome.err, err.isEmpty() ? err : "oprun: " + err + '\n');
    QTEST(outcome.out, "out");
    QTEST(outcome.status, "status");
}

void CommandLineTest::namesThatAreNotUtf8_data()
{
    addShellColumns();
    const auto row = [](const char *name, const QString &line, const QString &err) {
        // QTemporaryDir removes no files with such names.
        QTest::newRow(name) << line + "; status=$?; rm -fr ?$(printf '\\377'); exit $status"
                            << "" << err << 2;
    };
    const QString expected = " is not UTF-8; expected UTF-8";
    row("task", "cp t.json \"$(printf 't\\377')\"; $OPRUN run \"$(printf 't\\377')\"",
        "argument 2: \"t\\xff\"" + expected);
    row("new file", "$OPRUN run t.json --each rows --out \"$(printf 'a\\200b')\"",
        "argument 6: \"a\\x80b\"" + expected);
    row("value", "$OPRUN run t.json --set \"$(printf 'line=\\344\\275')\"",
        "argument 4: \"line=\\xe4\\xbd\"" + expected);
    row("unpaired surrogate", "$OPRUN \"$(printf '\\355\\240\\200')\"",
        "argument 1: \"\\xed\\xa0\\x80\"" + expected);
    row("characters around it", "$OPRUN \"$(printf '中\\377文\U0001F600')\"",
        "argument 1: \"中\\xff文\U0001F600\"" + expected);
    row("before any other mistake", "$OPRUN --nix \"$(printf '\\377')\"",
        "argument 2: \"\\xff\"" + expected);
    row("line break", "$OPRUN \"$(printf '\\377\\na')\"", "argument 1: \"\\xff\\na\"" + expected);
    row("of great length", "$OPRUN \"$(printf 'a%.0s' $(seq 1000))$(printf '\\377')\"",
        "argument 1: \"" + QString(200, 'a') + "…\"" + expected);
    // Qt's own decoder would leave it out, and the file would be t.json.
    row("byte order mark", "$OPRUN run \"$(printf '\\357\\273\\277t.json')\"",
        QChar(QChar::ByteOrderMark) +
            QString("t.json: cannot be read (No such file or directory)"));
    const QString leads = ": cannot be written (it is a link to a name that is not UTF-8)";
    row("link",
        "ln -s \"$(printf 'a\\377')\" ./-l; $OPRUN run t.json --each rows --out ./-l; s=$?; "
        "rm ./-l; (exit $s)",
        "./-l" + leads);
    row("link to a link",
        "ln -s \"$(printf 'a\\377')\" m; ln -s m l; $OPRUN pack t.json l; s=$?; rm l m; (exit $s)",
        "l" + leads);
    const QString inFolder = "mkdir \"$(printf 'd\\377')\"; cd \"$(printf 'd\\377')\"; "
                             "%1; status=$?; cd ..; (exit $status)";
    const QString folder = "the name of the working folder is not UTF-8";
    row("file in such a folder", inFolder.arg("$OPRUN pack ../t.json new.task"),
        "new.task: cannot be written (" + folder + ")");
    row("folder for temporary files",
        "mkdir \"$(printf 'd\\377')\"; TMPDIR=\"$PWD/$(printf 'd\\377')\" $OPRUN validate x.so",
        "validate: TMPDIR names no folder; expected one whose name is UTF-8. "
        "Try \"oprun validate --help\".");
}

void CommandLineTest::namesThatAreNotUtf8()
{
    runShellRow();
    // No file of another name came to be.
    const QStringList files = QDir(m_folder->path()).entryList(QDir::Files, QDir::Name);
    QCOMPARE(files, (QStringList{"-dash.json", "rows", "t.json"}));
}

void CommandLineTest::repeatedOptions_data()
{
    addShellColumns();
    const auto row = [](const QString &command, const QString &arguments, const QString &option,
                        const QString &values) {
        const QString place = command.isEmpty() ? QString() : command + ": ";
        const QString help = command.isEmpty() ? QString() : command + ' ';
        QTest::newRow(qPrintable(command + ' ' + arguments))
            << QString("$OPRUN %1 %2").arg(command, arguments) << ""
            << QString("%1--%2 is given %3 times, with %4; expected one value. "
                       "Try \"oprun %5--help\".")
                   .arg(place, option, QString::number(values.count(',') + 1), values, help)
            << 2;
    };
    row("run", "t.json --each rows --out A --out B", "out", "\"A\", \"B\"");
    row("run", "t.json --each rows --out=A --out=A --out B", "out", "\"A\", \"A\", \"B\"");
    row("run", "t.json --each - --each rows", "each", "\"-\", \"rows\"");
    row("run", "t.json --lines line --lines line", "lines", "\"line\", \"line\"");
    row("run", "t.json --each rows --errors A --errors B", "errors", "\"A\", \"B\"");
    row("run", "t.json --each rows --jobs 1 --jobs 2", "jobs", "\"1\", \"2\"");
    row("catalog", "--lang zh --lang en", "lang", "\"zh\", \"en\"");
    row("docs", "--icons a --icons ''", "icons", "\"a\", \"\"");
    row("validate", "x.so --level 1 --level=2", "level", "\"1\", \"2\"");
    row("validate", "x.so --timeout 1 --timeout 2", "timeout", "\"1\", \"2\"");
    row("validate", "x.so --seed 1 --seed 1", "seed", "\"1\", \"1\"");
    row("validate", "x.so --keep . --keep /tmp", "keep", "\".\", \"/tmp\"");
    row("", "--lang zh --lang en", "lang", "\"zh\", \"en\"");

    QTest::newRow("values of one variable")
        << "$OPRUN run t.json --set line=1 --set result=2 --set line=3"
        << ""
        << "--set line: the variable has a value by another --set; expected one" << 2;
    QTest::newRow("flags") << "$OPRUN run --strict t.json --print result --strict --json --json"
                           << "{\n    \"result\": \"ab!\"\n}\n"
                           << "" << 0;
}

void CommandLineTest::repeatedOptions()
{
    runShellRow();
    QVERIFY(!QFile::exists(m_folder->filePath("A")));
    QVERIFY(!QFile::exists(m_folder->filePath("B")));
}

/// Of each option of each command that takes a value, two are refused, or its help text says that
/// it may be repeated.
void CommandLineTest::everyValueCountsOrIsRefused()
{
    int refused = 0;
    int repeatable = 0;
    for (const QString &command : commands.split(", ")) {
        QString help = m_folder->run({command, "--help"}).out;
        // Texts may go over several lines.
        help.replace(QRegularExpression("\\n {10,}"), " ");
        static const QRegularExpression option("^  (?:-., )?(--[a-z-]+) <.*>(.*)$",
                                               QRegularExpression::MultilineOption);
        auto match = option.globalMatch(help);
        while (match.hasNext()) {
            const auto found = match.next();
            const QString name = found.captured(1);
            const auto outcome = m_folder->run({command, name, "x", name, "y", "a", "b", "c"});
            const bool isRefused = outcome.err.contains(name + " is given 2 times");
            QVERIFY2(isRefused != found.captured(2).contains("repeatable"),
                     qPrintable(command + ' ' + name + ": " + outcome.err));
            ++(isRefused ? refused : repeatable);
        }
    }
    QVERIFY(refused > 20);
    QVERIFY(repeatable > 10);
}

void CommandLineTest::suggestions_data()
{
    addShellColumns();
    const auto row = [](const QString &arguments, const QString &err, int status = 2) {
        QTest::newRow(qPrintable(arguments)) << "$OPRUN " + arguments << "" << err << status;
    };
    const auto meant = [](const QString &name) {
        return QString(" (did you mean \"%1\"?)").arg(name);
    };
    const QString tryRun = ". Try \"oprun run --help\".";

    row("rn", "no command \"rn\"; expected " + commands + meant("run") + ". Try \"oprun --help\".");
    row("nosuch run", "no command \"nosuch\"; expected " + commands + ". Try \"oprun --help\".");
    row("Explain t.json", "no command \"Explain\"; expected " + commands + meant("explain") +
                              ". Try \"oprun --help\".");
    row("help validat", "no command \"validat\"; expected " + commands + meant("validate") +
                            ". Try \"oprun --help\".");
    row("help nosuch", "no command \"nosuch\"; expected " + commands + ". Try \"oprun --help\".");
    row("run t.json --prnt line", "run: unknown option \"--prnt\"" + meant("--print") + tryRun);
    row("run t.json --sett=line", "run: unknown option \"--sett\"" + meant("--set") + tryRun);
    row("run t.json -json", "run: unknown option \"-json\"" + meant("--json") + tryRun);
    row("run t.json -q", "run: unknown option \"-q\"" + tryRun);
    row("run t.json --nothing", "run: unknown option \"--nothing\"" + tryRun);
    row("--versoin", "unknown option \"--versoin\"" + meant("--version") +
                         "; options of a command follow it. Try \"oprun --help\".");
    row("--sett a=b run t.json",
        "unknown option \"--sett\"" + meant("--set") + "; options of a command follow it" + tryRun);
    row("--set a=b run t.json",
        "unknown option \"--set\"; options of a command follow it" + tryRun);
    row("run -dash.json", "run: unknown option \"-dash.json\"; for the file of that name write "
                          "\"./-dash.json\"" +
                              tryRun);

    const QString noOperation = "no operation \"%1\"; expected " + types;
    row("describe text.apend", noOperation.arg("text.apend") + meant("text.append"));
    row("describe Text.Append", noOperation.arg("Text.Append") + meant("text.append"));
    row("describe append", noOperation.arg("append") + meant("text.append"));
    row("examples fnd", noOperation.arg("fnd") + meant("text.find"));
    row("describe text.glue", noOperation.arg("text.glue"));
    row("run t.json --print resutl",
        "--print: the task has no variable \"resutl\"; expected line, result" + meant("result"));
    row("run t.json --set Line=x",
        "--set: the task has no variable \"Line\"; expected line, result" + meant("line"));
    row("run t.json --lines lin",
        "--lines: the task has no variable \"lin\"; expected line, result" + meant("line"));
    row("catalog --lang eng", "no language \"eng\"; expected en, zh" + meant("en"));

    const auto inTask = [](const QString &json, const QString &err) {
        QTest::newRow(qPrintable(json)) << QString("echo '%1' | $OPRUN run -").arg(json) << ""
                                        << "standard input: " + err << 2;
    };
    inTask(R"({"steps": [{"type": "text.apend"}]})",
           "steps[0].type: \"text.apend\"; expected " + types + meant("text.append"));
    inTask(R"({"steps": [{"type": "x"}]})", "steps[0].type: \"x\"; expected " + types);
    inTask(R"({"steps": [{"type": "text.append", "resultvar": "a"}]})",
           "steps[0].resultvar: text.append has no such property; "
           "expected sourceText, appendText, resultVar" +
               meant("resultVar"));
    inTask(R"({"variables": {"a": {"type": "strng"}}, "steps": []})",
           "variables.a.type: \"strng\"; expected int, double, string, bool, list, table" +
               meant("string"));
    inTask(R"({"variables": {"a": {"type": "int", "vaule": 1}}, "steps": []})",
           "variables.a: unknown key \"vaule\"; expected type, value" + meant("value"));
    inTask(R"({"stpes": []})", "unknown key \"stpes\"; expected variables, steps" + meant("steps"));
    inTask(R"({"steps": [{"type": "text.pad", "position": "左边 "}]})",
           "steps[0].position: \"左边 \"; expected one of \"左边\", \"中间\", \"右边\", "
           "or the number of a choice" +
               meant("左边"));
}

void CommandLineTest::suggestions()
{
    runShellRow();
}

void CommandLineTest::answers_data()
{
    addShellColumns();
    const auto row = [](const QString &line, const QString &out, const QString &err, int status) {
        QTest::newRow(qPrintable(line)) << line << out << err << status;
    };
    const QString result = "line = \"ab\"\nresult = \"ab!\"\n";
    for (const char *const command : {"", "run", "validate", "help"}) {
        const OprunFolder folder(OPRUN_FILE);
        const QString help = folder.runShell(QString("$OPRUN %1 --help").arg(command)).out;
        QVERIFY(help.startsWith("Usage: "));
        row(QString("$OPRUN help %1").arg(command), help, "", 0);
    }
    row("$OPRUN help a b", "", "help: a b; expected [COMMAND]. Try \"oprun help --help\".", 2);
    row("$OPRUN run -- -dash.json", result, "", 0);
    row("$OPRUN -- run -dash.json", result, "", 0);
    row("$OPRUN run ./-dash.json", result, "", 0);
    row("$OPRUN run --print line -- -dash.json", "ab\n", "", 0);
    row("$OPRUN run", "", "run: no argument; expected TASK. Try \"oprun run --help\".", 2);
    row("$OPRUN run t.json --set", "",
        "run: missing value after '--set'. Try \"oprun run --help\".", 2);
    row("$OPRUN run t.json --json=1", "",
        "run: unexpected value after '--json'. Try \"oprun run --help\".", 2);
    row("$OPRUN run t.json --plugin ''", "",
        "run: --plugin: an empty file name; expected a file. Try \"oprun run --help\".", 2);
    row("$OPRUN --version --plugin=", "",
        "--plugin: an empty file name; expected a file. Try \"oprun --help\".", 2);
    row("mkdir \"$(printf 'd\\377')\"; cd \"$(printf 'd\\377')\"; cp " PLUGIN_FILE
        " x.so; $OPRUN catalog --plugin x.so; status=$?; rm -r \"$PWD\"; exit $status",
        "", notLoaded("x.so", "the name of the working folder is not UTF-8"), 3);
    row("$OPRUN validate ''", "", "an empty file name; expected a file", 3);
    row("$OPRUN validate .", "", ".: it is a folder; expected a file", 3);
    row("$OPRUN validate x.so", "", "x.so: there is no such file", 3);
}

void CommandLineTest::answers()
{
    runShellRow();
}

void CommandLineTest::tasksOnStandardInput_data()
{
    addShellColumns();
    const auto row = [](const QString &line, const QString &out, const QString &err, int status) {
        QTest::newRow(qPrintable(line)) << line << out << err << status;
    };
    const QString twice = "standard input cannot be both the task and the rows; "
                          "expected a file for one of them";
    row("$OPRUN run - --print result < t.json", "ab!\n", "", 0);
    row("$OPRUN explain - --lang zh < t.json",
        "steps[0]  添加文本: $line + ! -> $result\n"
        "          将 ! 添加到 $line 之后，存入 $result\n",
        "", 0);
    row("$OPRUN check - < t.json", "no findings\n", "", 0);
    row("$OPRUN pack - - < t.json | $OPRUN unpack - - | $OPRUN run - --print result", "ab!\n", "",
        0);
    row("$OPRUN pack t.json a; $OPRUN pack - - < t.json | cmp - a", "", "", 0);
    row("$OPRUN run - --each rows --print result < t.json 2>&1",
        "{\"result\":\"x!\"}\noprun: 1 rows: 1 done, 0 failed; 0 warnings\n", "", 0);
    row("$OPRUN run - --each - < t.json", "", twice, 2);
    row("$OPRUN run - --each /dev/stdin < t.json", "", twice, 2);
    row("$OPRUN run - --lines line < t.json", "", twice, 2);
    row("$OPRUN run /dev/stdin --lines line < t.json", "", twice, 2);
    row("$OPRUN run - <&-", "", "standard input: cannot be read (Bad file descriptor)", 2);
    row("$OPRUN run - < .", "", "standard input: cannot be read (Is a directory)", 2);
    row("cp t.json ./-; $OPRUN run ./- --print result", "ab!\n", "", 0);
    row(R"(echo '{"steps": [{"type": "text.append"}]}' | $OPRUN run - 2>&1 | head -n 1)",
        "oprun: standard input: steps[0] (text.append): [TextAppend] 未指定结果变量，已跳过\n", "",
        0);
}

void CommandLineTest::tasksOnStandardInput()
{
    runShellRow();
}

void CommandLineTest::filesThatAreNoPlugins_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &content, const QString &reason) {
        QTest::newRow(name) << content << reason;
    };
    const QByteArray plugin = contentOf(PLUGIN_FILE);
    constexpr int classAt = 4;
    constexpr int orderAt = 5;
    constexpr int machineAt = 18;
    row("empty", {}, "it is an empty file");
    row("text", "a text that goes on for longer than a header", "it is not a library");
    row("one letter", "M", "it is not a library");
    row("Windows", QByteArray("MZ\x90\0\3", 5),
        "it is a library for Windows; expected one for Linux");
    row("macOS", QByteArray("\xCF\xFA\xED\xFE\7\0\0\1", 8),
        "it is a library for macOS; expected one for Linux");
    if (QSysInfo::buildCpuArchitecture() == "x86_64") {
        const QString expected = "; expected one for 64-bit x86-64";
        row("another processor", changed(plugin, machineAt, '\xB7'),
            "it is a library for 64-bit AArch64" + expected);
        row("unknown processor", changed(plugin, machineAt, '\x7F'),
            "it is a library for 64-bit processor 127" + expected);
        row("32 bits", changed(changed(plugin, machineAt, 3), classAt, 1),
            "it is a library for 32-bit x86" + expected);
        row("another byte order",
            changed(changed(changed(plugin, machineAt, 0), machineAt + 1, 21), orderAt, 2),
            "it is a library for 64-bit PowerPC big-endian" + expected);
    }
}

void CommandLineTest::filesThatAreNoPlugins()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    QVERIFY(m_folder->write("libX.so", content));
    for (const QStringList &arguments : {QStringList{"catalog"}, QStringList{"run", "t.json"}}) {
        const auto outcome = m_folder->run(arguments + QStringList{"--plugin", "libX.so"});
        QCOMPARE(outcome.err, "oprun: " + notLoaded("libX.so", reason) + '\n');
        QCOMPARE(outcome.out, QString());
        QCOMPARE(outcome.status, 3);
    }
}

void CommandLineTest::prototypesThatAreNone_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");
    QTest::newRow("none") << ""
                          << "createPrototypes returns no operation; expected at least one";
    QTest::newRow("null") << "null"
                          << "createPrototypes returns a null pointer at 1; expected an operation";
    QTest::newRow("twice") << "twice"
                           << "createPrototypes returns the same object at 0 and at 1; "
                              "expected two objects";
    QTest::newRow("one") << "one"
                         << "";
}

void CommandLineTest::prototypesThatAreNone()
{
    QFETCH(QString, kind);
    QFETCH(QString, reason);
    const auto outcome = m_folder->run({"describe", "nothing.step", "--plugin", NOTHING_PLUGIN},
                                       {{"PROTOTYPES", kind}});
    const QString err = "oprun: " + notLoaded(NOTHING_PLUGIN, reason) + '\n';
    QCOMPARE(outcome.err, reason.isEmpty() ? QString() : err);
    QCOMPARE(outcome.status, reason.isEmpty() ? 0 : 3);
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
