#include "tests/support/QuietTest.h"

#include "refhost/engine/FactBook.h"
#include "refhost/engine/JsonFile.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskRunner.h"

#include "Operation.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

/// The file of facts beside the plug-in, compared with what the operations do.
class FactsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPurposeIsUsed();
    void defaults_data();
    void defaults();
    void purposes_data();
    void purposes();
    void notFound();
    void warnings_data();
    void warnings();
    void everyExplanationHasALine();
    void everyLineOfTheSourcesHasAnExplanation();

private:
    struct Run
    {
        QVariant result;
        QStringList warnings;
    };

    Run run(const QByteArray &json) const;
    Run runStep(const QString &typeId, const QMap<QString, QVariant> &settings, VarType type) const;

    std::unique_ptr<OperationCatalog> m_catalog;
    FactBook m_book;
    QSet<QString> m_explained; ///< the kinds of lines explained so far
};

namespace {

const QStringList languages{"en", "zh"};

bool hasChinese(const QString &text)
{
    return text.contains(QRegularExpression("\\p{Han}"));
}

} // namespace

void FactsTest::initTestCase()
{
    m_catalog = std::make_unique<OperationCatalog>(QStringList(PLUGIN_FILE));
    QVERIFY(m_catalog->failures().isEmpty());
    // Reading compares operations, properties and keys with the plug-in.
    const Result<FactBook> book = FactBook::read(*m_catalog);
    QVERIFY2(book, qPrintable(book ? QString() : book.problem().toString()));
    m_book = book.value();
}

FactsTest::Run FactsTest::run(const QByteArray &json) const
{
    const Result<JsonObject> object = parseJsonObject(json, {});
    if (!object)
        qFatal("%s", qPrintable(object.problem().toString()));
    const Result<Task> task = TaskReader(*m_catalog).read(object.value());
    if (!task)
        qFatal("%s", qPrintable(task.problem().toString()));
    VariableScope scope = task.value().startScope();
    Run run;
    runTask(task.value(), scope,
            [&](const StepReport &report) { run.warnings += report.warnings; });
    run.result = scope.get("result");
    return run;
}

FactsTest::Run FactsTest::runStep(const QString &typeId, const QMap<QString, QVariant> &settings,
                                  VarType type) const
{
    Task task;
    task.variables.append({"result", type, {}});
    task.steps.emplace_back(m_catalog->find(typeId)->prototype->clone(nullptr));
    Operation &step = *task.steps.front();
    step.setProperty("resultVar", "result");
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        if (!step.setProperty(qPrintable(setting.key()), setting.value()))
            qFatal("%s has no property %s", qPrintable(typeId), qPrintable(setting.key()));
    }
    VariableScope scope = task.startScope();
    Run run;
    runTask(task, scope, [&](const StepReport &report) { run.warnings = report.warnings; });
    run.result = scope.get("result");
    return run;
}

void FactsTest::everyPurposeIsUsed()
{
    QMap<Purpose, int> used;
    int defaults = 0;
    for (const CatalogEntry &entry : m_catalog->entries()) {
        for (const QString &name : OperationSchema(*entry.prototype).propertyNames()) {
            const PropertyFacts facts = m_book.property(entry.typeId, name);
            ++used[facts.purpose];
            defaults += facts.whenEmpty ? 1 : 0;
            const bool isSearched = facts.purpose == Purpose::SearchText ||
                                    facts.purpose == Purpose::Marker ||
                                    facts.purpose == Purpose::Separator;
            QCOMPARE(!facts.searchedIn.isEmpty(), isSearched);
        }
    }
    for (const Purpose purpose : {Purpose::SearchText, Purpose::Marker, Purpose::Separator,
                                  Purpose::Start, Purpose::NumberText})
        QVERIFY(used.value(purpose) > 0);
    QVERIFY(defaults >= 3);
}

void FactsTest::defaults_data()
{
    QTest::addColumn<QString>("typeId");
    QTest::addColumn<QString>("property");
    for (const CatalogEntry &entry : m_catalog->entries()) {
        for (const QString &name : OperationSchema(*entry.prototype).propertyNames()) {
            if (m_book.property(entry.typeId, name).whenEmpty)
                QTest::addRow("%s.%s", qPrintable(entry.typeId), qPrintable(name))
                    << entry.typeId << name;
        }
    }
}

void FactsTest::defaults()
{
    QFETCH(QString, typeId);
    QFETCH(QString, property);
    const double number = *m_book.property(typeId, property).whenEmpty;
    const OperationSchema schema(*m_catalog->find(typeId)->prototype);
    QVERIFY(schema.property(property)->defaultValue.toString().isEmpty());
    bool matters = false;
    for (const char *text : {"", "7", "-1.75", "文本 text", "abcdefgh"}) {
        for (int choice = 0; choice < 4; ++choice) {
            QMap<QString, QVariant> settings;
            for (const PropertySchema &other : schema.properties()) {
                if (roleOf(other) == PropertyRole::Text)
                    settings.insert(other.name, text);
                else if (roleOf(other) == PropertyRole::Number)
                    settings.insert(other.name, "2.5");
                else if (!other.choices.isEmpty())
                    settings.insert(other.name, choice);
            }
            const bool isList = schema.property("resultVar")->restriction == "list";
            const VarType type = isList ? VarType::List : VarType::String;
            settings.insert(property, "");
            const Run empty = runStep(typeId, settings, type);
            settings.insert(property, QString::number(number));
            const Run written = runStep(typeId, settings, type);
            QCOMPARE(empty.result, written.result);
            QCOMPARE(empty.warnings, written.warnings);
            settings.insert(property, QString::number(number + 2));
            matters = matters || runStep(typeId, settings, type).result != empty.result;
        }
    }
    QVERIFY(matters);
}

void FactsTest::purposes_data()
{
    QTest::addColumn<QString>("typeId");
    QTest::addColumn<QString>("property");
    for (const CatalogEntry &entry : m_catalog->entries()) {
        for (const QString &name : OperationSchema(*entry.prototype).propertyNames()) {
            if (m_book.property(entry.typeId, name).purpose != Purpose::Unknown)
                QTest::addRow("%s.%s", qPrintable(entry.typeId), qPrintable(name))
                    << entry.typeId << name;
        }
    }
}

/// A searched text is compared character by character, a start is a position, and a text that is
/// read as a number gives that number.
void FactsTest::purposes()
{
    QFETCH(QString, typeId);
    QFETCH(QString, property);
    const PropertyFacts facts = m_book.property(typeId, property);
    const OperationSchema schema(*m_catalog->find(typeId)->prototype);
    const bool isList = schema.property("resultVar")->restriction == "list";
    const VarType type = isList ? VarType::List : VarType::String;
    const auto with = [&](const QVariant &value, const QString &source) {
        QMap<QString, QVariant> settings;
        for (const PropertySchema &other : schema.properties()) {
            if (other.name == property)
                settings.insert(other.name, value);
            else if (m_book.property(typeId, other.name).purpose == Purpose::Marker)
                settings.insert(other.name, value);
            else if (other.name == facts.searchedIn || other.name == "sourceText")
                settings.insert(other.name, source);
            else if (roleOf(other) == PropertyRole::Text)
                settings.insert(other.name, "-");
            else if (roleOf(other) == PropertyRole::Number)
                settings.insert(other.name, "9");
            else if (!other.choices.isEmpty())
                settings.insert(other.name, 1);
        }
        if (typeId == "text.between" && property == "endMarker")
            settings.insert("cutMode", 0);
        return runStep(typeId, settings, type).result;
    };
    if (facts.purpose == Purpose::Start) {
        QVERIFY(with("0", "abc") != with("1", "abc"));
        QCOMPARE(with("-1", "abc"), with("0", "abc"));
    } else if (facts.purpose == Purpose::NumberText) {
        QCOMPARE(runStep(typeId, {{property, " 1e1 "}}, VarType::Double).result, QVariant(10.0));
    } else {
        const QVariant nothing = with("#", "a.c[0-9]+z");
        QVERIFY(with(".*", "a.c[0-9]+z") == nothing);
        QVERIFY(with("[0-9]+", "a.c[0-9]+z") != nothing);
        QVERIFY(with("", "abc") != with("b", "abc"));
    }
}

void FactsTest::notFound()
{
    int count = 0;
    for (const QString &typeId : m_catalog->typeIds()) {
        const auto number = m_book.property(typeId, "resultVar").whenNotFound;
        if (!number)
            continue;
        ++count;
        QMap<QString, QVariant> settings{{"sourceText", "abc"}, {"searchText", "x"}};
        QCOMPARE(runStep(typeId, settings, VarType::Double).result.toDouble(), *number);
        settings["searchText"] = "c";
        QCOMPARE(runStep(typeId, settings, VarType::Double).result.toDouble(), 2.0);
    }
    QCOMPARE(count, 1);
}

void FactsTest::warnings_data()
{
    QTest::addColumn<QByteArray>("step");
    QTest::addColumn<QString>("english");
    const auto row = [](const char *name, const char *step, const char *english) {
        QTest::newRow(name) << QByteArray(step) << QString(english);
    };
    for (const QString &typeId : m_catalog->typeIds()) {
        QTest::addRow("no result of %s", qPrintable(typeId))
            << ("\"type\": \"" + typeId + "\", \"resultVar\": \"\"").toUtf8()
            << "no result variable is named";
    }
    row("text into an int", R"("type": "text.reverse", "resultVar": "n")",
        "there is no variable \"n\" of type string");
    row("undeclared number", R"("type": "text.find", "resultVar": "x")",
        "declares no variable \"x\"");
    row("number into a list", R"("type": "text.find", "resultVar": "items")",
        "type of the variable \"items\" cannot hold a number");
    row("list into a string", R"("type": "text.split", "resultVar": "result")",
        "no variable \"result\" of type list");
    row("no list", R"("type": "text.join", "listVar": "n", "resultVar": "result")",
        "no variable \"n\" of type list to join");
    row("place to cut", R"("type": "text.between", "cutMode": 7, "resultVar": "result")",
        "cutMode is 7");
    row("place to trim", R"("type": "text.trim", "mode": 9, "resultVar": "result")", "mode is 9");
    row("case", R"("type": "text.case", "mode": -1, "resultVar": "result")", "mode is -1");
    row("text to number", R"("type": "text.toNumber", "sourceText": "1,234", "resultVar": "n")",
        "\"1,234\" cannot be read as a number");
    row("number to text", R"("type": "text.fromNumber", "value": "%1 x", "resultVar": "result")",
        "the operand \"%1 x\" gives no number");
    row("name with quotes", R"("type": "text.reverse", "resultVar": "a\" 未声明为字符串，已跳过")",
        "there is no variable \"a\\\" 未声明为字符串，已跳过\" of type string");
}

void FactsTest::warnings()
{
    QFETCH(QByteArray, step);
    QFETCH(QString, english);
    const Run done = run(R"({"variables": {"result": {"type": "string"}, "n": {"type": "int"},
        "items": {"type": "list"}}, "steps": [{)" +
                         step + "}]}");
    QCOMPARE(done.warnings.size(), 1);
    const QString typeId = QString::fromUtf8(step).section('"', 3, 3);
    const QString line = done.warnings.first();
    const auto inEnglish = m_book.explain(typeId, line, {"de_DE", "en_GB", "zh"});
    QVERIFY2(inEnglish, qPrintable(line));
    QVERIFY2(inEnglish->text.contains(english), qPrintable(inEnglish->text));
    const auto inChinese = m_book.explain(typeId, line, {"zh_CN"});
    QCOMPARE(inChinese->kind, inEnglish->kind);
    QVERIFY2(hasChinese(inChinese->text), qPrintable(inChinese->text));
    QCOMPARE(m_book.explain(typeId, line, {})->text, inEnglish->text);
    QVERIFY(!m_book.explain(typeId, line + 'x', {}));
    m_explained.insert(inEnglish->kind);
}

void FactsTest::everyExplanationHasALine()
{
    // The result that does not fit into memory is made by the tests that limit memory.
    const QString tooLarge = "[TextPad] 结果过大，已跳过";
    QVERIFY(m_book.explain("text.pad", tooLarge, {}));
    m_explained.insert(m_book.explain("text.pad", tooLarge, {})->kind);
    for (const WarningExplanation &explanation : m_book.explanations("text.pad")) {
        for (const QString &language : languages)
            QVERIFY(!explanation.texts.value(language).isEmpty());
        QVERIFY(!hasChinese(explanation.texts.value("en")));
        QVERIFY(hasChinese(explanation.texts.value("zh")));
        QVERIFY2(m_explained.contains(explanation.pieces.join('%')),
                 qPrintable(explanation.pieces.join('%')));
    }
}

void FactsTest::everyLineOfTheSourcesHasAnExplanation()
{
    // The Chinese texts of all lines that are logged, whatever stands around them.
    const QDir folder(OPERATIONS_FOLDER);
    QStringList files = folder.entryList({"*.cpp"});
    for (const QString &file : folder.entryList({"common"}, QDir::Dirs))
        for (const QString &name : QDir(folder.filePath(file)).entryList({"*.cpp"}))
            files.append(file + '/' + name);
    QString known;
    for (const WarningExplanation &explanation : m_book.explanations("text.pad"))
        known += explanation.pieces.join('%') + '\n';
    const QRegularExpression call("(?:warn\\w*|line =|logWarning)\\s*\\(?[^;]*;");
    const QRegularExpression literal("\"([^\"]*\\p{Han}[^\"]*)\"");
    int count = 0;
    for (const QString &name : files) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        auto calls = call.globalMatch(QString::fromUtf8(file.readAll()));
        while (calls.hasNext()) {
            auto literals = literal.globalMatch(calls.next().captured());
            while (literals.hasNext()) {
                const QString text = literals.next().captured(1).trimmed();
                ++count;
                QVERIFY2(known.contains(text), qPrintable(name + ": " + text));
            }
        }
    }
    QVERIFY2(count >= 12, qPrintable(QString::number(count)));
}

QTEST_GUILESS_MAIN(FactsTest)

#include "FactsTest.moc"
