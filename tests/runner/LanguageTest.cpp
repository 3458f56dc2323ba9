#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"
#include "tests/support/TranslationFile.h"

#include <QtTest>

#include <memory>

using Environment = QMap<QString, QString>;

/// The language in which oprun shows texts of plug-ins.
class LanguageTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void language_data();
    void language();
    void unknownLanguages_data();
    void unknownLanguages();
    void commandsSpeakEnglish_data();
    void commandsSpeakEnglish();
    void programsReadTheSameEverywhere_data();
    void programsReadTheSameEverywhere();
    void tasksAreTheSameInEveryLanguage();
    void catalogueOrderStays();
    void unusableTranslation();
    void languagesAreCompleted();

private:
    OprunFolder::Outcome run(const QStringList &arguments,
                             const Environment &environment = {}) const
    {
        return m_folder->run(arguments, environment);
    }

    std::unique_ptr<OprunFolder> m_folder;
};

namespace {

const Environment english{{"LC_ALL", "en_US.UTF-8"}};

/// The type identifiers in the lines of a catalogue.
QStringList typeIds(const QString &catalog)
{
    QStringList ids;
    for (const QString &line : catalog.split('\n'))
        ids.append(line.trimmed().section(' ', 0, 0));
    return ids.mid(1);
}

} // namespace

void LanguageTest::initTestCase()
{
    m_folder = std::make_unique<OprunFolder>(OPRUN_FILE);
    QVERIFY(m_folder->write("task.json", R"({"variables": {"line": {"type": "string"}}, "steps": [
        {"type": "text.pad", "sourceText": "7", "position": "右边", "padText": "0",
         "totalLength": 3, "resultVar": "line"}]})"));
}

void LanguageTest::language_data()
{
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("isEnglish");

    const auto row = [](const char *name, const Environment &environment,
                        const QStringList &options, bool isEnglish) {
        QTest::newRow(name) << environment << options << isEnglish;
    };
    // An empty variable counts as none.
    row("English", {{"LC_ALL", ""}, {"LANG", "en_US.UTF-8"}}, {}, true);
    row("English of messages", {{"LC_ALL", ""}, {"LANG", "C"}, {"LC_MESSAGES", "en_GB"}}, {}, true);
    row("Chinese", {{"LC_ALL", ""}, {"LANG", "zh_CN.UTF-8"}}, {}, false);
    row("Chinese of elsewhere", {{"LC_ALL", "zh_TW"}}, {}, false);
    row("C", {{"LC_ALL", "C"}}, {}, false);
    row("C before another", {{"LC_ALL", "C"}, {"LANG", "en_US.UTF-8"}}, {}, false);
    row("C before the list", {{"LC_ALL", "C"}, {"LANGUAGE", "en"}}, {}, false);
    row("POSIX", {{"LC_ALL", "POSIX"}}, {}, false);
    row("C in UTF-8", {{"LC_ALL", "C.UTF-8"}}, {}, false);
    row("no translation", {{"LC_ALL", "de_DE.UTF-8"}}, {}, false);
    row("no language", {{"LC_ALL", "tlh_XX.UTF-8"}}, {}, false);
    row("first of the list", {{"LC_ALL", "de_DE"}, {"LANGUAGE", "de:en"}}, {}, true);
    row("sources in the list", {{"LC_ALL", "de_DE"}, {"LANGUAGE", "zh_CN:en"}}, {}, false);
    row("asked for", {}, {"--lang", "en"}, true);
    row("asked for with a country", {}, {"--lang=en_GB"}, true);
    row("asked for as Qt writes it", {}, {"--lang=en-GB"}, true);
    row("sources asked for", english, {"--lang", "zh"}, false);
    row("sources asked for with a country", english, {"--lang", "zh_CN"}, false);
}

void LanguageTest::language()
{
    QFETCH(Environment, environment);
    QFETCH(QStringList, options);
    QFETCH(bool, isEnglish);

    const auto outcome = run(QStringList("catalog") + options, environment);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out.section('\n', 0, 0), QString(isEnglish ? "Text" : "文本"));
    QCOMPARE(hasChinese(outcome.out), !isEnglish);
}

void LanguageTest::unknownLanguages_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"fr", "", "EN", "C", "e", "../plugins/en", "en_US.UTF-8"})
        QTest::newRow(language) << QString(language);
}

void LanguageTest::unknownLanguages()
{
    QFETCH(QString, language);
    for (const char *command : {"catalog", "--version"}) {
        const auto outcome = run({command, "--lang=" + language});
        QCOMPARE(outcome.out, QString());
        const QString meant = language == "EN" ? " (did you mean \"en\"?)" : "";
        QCOMPARE(outcome.err,
                 "oprun: no language \"" + language + "\"; expected en, zh" + meant + '\n');
        QCOMPARE(outcome.status, 2);
    }
}

void LanguageTest::commandsSpeakEnglish_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("text");

    const auto row = [](const QStringList &arguments, const char *text) {
        QTest::newRow(qPrintable(arguments.first())) << arguments << QString(text);
    };
    row({"catalog"}, "  text.pad         Pad text        :/images/text_pad.svg\n");
    row({"describe", "text.pad"}, "0 Left | 1 Middle | 2 Right\n");
    row({"explain", "task.json"},
        "          Pad 7 with 0 (position: Right, total length: 3), store in $line\n");
    row({"run", "task.json", "--trace"},
        "          Pad 7 with 0 (position: Right, total length: 3), store in $line\n");
    row({"examples", "text.pad"}, "text.pad  Pad text\n");
    row({"--version"}, ".TextOperPlugin 1.0.0, Text operations, ");
}

void LanguageTest::commandsSpeakEnglish()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, text);

    const auto outcome = run(arguments, english);
    QVERIFY2((outcome.out + outcome.err).contains(text), qPrintable(outcome.out + outcome.err));
    QCOMPARE(outcome.status, 0);
    const auto asked = run(QStringList{"--lang", "en"} + arguments);
    QVERIFY2((asked.out + asked.err).contains(text), qPrintable(asked.out + asked.err));
}

void LanguageTest::programsReadTheSameEverywhere_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("inEnglish"); // in the same when it is asked for, empty for nothing

    const auto row = [](const char *name, const QStringList &arguments, const char *inEnglish) {
        QTest::newRow(name) << arguments << QString(inEnglish);
    };
    row("catalogue", {"catalog", "--json"}, "\"root\": \"Text\"");
    row("description", {"describe", "text.pad", "--json"}, "\"label\": \"Pad position\"");
    row("reference page", {"docs"}, "## Pad text `text.pad`");
    row("findings", {"check", "task.json", "--json"}, "");
    row("result", {"run", "task.json", "--json"}, "");
    row("task", {"unpack", "task.json", "-"}, "");
    row("packed task", {"pack", "task.json", "-"}, "");
}

void LanguageTest::programsReadTheSameEverywhere()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, inEnglish);

    const auto plain = run(arguments);
    QCOMPARE(plain.err, QString());
    QVERIFY(!plain.bytes.isEmpty());
    QCOMPARE(run(arguments, english).bytes, plain.bytes);
    const auto asked = run(arguments + QStringList{"--lang", "en"});
    QVERIFY2(asked.out.contains(inEnglish), qPrintable(asked.out));
    if (inEnglish.isEmpty())
        QCOMPARE(asked.bytes, plain.bytes);
}

void LanguageTest::tasksAreTheSameInEveryLanguage()
{
    // The label of a choice in a task is that of the sources; what others read does not count.
    QVERIFY(m_folder->write("english.json", R"({"steps": [
        {"type": "text.pad", "position": "Right"}]})"));
    const auto outcome = run({"explain", "english.json"}, english);
    QCOMPARE(outcome.err, QString("oprun: english.json: steps[0].position: \"Right\"; expected one "
                                  "of \"左边\", \"中间\", \"右边\", or the number of a choice\n"));
    QCOMPARE(outcome.status, 2);
    QVERIFY(run({"unpack", "task.json", "-"}, english).out.contains("\"右边\""));
}

void LanguageTest::catalogueOrderStays()
{
    const QStringList plugins{"--plugin", GREET_PLUGIN, "--plugin", PLUGIN_FILE};
    const auto chinese = run(QStringList("catalog") + plugins);
    const auto inEnglish = run(QStringList("catalog") + plugins, english);
    QVERIFY(chinese.out != inEnglish.out);
    QCOMPARE(typeIds(inEnglish.out).filter("."), typeIds(chinese.out).filter("."));
}

void LanguageTest::unusableTranslation()
{
    const QString plugin = m_folder->filePath("libX.so");
    QVERIFY(QFile::copy(PLUGIN_FILE, plugin));
    QVERIFY(m_folder->write("libX_en.qm", "no translation"));
    const Environment libraries{{"LD_LIBRARY_PATH", LIBRARY_FOLDER}};
    const auto outcome = run({"catalog", "--plugin", plugin, "--lang", "en"}, libraries);
    QCOMPARE(outcome.err, "oprun: " + m_folder->filePath("libX_en.qm") +
                              ": no translation that can be used; texts of the plug-in stay as "
                              "they are in its sources\n");
    QCOMPARE(outcome.out, run({"catalog"}).out);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(run({"catalog", "--plugin", plugin}, libraries).err, QString());
}

void LanguageTest::languagesAreCompleted()
{
    QVERIFY(m_folder->write("complete.sh", "source " COMPLETION_FILE "\n"
                                           "COMP_WORDS=(\"$OPRUN\" --lang '')\n"
                                           "COMP_CWORD=2\n"
                                           "_oprun \"$OPRUN\" '' --lang\n"
                                           "echo -n \"${COMPREPLY[*]}\"\n"));
    const auto outcome = m_folder->runShell("OPRUN=$OPRUN bash complete.sh");
    QCOMPARE(outcome.out + outcome.err, QString("en zh"));
}

QTEST_GUILESS_MAIN(LanguageTest)
#include "LanguageTest.moc"
