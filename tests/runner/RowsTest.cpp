#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <csignal>
#include <memory>

/// "oprun run --each" as a process.
class RowsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void filters_data();
    void filters();
    void badRows();
    void nulCharacters();
    void longRows();
    void longWarnings();
    void repeatedLines();
    void errorFile();
    void warnings();
    void foreignFiles_data();
    void foreignFiles();
    void firstRowsThatPass_data();
    void firstRowsThatPass();
    void keepsFailedRows_data();
    void keepsFailedRows();
    void extraKeys_data();
    void extraKeys();
    void skips_data();
    void skips();
    void failFast_data();
    void failFast();
    void manyRowsInOrder();
    void refuses_data();
    void refuses();
    void outAppearsWholeOrNotAtAll();
    void outMayBeTheInput();
    void outMayBeADevice();
    void answersEachRowAtOnce();
    void interrupted_data();
    void interrupted();
    void stuckReader_data();
    void stuckReader();
    void readerGoesAway();
    void stopsWithoutMoreInput();
    void errorsThatCannotBeWritten();
    void closedInput();
    void manyOpenFiles();

private:
    std::unique_ptr<OprunFolder> m_folder;
};

namespace {

const char sampleTask[] = R"({
    "variables": {
        "word": {"type": "string", "value": "a"},
        "n": {"type": "int", "value": 3},
        "r": {"type": "string"}
    },
    "steps": [{"type": "text.append", "sourceText": "$word", "appendText": "$n", "resultVar": "r"}]
})";

const char warningTask[] = R"({
    "variables": {"n": {"type": "int"}},
    "steps": [{"type": "text.append", "resultVar": "n"}]
})";

const char badRowFile[] = "{\"n\":1}\n"
                          "\n"
                          "[]\n"
                          "{\"word\":\"b\"}\n"
                          "{\"n\":\"x\"}\n"
                          "{\"word\":\"\xff\"}\n"
                          "{\"n\":2}";

const char badRowErrors[] =
    "{\"line\":3,\"problem\":\"line 3, column 1: an array; expected an object in braces\","
    "\"row\":\"[]\"}\n"
    "{\"line\":5,\"problem\":\"line 5, \\\"n\\\": \\\"x\\\"; expected a whole number from -2147483648 "
    "to 2147483647\",\"row\":\"{\\\"n\\\":\\\"x\\\"}\"}\n"
    "{\"line\":6,\"problem\":\"line 6, column 10: malformed JSON (bytes that are not UTF-8)\","
    "\"rowBase64\":\"eyJ3b3JkIjoi/yJ9\"}\n";

QString lineOf(const QString &number)
{
    return QString(R"({"r":"a%1"})").arg(number) + '\n';
}

} // namespace

void RowsTest::initTestCase()
{
    m_folder = std::make_unique<OprunFolder>(OPRUN_FILE);
    QVERIFY(m_folder->write("task.json", sampleTask));
    QVERIFY(m_folder->write("warn.json", warningTask));
    QVERIFY(m_folder->write("rows", "{\"n\":1}\n{\"n\":2}\r\n \t\n{}\n"));
    QVERIFY(m_folder->write("bad", badRowFile));
    QVERIFY(m_folder->write("lines", "b\r\n\nc d\r"));
    QByteArray many;
    for (int i = 0; i < 40'000; ++i)
        many += "{\"n\":" + QByteArray::number(i) + "}\n";
    QVERIFY(m_folder->write("many", many));
}

void RowsTest::filters_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("out");

    QTest::newRow("rows of a file")
        << "$OPRUN run task.json --each rows --print r" << lineOf("1") + lineOf("2") + lineOf("3");
    QTest::newRow("rows of standard input") << "$OPRUN run task.json --each - --print r < rows"
                                            << lineOf("1") + lineOf("2") + lineOf("3");
    QTest::newRow("all variables") << "echo {} | $OPRUN run task.json --each -"
                                   << "{\"n\":3,\"r\":\"a3\",\"word\":\"a\"}\n";
    QTest::newRow("set is what a row starts with")
        << "echo {} | $OPRUN run task.json --each - --set n=9 --print r" << lineOf("9");
    QTest::newRow("lines") << "$OPRUN run task.json --each lines --lines word --print r"
                           << "b3\n3\nc d3\n";
    QTest::newRow("lines of standard input")
        << "$OPRUN run task.json --lines word --print r < lines"
        << "b3\n3\nc d3\n";
    QTest::newRow("lines to JSON")
        << "printf x | $OPRUN run task.json --lines word --print r --json"
        << "{\"r\":\"x3\"}\n";
    QTest::newRow("lines, two variables")
        << "printf x | $OPRUN run task.json --lines word --print r --print n"
        << "{\"r\":\"x3\",\"n\":3}\n";
    QTest::newRow("lines for a number") << "echo 7 | $OPRUN run task.json --lines n --print r"
                                        << "a7\n";
    QTest::newRow("two jobs") << "$OPRUN run task.json --each rows --print r --jobs 2"
                              << lineOf("1") + lineOf("2") + lineOf("3");
    QTest::newRow("no rows") << "$OPRUN run task.json --each - < /dev/null"
                             << "";
}

void RowsTest::filters()
{
    QFETCH(QString, line);
    QFETCH(QString, out);

    const auto outcome = m_folder->runShell(line);
    QCOMPARE(outcome.out, out);
    const int rows = out.count('\n');
    QCOMPARE(outcome.err, QString("oprun: %1 rows: %1 done, 0 failed; 0 warnings\n").arg(rows));
    QCOMPARE(outcome.status, 0);
}

void RowsTest::badRows()
{
    for (const QString jobs : {"1", "3"}) {
        const auto outcome =
            m_folder->run({"run", "task.json", "--each", "bad", "--print", "r", "--jobs", jobs});
        QCOMPARE(outcome.out, lineOf("1") + "{\"r\":\"b3\"}\n" + lineOf("2"));
        QCOMPARE(
            outcome.err,
            QString("oprun: bad: line 3, column 1: an array; expected an object in braces; "
                    "the row: []\n"
                    "oprun: bad: line 5, \"n\": \"x\"; expected a whole number from "
                    "-2147483648 to 2147483647; the row: {\"n\":\"x\"}\n"
                    "oprun: bad: line 6, column 10: malformed JSON (bytes that are not UTF-8); "
                    "the row: {\"word\":\"\uFFFD\"}\n"
                    "oprun: 6 rows: 3 done, 3 failed; 0 warnings\n"));
        QCOMPARE(outcome.status, 1);
    }
}

void RowsTest::nulCharacters()
{
    QVERIFY(m_folder->write("nul", QByteArray("{\"n\":1}\n{\"n\":\0002}\n{\"n\":3}\n", 25)));
    const QString hint = "a NUL character; expected UTF-8 (text in UTF-16 has to be converted)";
    for (const QString jobs : {"1", "2"}) {
        const auto outcome =
            m_folder->run({"run", "task.json", "--each", "nul", "--print", "r", "--jobs", jobs});
        QCOMPARE(outcome.out, lineOf("1") + lineOf("3"));
        QCOMPARE(outcome.err, "oprun: nul: line 2, column 6: " + hint +
                                  "; the row: {\"n\":\\u00002}\n"
                                  "oprun: 3 rows: 2 done, 1 failed; 0 warnings\n");
        QCOMPARE(outcome.status, 1);
    }
    const auto lines = m_folder->runShell(
        "printf 'a\n中\\000b\n' | $OPRUN run task.json --lines word --print r --errors e");
    QCOMPARE(lines.out, QString("a3\n"));
    QCOMPARE(lines.err, QString("oprun: 2 rows: 1 done, 1 failed; 0 warnings\n"));
    QCOMPARE(m_folder->read("e"), ("{\"line\":2,\"problem\":\"line 2, column 2: " + hint +
                                   "\",\"row\":\"中\\u0000b\"}\n")
                                      .toUtf8());
}

/// A message shows 200 characters of a row; the file of errors has all of it.
void RowsTest::longRows()
{
    const QString text = QString(198, 'x') + "𠀀" + QString(100'000, 'y');
    const QString row = "[\"" + text + "\"]";
    const QString shown = "[\"" + QString(198, 'x');
    const QString member = "{\"n\":\"" + text + "\"}";
    const QString name = "{\"" + text + "\":1}";
    QVERIFY(m_folder->write("long", ("{}\n" + row + '\n' + member + '\n' + name).toUtf8()));
    const QStringList arguments{"run", "task.json", "--each", "long", "--print", "r"};
    const auto outcome = m_folder->run(arguments);
    const QStringList lines = outcome.err.split('\n');
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines.at(0),
             QString("oprun: long: line 2, column 1: an array; expected an object in braces; the "
                     "row of %1 bytes begins: %2")
                 .arg(row.toUtf8().size())
                 .arg(shown));
    QVERIFY2(lines.at(1).contains("\"" + QString(198, 'x') +
                                  "… (100202 characters); expected a "
                                  "whole number"),
             qPrintable(lines.at(1)));
    for (const QString &line : lines)
        QVERIFY(line.size() < 800);

    QCOMPARE(m_folder->run(arguments + QStringList{"--errors", "errors"}).status, 1);
    const QByteArray errors = m_folder->read("errors");
    for (const QString &whole : {row, member, name})
        QVERIFY(errors.contains(QString(whole).replace('"', "\\\"").toUtf8()));
}

/// A step may log a value of a row. Its end tells what the step did.
void RowsTest::longWarnings()
{
    QVERIFY(m_folder->write("number.json", R"({
        "variables": {"text": {"type": "string"}, "n": {"type": "double"}},
        "steps": [{"type": "text.toNumber", "sourceText": "$text", "resultVar": "n"}]
    })"));
    const QString start = "[TextToNumber] 无法将 \"";
    const QString end = "\" 解析为数值，已跳过";
    const QString value(100'000, 'x');
    QVERIFY(m_folder->write("long", value.toUtf8() + '\n'));
    const QStringList arguments{"run",     "number.json", "--each",  "long",
                                "--lines", "text",        "--print", "n"};
    const QString line = "oprun: long: line 1: steps[0] (text.toNumber): " + start +
                         value.left(160 - start.size()) + "… (" +
                         QString::number(start.size() + value.size() + end.size()) +
                         " characters) …" + value.left(40 - end.size()) + end + '\n';
    const auto outcome = m_folder->run(arguments);
    QVERIFY2(outcome.err.startsWith(line), qPrintable(outcome.err.left(2000)));
    const auto once = m_folder->runShell("$OPRUN run number.json --set text=$(cat long)");
    QVERIFY2(once.err.startsWith(QString(line).replace("long: line 1", "number.json")),
             qPrintable(once.err.left(2000)));

    QCOMPARE(m_folder->run(arguments + QStringList{"--errors", "errors"}).status, 0);
    QVERIFY(m_folder->read("errors").contains(value.toUtf8()));
}

/// Standard error has the first 1,000 lines of a kind and a count of the rest.
void RowsTest::repeatedLines()
{
    const auto warned = m_folder->runShell("yes {} | head -n 1203 | $OPRUN run warn.json --each -");
    QCOMPARE(warned.err.count('\n'), 1003); // with the explanation of the first
    QVERIFY2(warned.err.endsWith(
                 "oprun: standard input: 203 more like this one: line 1: steps[0] (text.append): "
                 "[TextOp] 变量 \"n\" 未声明为字符串，已跳过; \"--errors FILE\" keeps all of them\n"
                 "oprun: 1203 rows: 1203 done, 0 failed; 1203 warnings\n"),
             qPrintable(warned.err.right(400)));

    const auto failed = m_folder->runShell(
        "{ echo {}; seq 2500 | sed 's/.*/{\"n\":\"x&\"}/'; seq 1001 | sed 's/.*/{\"m&\":1}/'; echo []; } |"
        "$OPRUN run task.json --each - --print n --jobs 2");
    QCOMPARE(failed.err.count('\n'), 2004);
    const QStringList lines = failed.err.split('\n').mid(2000);
    QVERIFY2(lines.at(0).startsWith("oprun: standard input: line 3503, column 1: an array"),
             qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).startsWith("oprun: standard input: 1500 more like this one: line 2, "),
             qPrintable(lines.at(1)));
    QVERIFY2(lines.at(2).startsWith("oprun: standard input: 1 more like this one: line 2502: "),
             qPrintable(lines.at(2)));
    QCOMPARE(lines.at(3), QString("oprun: 3503 rows: 1 done, 3502 failed; 0 warnings"));

    const auto kept =
        m_folder->runShell("yes {} | head -n 1203 | $OPRUN run warn.json --each - --errors all");
    QCOMPARE(kept.err.count('\n'), 1);
    QCOMPARE(m_folder->read("all").count('\n'), 1203);
}

void RowsTest::errorFile()
{
    const auto outcome = m_folder->run({"run", "task.json", "--each", "bad", "--print", "r",
                                        "--out", "out", "--errors", "errors"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, QString("oprun: 6 rows: 3 done, 3 failed; 0 warnings\n"));
    QCOMPARE(m_folder->read("out"),
             QString(lineOf("1") + "{\"r\":\"b3\"}\n" + lineOf("2")).toUtf8());
    QCOMPARE(m_folder->read("errors"), QByteArray(badRowErrors));
}

void RowsTest::warnings()
{
    const QString warning = "[TextOp] 变量 \"n\" 未声明为字符串，已跳过";
    auto outcome = m_folder->runShell("printf '{}\n{}\n' | $OPRUN run warn.json --each -");
    QCOMPARE(outcome.out, QString("{\"n\":0}\n{\"n\":0}\n"));
    const QString line = "oprun: standard input: line %1: steps[0] (text.append): %2\n";
    const QString meaning = "  what it means: the result is a text, and there is no variable \"n\" "
                            "of type string; nothing was written; declare it as string, or name "
                            "another one\n";
    QCOMPARE(outcome.err, line.arg("1", warning) + meaning + line.arg("2", warning) +
                              "oprun: 2 rows: 2 done, 0 failed; 2 warnings\n");
    QCOMPARE(outcome.status, 0);

    outcome = m_folder->runShell("echo {} | $OPRUN run warn.json --each - --strict --errors w");
    QCOMPARE(outcome.err, QString("oprun: 1 rows: 1 done, 0 failed; 1 warnings\n"));
    QCOMPARE(outcome.status, 1);
    const QString note = "{\"line\":1,\"step\":0,\"type\":\"text.append\",\"warning\":\"%1\"}\n";
    QCOMPARE(m_folder->read("w"), note.arg(QString(warning).replace('"', "\\\"")).toUtf8());
}

void RowsTest::foreignFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("asLinesToo"); // refused with --lines, too

    const QString rows = "; expected a JSON object on each line: ";
    const QString asText = "use \"--lines NAME\" to take each line as text";
    const auto form = [&](const char *name, const QByteArray &content, const QString &format,
                          const QString &remedy) {
        QTest::newRow(name) << content << "looks like " + format + rows + remedy << false;
    };
    form("comma", "a,b\n1,2\n", "CSV", "convert it, or " + asText);
    form("quotes", "\"a b\",\"c\"\n", "CSV", "convert it, or " + asText);
    form("semicolon, blank lines first", "\n \r\n姓名;年龄\n", "CSV", "convert it, or " + asText);
    form("numbers, no line break", "1\t2", "CSV", "convert it, or " + asText);
    form("another encoding", "\xd0\xd5,\xc3\xfb\n", "CSV", "convert it, or " + asText);
    form("text", "hello\nworld\n", "plain text", asText);
    const QString array = "convert it, for instance with \"jq -c .[]\"";
    form("array on one line", "[{\"n\":1},{\"n\":2}]", "a JSON array", array);
    form("array over several lines", "[\n{\"n\":1}\n]\n", "a JSON array", array);
    form("array of 100 KB, byte order mark",
         "\xEF\xBB\xBF [" + QByteArray("{\"n\":1},").repeated(12'500) + "{}]", "a JSON array",
         array);
    const QString object = "convert it, for instance with \"jq -c .\"";
    form("object over several lines", "{\n  \"n\": 1\n}\n", "a JSON object over several lines",
         object);
    form("object with a member", "{\"word\": \"{\\\"\",\r\n\"n\": 1}\n",
         "a JSON object over several lines", object);
    const auto bytes = [](const char *name, const QByteArray &content, const QString &message) {
        QTest::newRow(name) << content << message << true;
    };
    const QString utf16 = "text in UTF-16; expected UTF-8: convert it, for instance with "
                          "\"iconv -f UTF-16 -t UTF-8\"";
    const QString unmarked = "looks like text in UTF-16 without a byte order mark; expected UTF-8: "
                             "convert it, for instance with \"iconv -f UTF-16%1 -t UTF-8\"";
    const QString sample = "{\"n\":1}\n{\"word\":\"文本\"}\n";
    const auto inUtf16 = [](const QString &text, bool isBig) {
        QByteArray encoded;
        for (const QChar unit : text) {
            const QByteArray low(1, static_cast<char>(unit.cell()));
            const QByteArray high(1, static_cast<char>(unit.row()));
            encoded += isBig ? high + low : low + high;
        }
        return encoded;
    };
    bytes("UTF-16, little", "\xFF\xFE" + inUtf16(sample, false), utf16);
    bytes("UTF-16, big", "\xFE\xFF" + inUtf16(sample, true), utf16);
    bytes("no mark, little", inUtf16(sample, false), unmarked.arg("LE"));
    bytes("no mark, big", inUtf16(sample, true), unmarked.arg("BE"));
    bytes("no mark, one line", inUtf16("{}", false), unmarked.arg("LE"));
    bytes("no mark, mixed", inUtf16("ab中文\n", true), unmarked.arg("BE"));
    const QString zip = "a zip archive, such as a spreadsheet (.xlsx); expected text: export the "
                        "rows as text in UTF-8";
    bytes("xlsx", QByteArray("PK\3\4\024\0\6\0", 8), zip);
    bytes("zip, version 1", QByteArray("PK\3\4\n\0\0\0", 8), zip);
    bytes("xls", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1",
          "a binary file, such as a spreadsheet (.xls); expected text: export the rows as text in "
          "UTF-8");
    bytes("gzip", "\x1F\x8B\x08\x03\n",
          "a file compressed with gzip; expected text: decompress it, for instance with "
          "\"gzip -dc\"");
}

/// One message, and nothing is run.
void RowsTest::foreignFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    QFETCH(bool, asLinesToo);

    QVERIFY(m_folder->write("foreign", content));
    const QStringList arguments{"run", "task.json", "--each", "foreign", "--out", "o"};
    for (const QStringList &more : {QStringList(), QStringList{"--jobs", "2"}}) {
        const auto outcome = m_folder->run(arguments + more);
        QCOMPARE(outcome.err, "oprun: foreign: " + message + '\n');
        QCOMPARE(outcome.status, 2);
        QVERIFY(!QFile::exists(m_folder->filePath("o")));
    }
    const auto lines = m_folder->run({"run", "task.json", "--each", "foreign", "--lines", "word"});
    QCOMPARE(lines.err == "oprun: foreign: " + message + '\n', asLinesToo);
}

void RowsTest::firstRowsThatPass_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("done");

    const auto row = [](const char *name, const QByteArray &content, int done,
                        const QString &options = {}) {
        QTest::newRow(name) << content << options << done;
    };
    row("CSV behind a row", "{}\na,b\n", 1);
    row("an array behind a row", "{}\n[]\n", 1);
    row("a bad row", "{\"n\":\n{}\n", 1);
    row("a row that is cut off", "{\"word\":\"a,\n{}\n", 1);
    row("a row that is cut off behind a comma", "{\"word\":\"a\",\n{}\n", 1);
    row("a row that is cut off in a list", "{\"word\":[1,\n{}\n", 1);
    row("a row that is cut off at the end", "{\"word\":\"a\",\n", 0);
    row("a row with a comma behind it", "{},\n{}\n", 1);
    row("a scalar", "null\n{}\n", 1);
    row("a string", "\"a,b\"\n{}\n", 1);
    row("a number", "-1.5e3\n{}\n", 1);
    row("a NUL", QByteArray("{\"n\":1\0}\n{}\n", 12), 1);
    row("no line break", "{", 0);
    row("a long row", "{\"word\":\"" + QByteArray(200'000, '[') + "\"}\n{}\n", 2);
    row("blank lines", "\n \n\t{}\n", 1);
    row("lines of anything", "[\na,b\nPK\3\4\n", 3, "--lines word");
    row("an empty line", "\nx\n", 2, "--lines word");
    row("nothing", "", 0);
    row("a bad row behind those skipped", "{}\n[]\n{}\n", 1, "--skip 1");
    row("a bad row that is skipped", "a,b\n{}\n{}\n", 2, "--skip 1");
}

void RowsTest::firstRowsThatPass()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, options);
    QFETCH(int, done);

    QVERIFY(m_folder->write("passes", content));
    const auto outcome = m_folder->runShell(
        "$OPRUN run task.json --each - --errors /dev/null --print n " + options + " < passes");
    QVERIFY2(outcome.err.contains(QString(" rows: %1 done, ").arg(done)), qPrintable(outcome.err));
    QCOMPARE(outcome.out.count('\n'), done);
    QVERIFY(outcome.status <= 1);
}

void RowsTest::keepsFailedRows_data()
{
    QTest::addColumn<QString>("jobs");

    QTest::newRow("one job") << "1";
    QTest::newRow("three jobs") << "3";
}

/// Each line of the output stands beside its line of the input.
void RowsTest::keepsFailedRows()
{
    QFETCH(QString, jobs);

    const QStringList keep{"--on-error", "keep", "--jobs", jobs};
    const auto outcome =
        m_folder->run(QStringList{"run", "task.json", "--each", "bad", "--print", "r"} + keep);
    QCOMPARE(outcome.out,
             lineOf("1") + "\n" +
                 "{\"error\":\"line 3, column 1: an array; expected an object in braces\"}\n"
                 "{\"r\":\"b3\"}\n"
                 "{\"error\":\"line 5, \\\"n\\\": \\\"x\\\"; expected a whole number from "
                 "-2147483648 to 2147483647\"}\n"
                 "{\"error\":\"line 6, column 10: malformed JSON (bytes that are not UTF-8)\"}\n" +
                 lineOf("2"));
    QCOMPARE(outcome.err.count('\n'), 4);
    QCOMPARE(outcome.status, 1);

    QVERIFY(m_folder->write("numbers", "1\nx\n\n4"));
    const auto plain =
        m_folder->run(QStringList{"run", "task.json", "--each", "numbers", "--lines", "n",
                                  "--print", "r", "--errors", "e", "--out", "aligned"} +
                      keep);
    QCOMPARE(plain.status, 1);
    QCOMPARE(plain.err, QString("oprun: 4 rows: 2 done, 2 failed; 0 warnings\n"));
    QCOMPARE(m_folder->read("aligned"), QByteArray("a1\n\n\na4\n"));
    QCOMPARE(m_folder->read("e").count('\n'), 2);
}

void RowsTest::extraKeys_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("out");
    QTest::addColumn<int>("failed");

    QTest::newRow("refused") << "" << lineOf("2") << 2;
    QTest::newRow("refused, asked for") << "--extra refuse" << lineOf("2") << 2;
    QTest::newRow("ignored") << "--extra ignore" << lineOf("1") + lineOf("2") + lineOf("x") << 0;
    QTest::newRow("kept") << "--extra keep"
                          << "{\"r\":\"a1\",\"id\":1.50,\"\\u0061\":[1, {}]}\n" + lineOf("2") +
                                 "{\"r\":\"ax\",\"id\":\"\\ud800\"}\n"
                          << 0;
}

void RowsTest::extraKeys()
{
    QFETCH(QString, options);
    QFETCH(QString, out);
    QFETCH(int, failed);

    QVERIFY(m_folder->write("task-x.json", QByteArray(sampleTask)
                                               .replace(R"("n": {"type": "int", "value": 3})",
                                                        R"("n": {"type": "string"})")));
    QVERIFY(m_folder->write("extra", "{\"id\" :1.50, \"n\":\"1\",\"\\u0061\": [1, {}] }\n"
                                     "{\"n\":2}\n"
                                     "{\"n\":\"x\",\"id\":\"\\ud800\"}\n"));
    for (const QString jobs : {" --jobs 1 ", " --jobs 3 "}) {
        const auto outcome =
            m_folder->runShell("$OPRUN run task-x.json --each extra --print r" + jobs + options);
        QCOMPARE(outcome.out, out);
        QCOMPARE(outcome.status, failed == 0 ? 0 : 1);
        QCOMPARE(outcome.err.count('\n'), failed + 1);
        QVERIFY2(failed == 0 ||
                     outcome.err.startsWith("oprun: extra: line 1: the task has no variables "
                                            "\"id\", \"a\"; expected n, r, word"),
                 qPrintable(outcome.err));
    }
}

void RowsTest::skips_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("errors");

    const QString error =
        "oprun: part: line %1, column 1: malformed JSON (\"x\"; expected a value); "
        "the row: x\n";
    const auto summary = [](int done, int failed, int skipped) {
        const QString text = QString("oprun: %1 rows: %2 done, %3 failed; 0 warnings")
                                 .arg(done + failed)
                                 .arg(done)
                                 .arg(failed);
        return skipped == 0 ? text + '\n' : text + QString("; %1 skipped\n").arg(skipped);
    };
    QTest::newRow("none") << "--skip 0"
                          << "{\"n\":1}\n{\"n\":2}\n"
                          << error.arg(4) + summary(2, 1, 0);
    QTest::newRow("one") << "--skip 1"
                         << "{\"n\":2}\n"
                         << error.arg(4) + summary(1, 1, 1);
    QTest::newRow("lines of a larger file") << "--skip 1 --first-line 1001"
                                            << "{\"n\":2}\n"
                                            << error.arg(1004) + summary(1, 1, 1);
    QTest::newRow("a bad row") << "--skip 2"
                               << "{\"n\":2}\n"
                               << summary(1, 0, 2);
    QTest::newRow("all") << "--skip 3"
                         << "" << summary(0, 0, 3);
    QTest::newRow("more than there are") << "--skip 1000"
                                         << "" << summary(0, 0, 3);
    QTest::newRow("lines") << "--skip 2 --lines word --print word"
                           << "\nx\n{\"n\":2}\n"
                           << summary(3, 0, 2);
}

void RowsTest::skips()
{
    QFETCH(QString, options);
    QFETCH(QString, out);
    QFETCH(QString, errors);

    QVERIFY(m_folder->write("part", "{\"n\":1}\n \n\nx\n{\"n\":2}\n"));
    const QString print = options.contains("--print") ? "" : " --print n";
    for (const QString jobs : {" --jobs 1", " --jobs 2"}) {
        const auto outcome =
            m_folder->runShell("$OPRUN run task.json --each part " + options + print + jobs);
        QCOMPARE(outcome.err, errors);
        QCOMPARE(outcome.out, out);
    }
}

void RowsTest::failFast_data()
{
    QTest::addColumn<QString>("jobs");

    QTest::newRow("one job") << "1";
    QTest::newRow("four jobs") << "4";
}

void RowsTest::failFast()
{
    QFETCH(QString, jobs);

    QFile::remove(m_folder->filePath("out"));
    QVERIFY(m_folder->write("late", m_folder->read("many") + "[]\n" + m_folder->read("many")));
    const auto outcome =
        m_folder->run({"run", "task.json", "--each", "late", "--print", "r", "--fail-fast",
                       "--errors", "errors", "--out", "out", "--jobs", jobs});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QString("oprun: 40001 rows: 40000 done, 1 failed; 0 warnings; stopped at "
                                  "the first that failed; out is not written\n"));
    QVERIFY(!QFile::exists(m_folder->filePath("out")));
    QVERIFY(m_folder->read("errors").startsWith("{\"line\":40001,"));

    const auto printed = m_folder->run(
        {"run", "task.json", "--each", "late", "--print", "n", "--fail-fast", "--jobs", jobs});
    QCOMPARE(printed.out.toUtf8(), m_folder->read("many"));
}

void RowsTest::manyRowsInOrder()
{
    for (const QString jobs : {"1", "2", "7"}) {
        const auto outcome =
            m_folder->run({"run", "task.json", "--each", "many", "--print", "n", "--jobs", jobs});
        QVERIFY(outcome.bytes == m_folder->read("many"));
        QCOMPARE(outcome.err, QString("oprun: 40000 rows: 40000 done, 0 failed; 0 warnings\n"));
    }
}

void RowsTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    const auto row = [](const char *name, const QStringList &arguments, const QString &message) {
        QTest::newRow(name) << QStringList({"run", "task.json"}) + arguments << message;
    };
    row("no such file", {"--each", "none"}, "none: cannot be read (No such file or directory)");
    row("folder", {"--each", "."}, ".: cannot be read (file to open is a directory)");
    row("out in no folder", {"--each", "rows", "--out", "none/out"},
        "none/out: cannot be written (No such file or directory)");
    row("errors in no folder", {"--each", "rows", "--errors", "none/e"},
        "none/e: cannot be written (No such file or directory)");
    row("empty out", {"--each", "rows", "--out", ""}, "an empty file name; expected a file");
    row("empty errors", {"--each", "rows", "--errors", ""},
        "--errors: an empty file name; expected a file");
    row("errors where the lines go", {"--each", "rows", "--out", "o", "--errors", "./o"},
        R"(--errors: "./o" is the same file as "o" (--out); expected another file)");
    row("no jobs", {"--each", "rows", "--jobs", "0"},
        "--jobs: \"0\"; expected a whole number from 1 to 256");
    row("too many jobs", {"--each", "rows", "--jobs", "257"},
        "--jobs: \"257\"; expected a whole number from 1 to 256");
    row("jobs no number", {"--each", "rows", "--jobs", "two"},
        "--jobs: \"two\"; expected a whole number from 1 to 256");
    row("skip less than none", {"--each", "rows", "--skip", "-1"},
        "--skip: \"-1\"; expected a whole number from 0 to 1000000000000000");
    row("skip no number", {"--each", "rows", "--skip", "1k"},
        "--skip: \"1k\"; expected a whole number from 0 to 1000000000000000");
    row("line 0", {"--each", "rows", "--first-line", "0"},
        "--first-line: \"0\"; expected a whole number from 1 to 1000000000000000");
    row("on error what", {"--each", "rows", "--on-error", "stop"},
        "--on-error: \"stop\"; expected skip or keep");
    row("stop and keep", {"--each", "rows", "--on-error", "keep", "--fail-fast"},
        "--fail-fast: cannot go with \"--on-error keep\"");
    row("extra what", {"--each", "rows", "--extra", "all"},
        "--extra: \"all\"; expected refuse, ignore or keep");
    row("extra keys of lines", {"--each", "rows", "--lines", "word", "--extra", "keep"},
        "--extra: is about rows of JSON; leave out \"--lines\"");
    row("lines for no variable", {"--each", "rows", "--lines", "m"},
        "--lines: the task has no variable \"m\"; expected n, r, word");
    row("print no variable", {"--each", "rows", "--print", "m"},
        "--print: the task has no variable \"m\"; expected n, r, word");
    row("trace of rows", {"--each", "rows", "--trace"},
        "--trace: cannot go with rows; leave out \"--each\"");
    for (const QString option :
         {"--out", "--errors", "--jobs", "--on-error", "--extra", "--skip", "--first-line"}) {
        row(qPrintable(option), {option, "2"},
            option + ": is about rows; expected \"--each FILE\", too");
    }
}

void RowsTest::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);

    const auto outcome = m_folder->run(arguments);
    QCOMPARE(outcome.err, "oprun: " + message + '\n');
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 2);
    QVERIFY(!QFile::exists(m_folder->filePath("o")));
}

void RowsTest::outAppearsWholeOrNotAtAll()
{
    QVERIFY(m_folder->write("kept", "before"));
    const auto outcome = m_folder->run({"run", "task.json", "--each", "bad", "--print", "r",
                                        "--fail-fast", "--out", "kept", "--errors", "errors"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(m_folder->read("kept"), QByteArray("before"));
    QCOMPARE(QDir(m_folder->path()).entryList({"kept*"}), QStringList("kept"));

    const auto full = m_folder->run({"run", "task.json", "--each", "many", "--out", "/dev/full"});
    QCOMPARE(full.status, 2);
    QVERIFY2(full.err.startsWith("oprun: /dev/full: cannot be written (No space left on device)\n"),
             qPrintable(full.err));
}

void RowsTest::outMayBeTheInput()
{
    QVERIFY(m_folder->write("both", "{\"n\":1}\n{\"n\":2}\n"));
    QCOMPARE(m_folder->run({"run", "task.json", "--each", "both", "--print", "r", "--out", "both"})
                 .status,
             0);
    QCOMPARE(m_folder->read("both"), QString(lineOf("1") + lineOf("2")).toUtf8());
}

void RowsTest::outMayBeADevice()
{
    const auto nowhere = m_folder->run(
        {"run", "task.json", "--each", "bad", "--out", "/dev/null", "--errors", "/dev/null"});
    QCOMPARE(nowhere.err, QString("oprun: 6 rows: 3 done, 3 failed; 0 warnings\n"));
    QVERIFY(!QFileInfo("/dev/null").isFile());
    const auto appended = m_folder->runShell(
        "echo before > log; $OPRUN run task.json --each rows --print n --out /dev/stdout >> log;"
        "cat log");
    QCOMPARE(appended.out, QString("before\n{\"n\":1}\n{\"n\":2}\n{\"n\":3}\n"));
    const auto outcome =
        m_folder->runShell("$OPRUN run task.json --each rows --print r --out /dev/stdout | cat");
    QCOMPARE(outcome.out, lineOf("1") + lineOf("2") + lineOf("3"));
}

/// As a filter between two programs that talk to each other.
void RowsTest::answersEachRowAtOnce()
{
    for (const QString jobs : {"1", "2"}) {
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.start(OPRUN_FILE,
                      {"run", "task.json", "--each", "-", "--print", "r", "--jobs", jobs});
        QVERIFY(process.waitForStarted());
        for (int i = 0; i < 3; ++i) {
            process.write("{\"n\":" + QByteArray::number(i) + "}\n");
            QTRY_VERIFY(process.waitForReadyRead(100) || process.canReadLine());
            QCOMPARE(process.readLine(), lineOf(QString::number(i)).toUtf8());
        }
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
    }
}

void RowsTest::interrupted_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QString>("jobs");

    QTest::newRow("Ctrl-C") << SIGINT << "1";
    QTest::newRow("Ctrl-C, two jobs") << SIGINT << "2";
    QTest::newRow("asked to end") << SIGTERM << "1";
}

void RowsTest::interrupted()
{
    QFETCH(int, signal);
    QFETCH(QString, jobs);

    QVERIFY(m_folder->write("kept", "before"));
    for (const QString out : {"-", "kept"}) {
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.start(OPRUN_FILE, {"run", "task.json", "--each", "-", "--print", "r", "--jobs",
                                   jobs, "--out", out, "--errors", "errors-kept"});
        QVERIFY(process.waitForStarted());
        process.write("{\"n\":1}\n[]\n{\"n\":2}\n{\"n\":");
        if (out == "-")
            QTRY_COMPARE((process.waitForReadyRead(50), process.bytesAvailable()), qint64(22));
        else
            QTest::qWait(500);
        QCOMPARE(kill(static_cast<pid_t>(process.processId()), signal), 0);
        QVERIFY(process.waitForFinished(5000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 130);
        const QString missing = out == "-" ? "" : "; kept is not written";
        QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
                 "oprun: 3 rows: 2 done, 1 failed; 0 warnings; interrupted" + missing +
                     "; errors-kept is not written\n");
    }
    QCOMPARE(m_folder->read("kept"), QByteArray("before"));
    QVERIFY(!QFile::exists(m_folder->filePath("errors-kept")));
}

void RowsTest::readerGoesAway()
{
    for (const QString jobs : {"1", "3"}) {
        const auto outcome = m_folder->runShell(
            "yes '{\"n\":5}' | { $OPRUN run task.json --each - --print r --jobs " + jobs +
            "; echo status $? >&2; } | head -n 2");
        QCOMPARE(outcome.out, lineOf("5") + lineOf("5"));
        QVERIFY2(outcome.err.contains(" failed; 0 warnings; nobody reads the output any more\n"),
                 qPrintable(outcome.err));
        QVERIFY2(outcome.err.endsWith("status 141\n"), qPrintable(outcome.err));
        QCOMPARE(outcome.err.count('\n'), 2);
    }
}

void RowsTest::stuckReader_data()
{
    QTest::addColumn<QString>("requests");
    QTest::addColumn<QString>("seconds");

    QTest::newRow("asked once") << "kill -TERM $filter"
                                << "1";
    QTest::newRow("messages to the same reader") << "kill -TERM $filter"
                                                 << "";
    QTest::newRow("asked twice") << "kill -TERM $filter; sleep 0.5; kill -TERM $filter"
                                 << "[01].*";
}

/// A reader that takes nothing does not keep the program from its end.
void RowsTest::stuckReader()
{
    QFETCH(QString, requests);
    QFETCH(QString, seconds);

    // Without a time all goes to the reader, and nobody can say what.
    const QString errorFile = seconds.isEmpty() ? "&1" : "stuck-errors";
    const auto outcome = m_folder->runShell(
        "rm -f stuck; mkfifo stuck; sleep 20 < stuck & sleeper=$!;"
        "yes {} | $OPRUN run task.json --each - > stuck 2>" +
        errorFile + " & filter=$!; sleep 2;" + requests + "; wait $filter; echo $?; kill $sleeper");
    QCOMPARE(outcome.out, QString("130\n"));
    if (seconds.isEmpty())
        return;
    const QString errors = QString::fromUtf8(m_folder->read("stuck-errors"));
    const QRegularExpression expected(
        "^oprun: oprun was ended by force while it wrote its output, " + seconds +
        " s after the interruption\noprun: (\\d+) rows: \\1 done, 0 failed; 0 warnings; "
        "interrupted; the last \\d+ of them are not printed\n$");
    QVERIFY2(expected.match(errors).hasMatch(), qPrintable(errors));
}

void RowsTest::stopsWithoutMoreInput()
{
    for (const QString jobs : {"1", "2"}) {
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.start(OPRUN_FILE,
                      {"run", "task.json", "--each", "-", "--fail-fast", "--jobs", jobs});
        QVERIFY(process.waitForStarted());
        process.write("{bad\n");
        QVERIFY(process.waitForFinished(10'000));
        QCOMPARE(process.exitCode(), 1);
    }
}

void RowsTest::errorsThatCannotBeWritten()
{
    const auto outcome = m_folder->runShell(
        "$OPRUN run task.json --each bad --out unwritten --errors /dev/full; echo $?");
    QCOMPARE(outcome.out, QString("2\n"));
    QCOMPARE(outcome.err,
             QString("oprun: /dev/full: cannot be written (No space left on device)\n"
                     "oprun: 5 rows: 2 done, 3 failed; 0 warnings; stopped; unwritten is not "
                     "written; /dev/full is not written\n"));
    QVERIFY(!QFile::exists(m_folder->filePath("unwritten")));
}

void RowsTest::closedInput()
{
    const auto outcome =
        m_folder->runShell("timeout 10 $OPRUN run task.json --each - <&-; echo $?");
    QCOMPARE(outcome.out, QString("2\n"));
    QVERIFY2(
        outcome.err.startsWith("oprun: standard input: cannot be read (Bad file descriptor)\n"),
        qPrintable(outcome.err));
}

void RowsTest::manyOpenFiles()
{
    const auto outcome =
        m_folder->runShell("ulimit -n 4096; command -v bash > /dev/null || exit 3;"
                           "bash -c 'for i in {10..1500}; do eval \"exec $i< task.json\"; done;"
                           "exec \"$OPRUN\" run task.json --each rows --print n'");
    QCOMPARE(outcome.out, QString("{\"n\":1}\n{\"n\":2}\n{\"n\":3}\n"));
}

QTEST_GUILESS_MAIN(RowsTest)
#include "RowsTest.moc"
