#include "tests/support/OprunProcess.h"
#include "tests/support/QuietTest.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

/// "oprun validate" as a process: options, report, exit status. What the checks find is the zoo's
/// to show.
class ValidateCommandTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void lists();
    void listsAsJson();
    void refuses_data();
    void refuses();
    void ownPluginPasses();
    void reportsFaults();
    void reportsAsJson();
    void runsOnlyThoseNamed();
    void runsUpToTheLevel_data();
    void runsUpToTheLevel();
    void runsOperandChecksOnRequest();
    void repeatsTheSeed();
    void showsWhyOthersAreSkipped();
    void worstOfSeveralPlugins();
    void findsPluginsByRelativePath();
    void withoutItsProbe();

private:
    OprunOutcome validate(const QStringList &arguments) const;

    QTemporaryDir m_folder;
};

namespace {

QJsonObject parsed(const QString &json)
{
    return QJsonDocument::fromJson(json.toUtf8()).object();
}

QStringList idsIn(const QJsonObject &plugin)
{
    QStringList ids;
    const QJsonArray checks = plugin["checks"].toArray();
    for (const QJsonValue &check : checks)
        ids.append(check["id"].toString());
    return ids;
}

QJsonObject firstPlugin(const QString &json)
{
    return parsed(json)["plugins"].toArray().at(0).toObject();
}

} // namespace

void ValidateCommandTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QFile file(m_folder.filePath("notes.so"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("no library\n") > 0);
    QVERIFY(QFile::copy(PLUGIN_FILE, m_folder.filePath("插件.so")));
}

OprunOutcome ValidateCommandTest::validate(const QStringList &arguments) const
{
    return runProgram(OPRUN_FILE, QStringList("validate") + arguments, m_folder.path());
}

void ValidateCommandTest::lists()
{
    const OprunOutcome outcome = validate({"--list"});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    const QStringList lines = outcome.out.split('\n', Qt::SkipEmptyParts);
    QVERIFY(lines.size() > 20);
    int level = 1;
    QStringList ids;
    for (const QString &line : lines) {
        const QRegularExpressionMatch match =
            QRegularExpression("^([a-z]+\\.[A-Za-z]+) +([1-5])  (\\S.*\\.)$").match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line));
        QVERIFY2(!ids.contains(match.captured(1)), qPrintable(line));
        ids.append(match.captured(1));
        QVERIFY2(match.captured(2).toInt() >= level, qPrintable(line));
        level = match.captured(2).toInt();
    }
    QVERIFY(level >= 3);
}

void ValidateCommandTest::listsAsJson()
{
    const OprunOutcome outcome = validate({"--list", "--json"});
    QCOMPARE(outcome.status, 0);
    const QJsonObject first = parsed(outcome.out)["checks"].toArray().at(0).toObject();
    QCOMPARE(first["id"].toString(), QString("file.metadata"));
    QCOMPARE(first["level"].toInt(), 1);
    QVERIFY(first["sentence"].toString().endsWith('.'));
}

void ValidateCommandTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("err");

    const QString help = ". Try \"oprun validate --help\".";
    const auto row = [&](const QStringList &arguments, const QString &err) {
        QTest::newRow(qPrintable(arguments.join(' ')))
            << arguments << 2 << "validate: " + err + help;
    };
    row({}, "no plug-in; expected PLUGIN... or --list");
    row({"--list", "notes.so"}, "\"notes.so\"; expected no plug-in with --list");
    row({"--plugin", "x.so", "notes.so"},
        "--plugin is for other commands; expected PLUGIN after the command");
    row({"--level", "0", "notes.so"}, "--level: \"0\"; expected a whole number from 1 to 5");
    row({"--level", "6", "notes.so"}, "--level: \"6\"; expected a whole number from 1 to 5");
    row({"--level", "high", "notes.so"}, "--level: \"high\"; expected a whole number from 1 to 5");
    row({"--seed", "-1", "notes.so"},
        "--seed: \"-1\"; expected a whole number from 0 to 4294967295");
    row({"--seed", "4294967296", "notes.so"},
        "--seed: \"4294967296\"; expected a whole number from 0 to 4294967295");
    row({"--timeout", "0", "notes.so"},
        "--timeout: \"0\"; expected a whole number from 1 to 86400");
    row({"--timeout", "1.5", "notes.so"},
        "--timeout: \"1.5\"; expected a whole number from 1 to 86400");
    QTest::newRow("no such file") << QStringList{"notes.so", "missing.so"} << 3
                                  << "missing.so: there is no such file";
    QTest::newRow("unknown option")
        << QStringList{"--fast", "notes.so"} << 2
        << "validate: unknown option \"--fast\". Try \"oprun validate --help\".";
}

void ValidateCommandTest::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, err);
    const OprunOutcome outcome = validate(arguments);
    QCOMPARE(outcome.err, "oprun: " + err + '\n');
    QCOMPARE(outcome.out, QString());
    QTEST(outcome.status, "status");
}

void ValidateCommandTest::ownPluginPasses()
{
    const OprunOutcome outcome = validate({PLUGIN_FILE});
    QCOMPARE(outcome.err, QString());
    const QStringList lines = outcome.out.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.first(), QString(PLUGIN_FILE));
    for (const QString &line : lines.mid(1, lines.size() - 2))
        QVERIFY2(line.startsWith("passed  "), qPrintable(line));
    QCOMPARE(lines.last(), QString("%1 passed (level 3, seed 1)").arg(lines.size() - 2));
    QCOMPARE(outcome.status, 0);
}

void ValidateCommandTest::reportsFaults()
{
    // The example in the interface header leaves its icon to the reader.
    const OprunOutcome outcome = validate({GREET_PLUGIN, "--only", "catalog.icons"});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out,
             QString(GREET_PLUGIN) +
                 "\nfailed  catalog.icons  The icon of each operation is a resource that can be "
                 "read.\n    greet.hello: icon: \":/images/greet_hello.svg\" cannot be read (No "
                 "such file or directory)\n1 failed (seed 1)\n");
    QCOMPARE(outcome.status, 1);
}

void ValidateCommandTest::reportsAsJson()
{
    const OprunOutcome outcome = validate({GREET_PLUGIN, "--json", "--level", "2"});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 1);
    const QJsonObject plugin = firstPlugin(outcome.out);
    QCOMPARE(plugin.keys(),
             QStringList({"checks", "counts", "level", "operands", "plugin", "seed"}));
    QCOMPARE(plugin["plugin"].toString(), QString(GREET_PLUGIN));
    QCOMPARE(plugin["level"].toInt(), 2);
    QCOMPARE(plugin["operands"], QJsonValue(false));
    QCOMPARE(plugin["seed"].toInt(), 1);
    QCOMPARE(plugin["counts"]["crashed"].toInt(-1), 0);
    const QJsonArray checks = plugin["checks"].toArray();
    int failed = 0;
    for (const QJsonValue &check : checks) {
        failed += check["result"] == "failed" ? 1 : 0;
        QCOMPARE(check.toObject().keys(),
                 QStringList({"details", "id", "level", "milliseconds", "result", "sentence"}));
        QVERIFY(check["milliseconds"].toInt(-1) >= 0);
        if (check["id"] == "catalog.icons") {
            QCOMPARE(check["result"].toString(), QString("failed"));
            QCOMPARE(check["details"].toArray().size(), 1);
        }
    }
    QVERIFY(failed > 0);
    QCOMPARE(plugin["counts"]["failed"].toInt(), failed);
}

void ValidateCommandTest::runsOnlyThoseNamed()
{
    const OprunOutcome outcome =
        validate({"--json", PLUGIN_FILE, "--only", "schema.keys", "--only=file.qt"});
    QCOMPARE(idsIn(firstPlugin(outcome.out)), QStringList({"file.qt", "schema.keys"}));
    QCOMPARE(outcome.status, 0);

    const OprunOutcome unknown = validate({PLUGIN_FILE, "--only", "schema.key"});
    QVERIFY2(unknown.err.startsWith(
                 "oprun: validate: --only: no check \"schema.key\"; expected file.metadata, "),
             qPrintable(unknown.err));
    QVERIFY2(unknown.err.contains(", schema.keys, "), qPrintable(unknown.err));
    QCOMPARE(unknown.status, 2);
}

void ValidateCommandTest::runsUpToTheLevel_data()
{
    QTest::addColumn<int>("level");
    for (int level = 1; level <= 5; ++level)
        QTest::addRow("level %d", level) << level;
}

void ValidateCommandTest::runsUpToTheLevel()
{
    QFETCH(int, level);
    QStringList expected;
    const QJsonArray all = parsed(validate({"--list", "--json"}).out)["checks"].toArray();
    for (const QJsonValue &check : all) {
        if (check["level"].toInt() <= level && check["option"].toString().isEmpty())
            expected.append(check["id"].toString());
    }
    // On a file that does not load, so that it takes no time.
    const OprunOutcome outcome =
        validate({"--json", "notes.so", "--level", QString::number(level)});
    QCOMPARE(idsIn(firstPlugin(outcome.out)), expected);
    QCOMPARE(outcome.status, 3);
}

void ValidateCommandTest::runsOperandChecksOnRequest()
{
    const QStringList operandChecks{"operands.references", "operands.numbers", "operands.lists",
                                    "operands.members"};
    // On a file that does not load, so that it takes no time.
    const auto idsWith = [&](const QStringList &arguments) {
        return idsIn(firstPlugin(validate(QStringList{"--json", "notes.so"} + arguments).out))
            .filter("operands.");
    };
    QCOMPARE(idsWith({"--level", "5"}), QStringList());
    QCOMPARE(idsWith({"--level", "1", "--operands"}), operandChecks);
    QCOMPARE(idsWith({"--only", "operands.lists"}), QStringList("operands.lists"));

    const auto lastLineWith = [&](const QStringList &arguments) {
        return validate(QStringList{"notes.so"} + arguments).out.section('\n', -2, -2);
    };
    QVERIFY(lastLineWith({"--level", "3"}).endsWith("(level 3, seed 1)"));
    QVERIFY(lastLineWith({"--level", "4"}).endsWith("(level 4, without --operands, seed 1)"));
    QVERIFY(lastLineWith({"--operands"}).endsWith("(level 3, with --operands, seed 1)"));
    QVERIFY(lastLineWith({"--only", "operands.lists"}).endsWith("(seed 1)"));
}

void ValidateCommandTest::repeatsTheSeed()
{
    const OprunOutcome outcome =
        validate({PLUGIN_FILE, "--only", "file.qt", "--seed", "4294967295"});
    QVERIFY2(outcome.out.endsWith("1 passed (seed 4294967295)\n"), qPrintable(outcome.out));
}

void ValidateCommandTest::showsWhyOthersAreSkipped()
{
    const OprunOutcome outcome = validate({"notes.so", "--only", "catalog.ids"});
    const QStringList lines = outcome.out.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 6);
    QVERIFY2(lines.at(1).startsWith("failed   file.loads"), qPrintable(outcome.out));
    QVERIFY2(lines.at(3).startsWith("skipped  catalog.ids"), qPrintable(outcome.out));
    QCOMPARE(lines.at(4), QString("    file.loads did not pass"));
    QCOMPARE(lines.at(5), QString("1 failed, 1 skipped (seed 1)"));
    QCOMPARE(outcome.status, 3);
}

void ValidateCommandTest::worstOfSeveralPlugins()
{
    const OprunOutcome outcome =
        validate({GREET_PLUGIN, STRANGER_PLUGIN, PLUGIN_FILE, "--json", "--only", "catalog.icons"});
    const QJsonArray plugins = parsed(outcome.out)["plugins"].toArray();
    QCOMPARE(plugins.size(), 3);
    QCOMPARE(plugins.at(0)["counts"]["failed"].toInt(), 1);
    QCOMPARE(plugins.at(1)["counts"]["skipped"].toInt(), 1);
    QCOMPARE(plugins.at(2)["counts"]["passed"].toInt(), 1);
    QCOMPARE(outcome.status, 3);

    const OprunOutcome texts = validate({PLUGIN_FILE, GREET_PLUGIN, "--only", "catalog.icons"});
    QVERIFY2(texts.out.contains("\n1 passed (seed 1)\n\n" + QString(GREET_PLUGIN) + "\nfailed"),
             qPrintable(texts.out));
    QCOMPARE(texts.status, 1);
}

void ValidateCommandTest::findsPluginsByRelativePath()
{
    const OprunOutcome outcome = validate({"插件.so", "--only", "file.loads", "--timeout", "60"});
    QVERIFY2(outcome.out.startsWith("插件.so\npassed  file.loads  "), qPrintable(outcome.out));
    QCOMPARE(outcome.status, 0);
}

void ValidateCommandTest::withoutItsProbe()
{
    const QString program = m_folder.filePath("oprun");
    QVERIFY(QFile::copy(OPRUN_FILE, program));
    const OprunOutcome outcome =
        runProgram(program, {"validate", PLUGIN_FILE}, {}, {{"LD_LIBRARY_PATH", LIBRARY_FOLDER}});
    QCOMPARE(outcome.err, "oprun: " + QFileInfo(program).canonicalFilePath() +
                              "-probe: not there, or no program; expected the one that runs the "
                              "checks\n");
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 2);
}

QTEST_GUILESS_MAIN(ValidateCommandTest)

#include "ValidateCommandTest.moc"
