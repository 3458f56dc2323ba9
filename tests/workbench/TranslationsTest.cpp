#include "refhost/workbench/look/Language.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/PropertySchema.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/VarTypeName.h"
#include "refhost/engine/check/TaskCheck.h"
#include "refhost/workbench/editor/ExactTextEdit.h"
#include "refhost/workbench/window/MainWindow.h"
#include "refhost/workbench/window/Workbench.h"
#include "tests/support/QuietTest.h"
#include "tests/support/TranslationFile.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include <algorithm>

namespace {

QString translationFile(const QString &language)
{
    return QStringLiteral(PROJECT_FOLDER) + "/translations/opworkbench_" + language + ".ts";
}

/// What a user can read of the window before anything is done in it.
QStringList textsOf(const QWidget &window)
{
    QStringList texts{window.windowTitle()};
    for (const auto *action : window.findChildren<QAction *>())
        texts << action->text() << action->toolTip() << action->statusTip();
    for (const auto *widget : window.findChildren<QWidget *>())
        texts << widget->toolTip() << widget->accessibleName() << widget->windowTitle();
    for (const auto *label : window.findChildren<QLabel *>())
        texts << label->text();
    for (const auto *button : window.findChildren<QAbstractButton *>())
        texts << button->text();
    for (const auto *line : window.findChildren<QLineEdit *>())
        texts << line->placeholderText();
    for (const auto *menu : window.findChildren<QMenu *>())
        texts << menu->title();
    for (const auto *view : window.findChildren<QAbstractItemView *>()) {
        const auto *const model = view->model();
        for (int column = 0; model && column < model->columnCount(); ++column)
            texts << model->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
}

/// What the views of the window show, and their tool tips.
QStringList cellsOf(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            texts << index.data().toString() << index.data(Qt::ToolTipRole).toString();
        }
        texts << cellsOf(model, model.index(row, 0, parent));
    }
    return texts;
}

/// What a user can read of the window, the content of the panels included.
QStringList allTextsOf(const QWidget &window)
{
    QStringList texts = textsOf(window);
    for (const auto *view : window.findChildren<QAbstractItemView *>()) {
        if (view->model())
            texts << cellsOf(*view->model());
    }
    for (const auto *edit : window.findChildren<ExactTextEdit *>())
        texts << edit->text();
    for (const auto *box : window.findChildren<QComboBox *>())
        texts << cellsOf(*box->model());
    return texts;
}

/// Who chooses a language may not understand the one before: the menu speaks both.
bool isOfLanguageMenu(QString text)
{
    return QStringList{"语言 / Language", "下次启动时生效 / Takes effect at the next start", "中文",
                       "中文(Z)"}
        .contains(text.remove('&'));
}

int translatorCount()
{
    return QCoreApplication::instance()->findChildren<QTranslator *>().size();
}

} // namespace

/// The window and the messages of the engine are there in Chinese and in English.
class TranslationsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void windowIsWrittenInChinese();
    void windowSpeaksEnglish();
    void windowSpeaksChinese();
    void findingsInEveryLanguage_data();
    void findingsInEveryLanguage();
    void problemsInEveryLanguage();
    void thingsAreCalledAsTheUserKnowsThem();
    void languageChangesAtRunTime();
    void unknownLanguageChangesNothing();
    void pluginsSpeakTheLanguageOfTheWindow();
    void choicesAreCalledAsTheUserKnowsThem();
    void pluginsStayAsTheyAreInChinese();

private:
    QStringList findingTexts(const QString &path) const;
    QString problemOf(const QByteArray &json) const;

    OperationCatalog m_catalog{{QStringLiteral(PLUGIN_FILE)}};
};

void TranslationsTest::cleanup()
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QuietTest::cleanup();
}

void TranslationsTest::everyTextIsTranslated_data()
{
    QTest::addColumn<TranslatedText>("message");

    for (const QString &language : languageNames()) {
        const QList<TranslatedText> messages = readTranslations(translationFile(language));
        QVERIFY(!messages.isEmpty());
        for (const TranslatedText &message : messages) {
            const QString row = language + ": " + message.context + ": " + message.source;
            QTest::newRow(qPrintable(row)) << message;
        }
    }
}

void TranslationsTest::everyTextIsTranslated()
{
    QFETCH(TranslatedText, message);
    QCOMPARE(faultOf(message), QString());
}

void TranslationsTest::windowIsWrittenInChinese()
{
    const QList<TranslatedText> messages = readTranslations(translationFile("en"));
    for (const TranslatedText &message : messages) {
        QString text = message.source;
        for (const QString &marker : markersOf(text))
            text.remove(marker);
        QVERIFY2(message.context == "Engine" || hasChinese(text) || !hasLetters(text),
                 qPrintable(message.context + ": " + message.source));
        for (const QString &form : message.forms)
            QVERIFY2(!hasChinese(form), qPrintable(form));
    }
}

void TranslationsTest::windowSpeaksEnglish()
{
    QVERIFY(installLanguage("en"));
    Workbench bench({});
    const MainWindow window(bench);
    const QStringList texts = textsOf(window);
    QVERIFY(std::any_of(texts.begin(), texts.end(), hasLetters));
    for (const QString &text : texts)
        QVERIFY2(!hasChinese(text) || isOfLanguageMenu(text), qPrintable(text));
}

void TranslationsTest::windowSpeaksChinese()
{
    QVERIFY(installLanguage("zh"));
    Workbench bench({});
    const MainWindow window(bench);
    const auto docks = window.findChildren<QDockWidget *>();
    QVERIFY(!docks.isEmpty());
    for (const auto *dock : docks)
        QVERIFY2(hasChinese(dock->windowTitle()), qPrintable(dock->windowTitle()));
}

QStringList TranslationsTest::findingTexts(const QString &path) const
{
    const auto task = TaskReader(m_catalog).readFile(path);
    QStringList texts;
    for (const Finding &finding : checkTask(task.value(), m_catalog))
        texts << finding.message << finding.consequence << finding.remedy;
    return texts;
}

void TranslationsTest::findingsInEveryLanguage_data()
{
    QTest::addColumn<QString>("path");

    const QDir folder(QStringLiteral(EXAMPLE_FOLDER) + "/mistakes");
    for (const QString &name : folder.entryList({"*.json"})) {
        if (!name.endsWith("-mended.json"))
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }
}

void TranslationsTest::findingsInEveryLanguage()
{
    static const QRegularExpression quotation(R"("[^"]*")");
    QFETCH(QString, path);
    const QStringList plain = findingTexts(path);
    QVERIFY(!plain.isEmpty());
    for (QString text : plain)
        QVERIFY2(!hasChinese(text.remove(quotation)), qPrintable(text));
    installLanguage("zh");
    const QStringList chinese = findingTexts(path);
    QCOMPARE(chinese.size(), plain.size());
    for (QString text : chinese)
        QVERIFY2(hasChinese(text.remove(quotation)), qPrintable(text));
}

QString TranslationsTest::problemOf(const QByteArray &json) const
{
    const QString path = QDir::temp().filePath("opworkbench-translations-test.json");
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(json);
    file.close();
    Problem problem = TaskReader(m_catalog).readFile(path).problem();
    file.remove();
    problem.file = "a.json";
    return problem.toString();
}

void TranslationsTest::problemsInEveryLanguage()
{
    const QByteArray wrongValue(R"({"variables": {"a": {"type": "int", "value": "%1"}}})");
    const QByteArray wrongType(R"({"variables": {"a": {"type": "text"}}})");
    QCOMPARE(problemOf(wrongValue),
             QString(R"(a.json: variables.a.value: "%1"; expected a whole number from )"
                     "-2147483648 to 2147483647"));
    QCOMPARE(problemOf(wrongType),
             QString(R"(a.json: variables.a.type: "text"; expected int, double, string, bool, )"
                     "list, table"));
    installLanguage("zh");
    QCOMPARE(problemOf(wrongValue), QString(R"(a.json：variables.a.value：此处是 "%1"；应为：)"
                                            "-2147483648 到 2147483647 之间的整数"));
    QCOMPARE(problemOf(wrongType),
             QString(R"(a.json：variables.a.type：此处是 "text"；应为：int、double、string、bool、)"
                     "list、table"));
}

void TranslationsTest::thingsAreCalledAsTheUserKnowsThem()
{
    PropertySchema property;
    property.name = "mode";
    PropertySchema labelled = property;
    labelled.shownLabel = "{name} %1";
    for (int i = 0; i < varTypeNames().size(); ++i) {
        const auto type = varTypeFromName(varTypeNames().at(i));
        QCOMPARE(typeText(type), varTypeNames().at(i));
    }
    QCOMPARE(stepText(2), QString("steps[2]"));
    QCOMPARE(propertyText(labelled), QString("mode"));
    QCOMPARE(listText({"a", "b", "c"}), QString("a, b, c"));
    QCOMPARE(choiceText(typeTexts("int,scalar,odd")), QString("int or scalar or odd"));
    QCOMPARE(wordsText({"a"}), QString("a"));
    QCOMPARE(listText({}), QString());

    installLanguage("zh");
    QCOMPARE(typeText(VarType::String), QString("字符串"));
    QCOMPARE(typeText(VarType::None), QString());
    QCOMPARE(stepText(2), QString("第 3 步"));
    QCOMPARE(propertyText(labelled), QString("“{name} %1”"));
    QCOMPARE(propertyText(property), QString("“mode”"));
    QCOMPARE(listText({"a", "b", "c"}), QString("a、b、c"));
    QCOMPARE(choiceText(typeTexts("int,scalar,odd")), QString("整数或数值或odd"));

    installLanguage("en");
    QCOMPARE(stepText(2), QString("step 3"));
    QCOMPARE(typeText(VarType::String), QString("string"));
}

void TranslationsTest::languageChangesAtRunTime()
{
    QVERIFY(languageNames().contains(systemLanguage()));
    // Qt's own texts come along where they are installed.
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    const QString cancel = QFile::exists(folder + "/qtbase_zh_CN.qm") ? "取消" : "Cancel";
    for (int i = 0; i < 3; ++i) {
        installLanguage("zh");
        QCOMPARE(EngineText::tr("no value"), QString("没有值"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel);
        installLanguage("en");
        QCOMPARE(EngineText::tr("no value"), QString("no value"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancel"));
        QCOMPARE(stepText(2), QString("step 3"));
    }
    QCOMPARE(translatorCount(), 2);
}

void TranslationsTest::unknownLanguageChangesNothing()
{
    installLanguage("zh");
    QVERIFY(!installLanguage("tlh"));
    QCOMPARE(EngineText::tr("no value"), QString("没有值"));
}

void TranslationsTest::pluginsSpeakTheLanguageOfTheWindow()
{
    installLanguage("en");
    Workbench bench({PLUGIN_FILE}, "en");
    QVERIFY(bench.library.failures().isEmpty());
    const MainWindow window(bench);
    for (const CatalogEntry &entry : bench.library.catalog().entries()) {
        bench.document.replace(TaskState().withSteps(0, {newStepOf(m_catalog, entry.typeId)}));
        bench.place.setStep(bench.document.state().steps.first().id);
        const Operation &step = *bench.document.state().steps.first().operation;
        const QStringList texts = allTextsOf(window);
        QVERIFY(texts.contains(step.typeName()));
        QVERIFY(texts.contains(step.description()));
        for (QString text : texts) {
            // The words between the values of a summary are the same in every language.
            text.remove(step.toString());
            QVERIFY2(!hasChinese(text) || isOfLanguageMenu(text), qPrintable(text));
        }
    }
}

void TranslationsTest::choicesAreCalledAsTheUserKnowsThem()
{
    PropertySchema property;
    property.choices = QStringList{"左边", "右边"};
    property.shownChoices = QStringList{"Left", "Right"};
    // Without a translation of the engine they are those of task files.
    QCOMPARE(choicesText(property), property.choices);
    for (const QString &language : languageNames()) {
        installLanguage(language);
        QCOMPARE(choicesText(property), property.shownChoices);
    }
}

void TranslationsTest::pluginsStayAsTheyAreInChinese()
{
    installLanguage("zh");
    Workbench bench({PLUGIN_FILE}, "zh");
    const MainWindow window(bench);
    QVERIFY(allTextsOf(window).contains("填充文本"));
}

QTEST_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
