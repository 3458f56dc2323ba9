#include "tests/support/OprunFolder.h"
#include "tests/support/QuietTest.h"
#include "tests/support/TranslationFile.h"

#include <QRegularExpression>
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
    void messages_data();
    void messages();
    void nothingStaysEnglish_data();
    void nothingStaysEnglish();
    void wordsOfTasksStay();
    void findingsForPrograms();
    void errorsForPrograms();
    void messagesAreTranslated_data();
    void messagesAreTranslated();
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
const Environment chinese{{"LC_ALL", "zh_CN.UTF-8"}};

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

void LanguageTest::messages_data()
{
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("isChinese");
    const auto row = [](const char *name, const Environment &environment,
                        const QStringList &options, bool isChinese) {
        QTest::newRow(name) << environment << options << isChinese;
    };
    row("C", {{"LC_ALL", "C"}}, {}, false);
    row("C before the list", {{"LC_ALL", "C"}, {"LANGUAGE", "zh"}}, {}, false);
    row("C in UTF-8", {{"LC_ALL", "C.UTF-8"}}, {}, false);
    row("POSIX", {{"LC_ALL", "POSIX"}}, {}, false);
    row("English", english, {}, false);
    row("German", {{"LC_ALL", "de_DE.UTF-8"}}, {}, false);
    row("no language", {{"LC_ALL", "tlh_XX.UTF-8"}}, {}, false);
    row("Chinese", chinese, {}, true);
    row("Chinese of messages", {{"LC_ALL", ""}, {"LANG", "C"}, {"LC_MESSAGES", "zh_CN"}}, {}, true);
    row("Chinese of elsewhere", {{"LC_ALL", "zh_TW.UTF-8"}}, {}, true);
    row("second of the list", {{"LC_ALL", "de_DE"}, {"LANGUAGE", "de:zh_CN:en"}}, {}, true);
    row("behind English in the list", {{"LC_ALL", "zh_CN"}, {"LANGUAGE", "en:zh"}}, {}, false);
    row("Chinese asked for", english, {"--lang", "zh"}, true);
    row("Chinese asked for with a country", {}, {"--lang=zh-CN"}, true);
    row("English asked for", chinese, {"--lang", "en"}, false);
    row("English asked for with a country", chinese, {"--lang=en_GB"}, false);
}

void LanguageTest::messages()
{
    QFETCH(Environment, environment);
    QFETCH(QStringList, options);
    QFETCH(bool, isChinese);
    QVERIFY(m_folder->write("finding.json", R"({"steps": [{"type": "text.reverse"}]})"));
    QVERIFY(m_folder->write("problem.json", R"({"steps": 5})"));

    const auto found = run(QStringList{"check", "finding.json"} + options, environment);
    QCOMPARE(found.err, QString());
    QCOMPARE(found.out.section('\n', 0, 0),
             QString(isChinese ? "steps[0] text.reverse resultVar: 错误：未指定结果变量 "
                                 "[empty-result]"
                               : "steps[0] text.reverse resultVar: error: no result variable is "
                                 "named [empty-result]"));
    QCOMPARE(found.out.trimmed().section('\n', -1),
             QString(isChinese ? "发现 1 个问题：1 个错误" : "1 finding: 1 error"));
    const auto refused = run(QStringList{"check", "problem.json"} + options, environment);
    QCOMPARE(refused.err,
             QString(isChinese ? "oprun: problem.json: steps: 此处是 5；应为：由步骤组成的数组\n"
                               : "oprun: problem.json: steps: 5; expected an array of steps\n"));
    const auto misused = run(QStringList{"check"} + options, environment);
    QCOMPARE(misused.err,
             QString(isChinese
                         ? "oprun: check: 没有参数；应为：TASK。请运行 \"oprun check --help\" "
                           "查看用法。\n"
                         : "oprun: check: no argument; expected TASK. Try \"oprun check "
                           "--help\".\n"));
}

void LanguageTest::nothingStaysEnglish_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : {"",
                             "nothing",
                             "--unknown",
                             "check",
                             "check --unknown",
                             "check a b",
                             "check missing.json",
                             "check task.json --plugin missing.so",
                             "run task.json --set x",
                             "run task.json --set a=b",
                             "run task.json --out a",
                             "run task.json --each rows --trace",
                             "run task.json --each missing",
                             "run task.json --each rows --jobs 0",
                             "run task.json --each rows --out rows --errors rows",
                             "run task.json --each rows",
                             "run task.json --each rows --skip x",
                             "run task.json --each rows --on-error x",
                             "run task.json --each csv",
                             "describe nothing",
                             "examples nothing",
                             "validate",
                             "validate --list x",
                             "validate x --level 9",
                             "--lang fr catalog",
                             "examples --check"})
        QTest::newRow(line) << QString(line);
}

/// Every line that oprun prints has Chinese words in it.
void LanguageTest::nothingStaysEnglish()
{
    QFETCH(QString, line);
    QVERIFY(m_folder->write("rows", "{\"line\": 5}\n{\"x\": 1}\n{\n{}\n"));
    QVERIFY(m_folder->write("csv", "a,b\n1,2\n"));
    const auto outcome = run(line.split(' ', Qt::SkipEmptyParts), chinese);
    const QStringList lines = outcome.err.split('\n', Qt::SkipEmptyParts);
    if (line != "examples --check")
        QVERIFY(!lines.isEmpty());
    for (const QString &message : lines)
        QVERIFY2(hasChinese(message), qPrintable(message));
    QVERIFY2(!outcome.err.contains("expected"), qPrintable(outcome.err));
    if (outcome.err.isEmpty())
        QVERIFY2(hasChinese(outcome.out), qPrintable(outcome.out));
}

/// Steps, properties and types are called as in task files, not as in the window.
void LanguageTest::wordsOfTasksStay()
{
    QVERIFY(m_folder->write("words.json", R"({"variables": {"r": {"type": "string"},
        "n": {"type": "int"}}, "steps": [
        {"type": "text.append", "sourceText": "$r", "resultVar": "n"},
        {"type": "text.substring", "sourceText": "x", "charCount": 1, "resultVar": "r"}]})"));
    const QString out = run({"check", "words.json", "--lang", "zh"}).out;
    for (const char *words : {"steps[1]", "int", "string", "lengthMode", "到文本末尾"})
        QVERIFY2(out.contains(words), qPrintable(QString(words) + " in " + out));
    for (const char *words : {"第 2 步", "“", "整数", "字符串类型"})
        QVERIFY2(!out.contains(words), qPrintable(QString(words) + " in " + out));
}

void LanguageTest::findingsForPrograms()
{
    QVERIFY(m_folder->write("finding.json", R"({"steps": [{"type": "text.reverse"}]})"));
    const QStringList check{"check", "finding.json", "--json"};
    const auto plain = run(check);
    QVERIFY(plain.out.contains("no result variable is named"));
    QCOMPARE(run(check, chinese).bytes, plain.bytes);
    QCOMPARE(run(check + QStringList{"--lang", "en"}, chinese).bytes, plain.bytes);
    const auto asked = run(check + QStringList{"--lang", "zh"});
    QVERIFY(asked.out.contains("未指定结果变量"));
    QVERIFY(asked.out.contains("\"severity\": \"error\""));
}

void LanguageTest::errorsForPrograms()
{
    QVERIFY(m_folder->write("rows", "{\"line\": [5]}\n"));
    const QStringList each{"run", "task.json", "--each", "rows", "--errors", "errors"};
    run(each);
    const QByteArray plain = m_folder->read("errors");
    QVERIFY(plain.contains("expected"));
    run(each, chinese);
    QCOMPARE(m_folder->read("errors"), plain);
    run(each + QStringList{"--lang", "zh"});
    QVERIFY(hasChinese(QString::fromUtf8(m_folder->read("errors"))));
}

void LanguageTest::messagesAreTranslated_data()
{
    QTest::addColumn<TranslatedText>("message");
    const QList<TranslatedText> messages = readTranslations(MESSAGES_SOURCE);
    QVERIFY(messages.size() >= 80);
    int number = 0;
    for (const TranslatedText &message : messages) {
        QTest::addRow("%d: %s", ++number, qPrintable(message.source)) << message;
    }
}

void LanguageTest::messagesAreTranslated()
{
    QFETCH(TranslatedText, message);
    QCOMPARE(faultOf(message), QString());
    QString words = message.source;
    words.remove(QRegularExpression("%\\d+|\\{\\w+\\}|\"[^\"]*\"|steps\\["));
    // The words of task files stay.
    const bool isWordOfTasks = message.context == "Engine" && !message.source.contains(' ');
    if (hasLetters(words) && !isWordOfTasks)
        QVERIFY2(hasChinese(message.forms.value(0)), qPrintable(message.forms.value(0)));
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
    const auto inSources = run(QStringList("catalog") + plugins);
    const auto inEnglish = run(QStringList("catalog") + plugins, english);
    QVERIFY(inSources.out != inEnglish.out);
    QCOMPARE(typeIds(inEnglish.out).filter("."), typeIds(inSources.out).filter("."));
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
    const auto inChinese = m_folder->runShell("LC_ALL=zh_CN.UTF-8 OPRUN=$OPRUN bash complete.sh");
    QCOMPARE(inChinese.out, QString("en zh"));
}

QTEST_GUILESS_MAIN(LanguageTest)
#include "LanguageTest.moc"
