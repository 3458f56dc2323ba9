#include "tests/support/QuietTest.h"
#include "tests/support/TranslationFile.h"

#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PluginTranslation.h"

#include "Operation.h"

#include <QtTest>

namespace {

/// What users read of the operations, in catalogue order: roots, names, labels, choices, and the
/// sentences of each choice, which name the properties instead of values.
QStringList readTexts(const OperationCatalog &catalog)
{
    QStringList texts;
    for (const CatalogEntry &entry : catalog.entries()) {
        texts << entry.root << entry.prototype->typeName() << entry.prototype->description();
        const OperationSchema schema(*entry.prototype);
        for (const PropertySchema &property : schema.properties()) {
            texts << property.shownLabel << property.shownChoices;
            const std::unique_ptr<Operation> step(entry.prototype->clone(nullptr));
            // One more than there are: an unknown mode has a sentence too.
            for (int i = 0; i <= property.choices.size() && !property.choices.isEmpty(); ++i) {
                step->setProperty(property.name.toUtf8(), i);
                texts << step->description();
            }
        }
    }
    texts << catalog.plugins().front().manifest().name;
    return texts;
}

/// Type identifiers with the weights by which they are sorted.
QStringList order(const OperationCatalog &catalog)
{
    QStringList lines;
    for (const CatalogEntry &entry : catalog.entries())
        lines.append(QString("%1 %2 %3 %4")
                         .arg(entry.rootKey, QString::number(entry.rootWeight), entry.typeId,
                              QString::number(entry.weight)));
    return lines;
}

} // namespace

/// The plug-in in English: all that users read is translated, and all else is as it is.
class EnglishTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void allThatUsersReadIsEnglish();
    void sentencesKeepTheirValues();
    void chineseAgainWithoutTheTranslation();
    void orderAndWeightsStay();
    void whatTasksHoldStays();

private:
    const QString m_plugin = PLUGIN_FILE;
};

void EnglishTest::everyTextIsTranslated_data()
{
    QTest::addColumn<TranslatedText>("text");

    const QList<TranslatedText> texts = readTranslations(TRANSLATION_SOURCE);
    QVERIFY(texts.size() > 100);
    for (const TranslatedText &text : texts)
        QTest::newRow(qPrintable(text.context + ": " + text.source)) << text;
}

void EnglishTest::everyTextIsTranslated()
{
    QFETCH(TranslatedText, text);
    QCOMPARE(faultOf(text), QString());
    QCOMPARE(text.forms.size(), 1);
    QVERIFY(hasChinese(text.source));
    QVERIFY2(!hasChinese(text.forms.first()), qPrintable(text.forms.first()));
}

void EnglishTest::allThatUsersReadIsEnglish()
{
    const PluginTranslation english(m_plugin, {"en"});
    QVERIFY(!english.problem());
    const OperationCatalog catalog({m_plugin});
    const QStringList texts = readTexts(catalog);
    QVERIFY(texts.size() > 100);
    for (const QString &text : texts) {
        QVERIFY(!text.isEmpty());
        // Signs of that script too, such as its comma.
        for (const QChar letter : text)
            QVERIFY2(letter.unicode() < 0x80, qPrintable(text));
    }
}

void EnglishTest::sentencesKeepTheirValues()
{
    const PluginTranslation english(m_plugin, {"en"});
    const OperationCatalog catalog({m_plugin});
    const std::unique_ptr<Operation> step(catalog.find("text.replace")->prototype->clone(nullptr));
    step->setProperty("sourceText", "$a");
    step->setProperty("oldText", "旧");
    step->setProperty("newText", "新");
    step->setProperty("resultVar", "out");
    QCOMPARE(step->description(),
             QString("Replace 旧 with 新 in $a (occurrences: All), store in $out"));
}

void EnglishTest::chineseAgainWithoutTheTranslation()
{
    const QStringList before = readTexts(OperationCatalog({m_plugin}));
    for (const QString &text : before)
        QVERIFY2(hasChinese(text), qPrintable(text));
    {
        const PluginTranslation english(m_plugin, {"en"});
        const QStringList texts = readTexts(OperationCatalog({m_plugin}));
        QCOMPARE(texts.size(), before.size());
        QVERIFY(texts != before);
    }
    QCOMPARE(readTexts(OperationCatalog({m_plugin})), before);
}

void EnglishTest::orderAndWeightsStay()
{
    const QStringList before = order(OperationCatalog({m_plugin, GREET_PLUGIN}));
    QVERIFY2(before.contains("文本 500 text.between 10"), qPrintable(before.join('\n')));
    const PluginTranslation english(m_plugin, {"en"});
    const OperationCatalog catalog({m_plugin, GREET_PLUGIN});
    QCOMPARE(catalog.find("text.between")->root, QString("Text"));
    QCOMPARE(order(catalog), before);
}

void EnglishTest::whatTasksHoldStays()
{
    const PluginTranslation english(m_plugin, {"en"});
    const OperationCatalog catalog({m_plugin});
    const OperationSchema schema(*catalog.find("text.pad")->prototype);
    const PropertySchema &position = *schema.property("position");
    QCOMPARE(position.label, QString("填充位置"));
    QCOMPARE(position.shownLabel, QString("Pad position"));
    QCOMPARE(position.choices, QStringList({"左边", "中间", "右边"}));
    QCOMPARE(position.shownChoices, QStringList({"Left", "Middle", "Right"}));
}

QTEST_GUILESS_MAIN(EnglishTest)
#include "EnglishTest.moc"
