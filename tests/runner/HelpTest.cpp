#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

/// What oprun tells of itself: help texts, versions, the manual page, completion.
class HelpTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void examplesWork_data();
    void examplesWork();
    void manualPageHasEverything_data();
    void manualPageHasEverything();
    void manualPageHasNothingElse();
    void versions();
    void versionsOfBrokenPlugins();
    void completes_data();
    void completes();

private:
    void addCommandRows() const;
    QString help(const QString &command) const;
    QString complete(const QStringList &words) const;

    std::unique_ptr<OprunFolder> m_folder;
    QStringList m_commands;
    QString m_manual;
};

namespace {

/// The manual page as it is read: without the escapes of its language.
QString readManual()
{
    QFile file(MANUAL_PAGE);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll())
        .remove("\\fB")
        .remove("\\fI")
        .remove("\\fR")
        .replace("\\-", "-");
}

QStringList matches(const QString &pattern, const QString &text)
{
    QStringList found;
    auto match = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (match.hasNext())
        found.append(match.next().captured(1));
    return found;
}

} // namespace

void HelpTest::initTestCase()
{
    m_folder = std::make_unique<OprunFolder>(OPRUN_FILE);
    QVERIFY(QDir(m_folder->path()).mkdir("examples"));
    const QDir examples(EXAMPLE_FOLDER);
    for (const QString &name : examples.entryList({"*.json", "*.txt"}))
        QVERIFY(QFile::copy(examples.filePath(name), m_folder->filePath("examples/" + name)));
    QVERIFY(QDir(m_folder->path()).mkdir("plugins"));
    const QString pluginName = QFileInfo(PLUGIN_FILE).fileName();
    QVERIFY(QFile::copy(PLUGIN_FILE, m_folder->filePath("plugins/" + pluginName)));
    m_commands = matches("^  ([a-z]+) ", m_folder->run({"--help"}).out);
    QVERIFY(m_commands.contains("run"));
    m_manual = readManual();
    QVERIFY(!m_manual.isEmpty());
}

void HelpTest::addCommandRows() const
{
    QTest::addColumn<QString>("command");
    for (const QString &command : m_commands)
        QTest::newRow(qPrintable(command)) << command;
}

QString HelpTest::help(const QString &command) const
{
    return m_folder->run({command, "--help"}).out;
}

void HelpTest::examplesWork_data()
{
    addCommandRows();
}

void HelpTest::examplesWork()
{
    QFETCH(QString, command);

    const QStringList lines = matches("^Example:\\n  oprun (.*)$", help(command));
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().startsWith(command), qPrintable(lines.first()));
    const auto outcome = m_folder->runShell("$OPRUN " + lines.first());
    QVERIFY2(outcome.status == 0, qPrintable(outcome.err));
}

void HelpTest::manualPageHasEverything_data()
{
    addCommandRows();
}

void HelpTest::manualPageHasEverything()
{
    QFETCH(QString, command);

    const QString common = m_manual.section(".SH OPTIONS", 1).section(".SH", 0, 0);
    const QRegularExpression heading("\\n\\.SS oprun " + command + "\\b");
    const QString section = m_manual.section(heading, 1).section("\n.S", 0, 0);
    QStringList described = matches("(--[a-z-]+)", common + section);
    QStringList options = matches("^  (?:-., )?(--[a-z-]+)", help(command));
    described.removeDuplicates();
    described.sort();
    options.sort();
    QCOMPARE(described, options);
}

void HelpTest::manualPageHasNothingElse()
{
    QStringList described = matches("^.SS oprun ([a-z]+)", m_manual);
    described.sort();
    QStringList commands = m_commands;
    commands.sort();
    QCOMPARE(described, commands);
}

void HelpTest::versions()
{
    const QString plugin = "com.quorlent.Brimwork.TextOperPlugin 1.0.0, 文本操作插件, ";
    const QString program = QString("oprun 1.0.0, Qt %1\n").arg(qVersion());
    QCOMPARE(m_folder->run({"--version", "--plugin", PLUGIN_FILE}).out,
             program + plugin + PLUGIN_FILE + '\n');
    const auto own = m_folder->run({"run", "--version"});
    QVERIFY2(own.out.startsWith(program + plugin), qPrintable(own.out));
    QCOMPARE(own.err, QString());
    QCOMPARE(own.status, 0);
}

void HelpTest::versionsOfBrokenPlugins()
{
    const auto outcome = m_folder->run({"-v", "--plugin", "none.so"});
    QCOMPARE(outcome.out, QString("oprun 1.0.0, Qt %1\n").arg(qVersion()));
    QCOMPARE(outcome.err, QString("oprun: none.so: cannot be loaded as a plug-in "
                                  "(there is no such file)\n"));
    QCOMPARE(outcome.status, 3);
}

void HelpTest::completes_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("offered");

    const auto row = [](const char *name, const QStringList &words, const char *offered) {
        QTest::newRow(name) << words << QString(offered);
    };
    row("commands", {"d"}, "describe docs");
    row("all commands", {""}, qPrintable(m_commands.join(' ')));
    row("options of the program", {"--v"}, "--version");
    row("options of a command", {"run", "--e"}, "--each --errors --extra");
    row("types", {"describe", "text.f"}, "text.find text.fromNumber");
    row("types after an option", {"--plugin", PLUGIN_FILE, "describe", "text.p"}, "text.pad");
    row("types after an option with a sign", {"--plugin", "=", PLUGIN_FILE, "describe", "text.p"},
        "text.pad");
    row("files", {"run", "examples/inv"}, "examples/invoice.json");
    row("files of an option", {"run", "--each", "exam"}, "examples");
    row("checks", {"validate", "--only", "hostile.l"}, "hostile.largeTexts hostile.locales");
    row("commands to help with", {"help", "d"}, "describe docs");
    row("levels", {"validate", "--level", ""}, "1 2 3 4 5");
    row("nothing for a number", {"run", "--jobs", ""}, "");
}

void HelpTest::completes()
{
    QFETCH(QStringList, words);
    QFETCH(QString, offered);

    QCOMPARE(complete(words), offered);
}

/// What the completion offers for the last of the words.
QString HelpTest::complete(const QStringList &words) const
{
    QStringList quoted;
    for (const QString &word : words)
        quoted.append('\'' + word + '\'');
    const QString script =
        QString("source " COMPLETION_FILE "\n"
                "COMP_WORDS=(\"$OPRUN\" %1)\n"
                "COMP_CWORD=%2\n"
                "_oprun \"$OPRUN\" \"${COMP_WORDS[%2]}\" \"${COMP_WORDS[%2-1]}\"\n"
                "echo -n \"${COMPREPLY[*]}\"\n")
            .arg(quoted.join(' '))
            .arg(words.size());
    m_folder->write("complete.sh", script.toUtf8());
    const auto outcome = m_folder->runShell("OPRUN=$OPRUN bash complete.sh");
    return outcome.out + outcome.err;
}

QTEST_GUILESS_MAIN(HelpTest)
#include "HelpTest.moc"
