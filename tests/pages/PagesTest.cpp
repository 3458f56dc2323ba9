#include "tests/pages/Elsewhere.h"
#include "tests/pages/PageCommand.h"
#include "tests/pages/PageFolder.h"
#include "tests/pages/PageLinks.h"
#include "tests/pages/PageReader.h"
#include "tests/pages/ShownOutput.h"
#include "tests/support/QuietTest.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

#include <memory>

namespace {

QString contentOf(const QString &name)
{
    QFile file(PROJECT_FOLDER "/" + name);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The pages of the project, as seen from its folder.
QStringList pageNames()
{
    const QDir project(PROJECT_FOLDER);
    QStringList names = project.entryList({"*.md"}, QDir::Files);
    QStringList folders = project.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    folders.removeAll("build");
    for (const QString &folder : folders) {
        QDirIterator pages(project.filePath(folder), {"*.md", "*.1"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (pages.hasNext())
            names.append(project.relativeFilePath(pages.next()));
    }
    names.sort();
    return names;
}

QVector<PageCommand> commandsIn(const QString &page)
{
    const QString text = contentOf(page);
    return page.endsWith(".1") ? commandsOfManual(text) : commandsOfPage(text);
}

bool needsWorkbench(const PageCommand &command)
{
    return command.text.contains("opworkbench");
}

/// Whether the command is of a kind that is typed here: it only reads, or writes into the folder of
/// its page. Others build, install or delete.
bool isHarmless(const PageCommand &command)
{
    static const QRegularExpression setting("^[A-Z_]+=\\S* ");
    static const QStringList programs{"build/release/bin/opworkbench",
                                      "build/release/bin/oprun",
                                      "cat",
                                      "diff",
                                      "echo",
                                      "ls",
                                      "oprun",
                                      "opworkbench",
                                      "printf",
                                      "scripts/run-example",
                                      "split"};
    return programs.contains(command.plainText().remove(setting).section(' ', 0, 0));
}

/// The file that a command shows, when it does nothing else and the file is no part of the project.
QString fileShownBy(const PageCommand &command)
{
    static const QRegularExpression cat("^cat ([A-Za-z0-9][A-Za-z0-9_.-]*)$");
    return command.showsOutput ? cat.match(command.text).captured(1) : QString();
}

} // namespace

/// Every command of every page is typed, and has to do what the page says; the few that take too
/// much for that are in one table with what runs them instead.
class PagesTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readsCommands_data();
    void readsCommands();
    void comparesOutputs_data();
    void comparesOutputs();
    void everyCommandDoesWhatItsPageSays_data();
    void everyCommandDoesWhatItsPageSays();
    void everyLinkLeadsSomewhere_data();
    void everyLinkLeadsSomewhere();
    void everyEntryIsOnAPage();
    void everyEntryIsRunElsewhere_data();
    void everyEntryIsRunElsewhere();

private:
    bool isTypedHere(const QString &page, const PageCommand &command) const;
    OprunOutcome typeInto(PageFolder &folder, const PageCommand &command);
    PageFolder &folderBefore(const QString &page, int index);

    QMap<QString, QVector<PageCommand>> m_pages;
    QMap<QString, Elsewhere> m_elsewhere; ///< by their commands, and by their pages
    std::unique_ptr<PageFolder> m_folder; ///< of the page whose commands are being typed
    QString m_page;
    int m_typed = 0; ///< how many of its commands have been
};

void PagesTest::initTestCase()
{
    const QStringList names = pageNames();
    for (const QString &page : names)
        m_pages.insert(page, commandsIn(page));
    QVERIFY(m_pages.contains("README.md") && m_pages.contains("docs/oprun.1"));
    const auto entries = commandsRunElsewhere() + pagesRunElsewhere();
    for (const Elsewhere &entry : entries) {
        QVERIFY2(!m_elsewhere.contains(entry.command), qPrintable(entry.command));
        m_elsewhere.insert(entry.command, entry);
    }
}

void PagesTest::readsCommands_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("commands");
    QTest::newRow("console") << "```console\n$ a b\n1\n\n2\n$ c\n```\n$ d\n"
                             << QStringList{"2: a b > 1||2", "6: c > "};
    QTest::newRow("sh") << "```sh\na  # why\n# only why\n\nb \\\n  c\n```\n"
                        << QStringList{"2: a", "5: b c"};
    QTest::newRow("indented") << "Text\n\n    a\n    b \\\n        c\n\nText\n    no command\n"
                              << QStringList{"3: a", "4: b c"};
    QTest::newRow("indented at the start") << "    a\n" << QStringList{"1: a"};
    QTest::newRow("in a list") << "1. Do\n\n   ```console\n   $ a\n   x\n   ```\n\n    text\n"
                               << QStringList{"4: a > x"};
    QTest::newRow("behind a list") << "- Do\n\nText\n\n    a\n" << QStringList{"5: a"};
    QTest::newRow("other fences") << "```json\n$ a\n```\n\n```\n    b\n```\n\n    c\n"
                                  << QStringList{"9: c"};
    QTest::newRow("an open fence") << "```console\n$ a\n" << QStringList{"2: a > "};
}

void PagesTest::readsCommands()
{
    QFETCH(QString, page);
    QFETCH(QStringList, commands);
    QStringList read;
    const auto found = commandsOfPage(page);
    for (const PageCommand &command : found) {
        const QString shown = command.showsOutput ? " > " + command.shown.join('|') : QString();
        read.append(QString::number(command.line) + ": " + command.plainText() + shown);
    }
    QCOMPARE(read, commands);
}

void PagesTest::comparesOutputs_data()
{
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QString>("printed");
    QTest::addColumn<bool>("same");
    const QString abcd = "a\nb\nc\nd\n";
    QTest::newRow("the same") << QStringList{"a", "b", "c", "d"} << abcd << true;
    QTest::newRow("a line more") << QStringList{"a", "b", "c"} << abcd << false;
    QTest::newRow("a line less") << QStringList{"a", "b", "c", "d", "e"} << abcd << false;
    QTest::newRow("nothing") << QStringList{} << "" << true;
    QTest::newRow("something for nothing") << QStringList{} << abcd << false;
    QTest::newRow("the end left out") << QStringList{"a", "..."} << abcd << true;
    QTest::newRow("the start left out") << QStringList{"…", "c", "d"} << abcd << true;
    QTest::newRow("the middle left out") << QStringList{"a", "...", "d"} << abcd << true;
    QTest::newRow("nothing left out") << QStringList{"a", "b", "...", "c", "d"} << abcd << true;
    QTest::newRow("a piece in the middle") << QStringList{"...", "b", "c", "..."} << abcd << true;
    QTest::newRow("another piece") << QStringList{"...", "b", "d", "..."} << abcd << false;
    QTest::newRow("the wrong order") << QStringList{"...", "c", "...", "b", "..."} << abcd << false;
    QTest::newRow("a line twice") << QStringList{"a", "...", "a", "b", "c", "d"} << abcd << false;
    QTest::newRow("times") << QStringList{"took 9.4 µs"} << "took 12 ms\n" << true;
    QTest::newRow("versions") << QStringList{"Qt 5.15.8"} << "Qt 5.15.13\n" << true;
    QTest::newRow("other numbers") << QStringList{"9.4"} << "9.5\n" << false;
}

void PagesTest::comparesOutputs()
{
    QFETCH(QStringList, shown);
    QFETCH(QString, printed);
    QTEST(differenceToShown(shown, printed).isEmpty(), "same");
}

void PagesTest::everyCommandDoesWhatItsPageSays_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("index");
    for (auto page = m_pages.cbegin(); page != m_pages.cend(); ++page) {
        for (int i = 0; i < page->size(); ++i) {
            const PageCommand &command = page->at(i);
            if (!isTypedHere(page.key(), command) || (needsWorkbench(command) && !WITH_WORKBENCH))
                continue;
            QTest::addRow("%s:%d", qPrintable(page.key()), command.line) << page.key() << i;
        }
    }
}

bool PagesTest::isTypedHere(const QString &page, const PageCommand &command) const
{
    return !m_elsewhere.contains(command.plainText()) &&
           !(command.inFence && m_elsewhere.contains(page));
}

OprunOutcome PagesTest::typeInto(PageFolder &folder, const PageCommand &command)
{
    // A file that the reader is to have, and is shown, is there from then on.
    const QString file = fileShownBy(command);
    if (!file.isEmpty() && !folder.has(file))
        folder.write(file, command.shown.join('\n') + '\n');
    return folder.type(command.text);
}

/// The folder of a page when all its commands before that one have been typed.
PageFolder &PagesTest::folderBefore(const QString &page, int index)
{
    if (page != m_page || index < m_typed) {
        m_folder = std::make_unique<PageFolder>(QFileInfo(page).fileName());
        m_page = page;
        m_typed = 0;
    }
    for (; m_typed < index; ++m_typed) {
        const PageCommand &command = m_pages.value(page).at(m_typed);
        if (isHarmless(command) && isTypedHere(page, command))
            typeInto(*m_folder, command);
    }
    ++m_typed;
    return *m_folder;
}

void PagesTest::everyCommandDoesWhatItsPageSays()
{
    QFETCH(QString, page);
    QFETCH(int, index);
    const PageCommand command = m_pages.value(page).at(index);
    QVERIFY2(isHarmless(command),
             qPrintable(command.text +
                        "\nis not of the kind that is typed here. tests/pages/"
                        "Elsewhere.cpp has to say what runs it; if it is no command, "
                        "its block has to be fenced as text."));
    PageFolder &folder = folderBefore(page, index);
    QCOMPARE(folder.problem(), QString());
    const OprunOutcome outcome = typeInto(folder, command);
    const QString told = command.text + "\ngave " + QString::number(outcome.status) + '\n';
    if (command.showsOutput) {
        const QString difference = differenceToShown(command.shown, outcome.out);
        QVERIFY2(difference.isEmpty(), qPrintable(told + difference));
    }
    const bool expected = outcome.status == 0 || showTrouble(command.shown);
    QVERIFY2(expected, qPrintable(told + outcome.out + outcome.err));
}

void PagesTest::everyLinkLeadsSomewhere_data()
{
    QTest::addColumn<QString>("page");
    for (auto page = m_pages.cbegin(); page != m_pages.cend(); ++page)
        QTest::newRow(qPrintable(page.key())) << page.key();
}

void PagesTest::everyLinkLeadsSomewhere()
{
    QFETCH(QString, page);
    const QString text = contentOf(page);
    const QStringList links = linksIn(text);
    for (const QString &link : links) {
        const QString file = link.section('#', 0, 0);
        const QString place = link.section('#', 1);
        const QString target = file.isEmpty() ? page : QFileInfo(page).path() + '/' + file;
        QVERIFY2(QFileInfo::exists(PROJECT_FOLDER "/" + target), qPrintable(link));
        const QString linked = place.isEmpty() ? QString() : contentOf(target);
        QVERIFY2(place.isEmpty() || headingsIn(linked).contains(place), qPrintable(link));
    }
}

void PagesTest::everyEntryIsOnAPage()
{
    QStringList typed = m_pages.keys();
    for (const auto &commands : qAsConst(m_pages)) {
        for (const PageCommand &command : commands)
            typed.append(command.plainText());
    }
    for (const Elsewhere &entry : qAsConst(m_elsewhere))
        QVERIFY2(typed.contains(entry.command), qPrintable("on no page: " + entry.command));
}

void PagesTest::everyEntryIsRunElsewhere_data()
{
    QTest::addColumn<QString>("command");
    for (const Elsewhere &entry : qAsConst(m_elsewhere)) {
        if (WITH_WORKBENCH || !entry.command.contains("opworkbench"))
            QTest::newRow(qPrintable(entry.command)) << entry.command;
    }
}

void PagesTest::everyEntryIsRunElsewhere()
{
    QFETCH(QString, command);
    const Elsewhere entry = m_elsewhere.value(command);
    if (entry.by == Elsewhere::By::Test) {
        static const QString tests = runProgram(CTEST_PROGRAM, {"--show-only"}, BUILD_FOLDER).out;
        QVERIFY2(tests.contains(": " + entry.what + '\n'), qPrintable(entry.what));
    } else if (entry.by == Elsewhere::By::Ci) {
        QVERIFY2(contentOf(".ci/run").split('\n').contains(entry.what), qPrintable(entry.what));
    } else {
        QVERIFY(!entry.what.isEmpty());
    }
    // A script that nothing runs is a script all the same.
    const QString program = command.section(' ', 0, 0);
    if (program.startsWith("scripts/"))
        QCOMPARE(runProgram("bash", {"-n", program}, PROJECT_FOLDER).status, 0);
}

QTEST_GUILESS_MAIN(PagesTest)
#include "PagesTest.moc"
