#include "tests/support/QuietTest.h"

#include "refhost/engine/LanguageName.h"
#include "refhost/engine/PluginTranslation.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// A text of the plug-in's translation in its present language.
QString pluginName()
{
    return QCoreApplication::translate("QObject", "文本操作插件");
}

} // namespace

/// Translations that stand beside plug-ins are found, and count as long as somebody holds them.
class PluginTranslationTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsTheFile_data();
    void findsTheFile();
    void listsTheLanguages();
    void namesOfLanguages_data();
    void namesOfLanguages();
    void countsWhileItLives();
    void theLaterOneCounts();
    void unusableFiles_data();
    void unusableFiles();
    void aFileThatIsWrittenAnewDoesNotMatter();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_plugin;
    QByteArray m_english;
};

void PluginTranslationTest::init()
{
    QuietTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_plugin = path("libX.so");
    QFile english(ENGLISH_FILE);
    QVERIFY(english.open(QIODevice::ReadOnly));
    m_english = english.readAll();
    write("libX_en.qm", m_english);
}

void PluginTranslationTest::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

void PluginTranslationTest::findsTheFile_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QString>("found");

    const auto row = [](const char *name, const QStringList &languages, const char *found) {
        QTest::newRow(name) << languages << QString(found);
    };
    row("none asked for", {}, "");
    row("language", {"en"}, "libX_en.qm");
    row("of a country", {"en_GB"}, "libX_en.qm");
    row("of a country, as Qt writes it", {"en-GB"}, "libX_en.qm");
    row("nearest", {"pt-BR"}, "libX_pt_BR.qm");
    row("only that of another country", {"pt-PT"}, "");
    row("script and country", {"en-Latn-US"}, "libX_en.qm");
    row("unknown", {"tlh"}, "");
    row("first that is there", {"tlh", "en"}, "libX_en.qm");
    row("sources before it", {"zh-CN", "zh", "en"}, "");
    row("sources behind it", {"en", "zh"}, "libX_en.qm");
    row("file for the language of the sources", {"zh-TW", "en"}, "libX_zh_TW.qm");
    row("C", {"C"}, "");
    row("part of a name", {"e"}, "");
}

void PluginTranslationTest::findsTheFile()
{
    QFETCH(QStringList, languages);
    QFETCH(QString, found);

    write("libX_pt_BR.qm", m_english);
    write("libX_zh_TW.qm", m_english);
    QCOMPARE(PluginTranslation::fileFor(m_plugin, languages),
             found.isEmpty() ? found : path(found));
}

void PluginTranslationTest::listsTheLanguages()
{
    for (const char *name : {"libX_pt_BR.qm", "libX_other.qm", "libXY_de.qm", "libX_fr.ts"})
        write(name, {});
    QCOMPARE(PluginTranslation::languagesOf(m_plugin), QStringList({"en", "pt_BR"}));
    QCOMPARE(PluginTranslation::languagesOf(path("none/libX.so")), QStringList());
}

void PluginTranslationTest::namesOfLanguages_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isName");

    for (const char *name : {"en", "tlh", "en_US", "en-US", "zh_Hant_TW", "sr-Latn-RS"})
        QTest::newRow(name) << QString(name) << true;
    for (const char *name : {"", "C", "e", "EN", "english", "en_", "_en", "en US", "en/..", "../en",
                             "en\n", "en.UTF-8"})
        QTest::newRow(name) << QString(name) << false;
}

void PluginTranslationTest::namesOfLanguages()
{
    QFETCH(QString, name);
    QFETCH(bool, isName);
    QCOMPARE(isLanguageName(name), isName);
}

void PluginTranslationTest::countsWhileItLives()
{
    {
        PluginTranslation english(m_plugin, {"en"});
        QCOMPARE(pluginName(), QString("Text operations"));
        const PluginTranslation moved(std::move(english));
        QCOMPARE(pluginName(), QString("Text operations"));
    }
    QCOMPARE(pluginName(), QString("文本操作插件"));
}

void PluginTranslationTest::theLaterOneCounts()
{
    PluginTranslation held(m_plugin, {"en"});
    held = PluginTranslation(m_plugin, {"en"});
    QCOMPARE(pluginName(), QString("Text operations"));
    held = PluginTranslation(m_plugin, {"zh"});
    QCOMPARE(pluginName(), QString("文本操作插件"));
}

void PluginTranslationTest::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QFile english(ENGLISH_FILE);
    QVERIFY(english.open(QIODevice::ReadOnly));
    const QByteArray whole = english.readAll();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no translation");
    QTest::newRow("beginning only") << whole.left(16);
    QTest::newRow("cut off") << whole.left(whole.size() / 2);
}

void PluginTranslationTest::unusableFiles()
{
    QFETCH(QByteArray, bytes);
    write("libX_en.qm", bytes);
    const PluginTranslation english(m_plugin, {"en"});
    QVERIFY(english.problem());
    QCOMPARE(english.problem()->toString(),
             path("libX_en.qm") + ": no translation that can be used; texts of the plug-in stay as "
                                  "they are in its sources");
    QCOMPARE(pluginName(), QString("文本操作插件"));
}

void PluginTranslationTest::aFileThatIsWrittenAnewDoesNotMatter()
{
    const PluginTranslation english(m_plugin, {"en"});
    write("libX_en.qm", {});
    QCOMPARE(pluginName(), QString("Text operations"));
}

QTEST_GUILESS_MAIN(PluginTranslationTest)
#include "PluginTranslationTest.moc"
