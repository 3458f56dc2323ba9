#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/workbench/document/VariableUses.h"
#include "refhost/workbench/edits/TaskClipboard.h"
#include "refhost/workbench/edits/TaskText.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QMimeData>
#include <QTest>

/// Steps come back from the clipboard as they were, and from whatever others make of the text.
class ClipboardTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsTextsOfPeople_data();
    void readsTextsOfPeople();
    void keepsWhatIsWithinStrings();
    void tellsWhatIsWrongWhere_data();
    void tellsWhatIsWrongWhere();
    void survivesEveryTruncation();
    void copiesACompleteTask();
    void takesTheVariablesInUse_data();
    void takesTheVariablesInUse();
    void leavesLargeValuesBehind_data();
    void leavesLargeValuesBehind();
    void packsWhatJsonDoesNotSay_data();
    void packsWhatJsonDoesNotSay();
    void takesTheTextWhereARecordIsUnfit();
    void filesAreNotPasted();

private:
    StepState step(const QString &typeId, const QString &name, const QVariant &value) const;
    TaskState pasted(const QMimeData &mime) const;

    OperationCatalog m_catalog{
        {QStringLiteral(PLUGIN_FILE), QStringLiteral(ODD_PLUGIN), QStringLiteral(EDITORS_PLUGIN)}};
};

namespace {

const QString task = QStringLiteral(R"({
    "variables": {
        "a": {"type": "string", "value": "x"}
    },
    "steps": [
        {"type": "text.append", "sourceText": "$a", "appendText": "b  >`c", "resultVar": "a"}
    ]
})");

QString eachLine(const QString &prefix, const QString &text)
{
    return prefix + QString(text).replace("\n", "\n" + prefix);
}

QString indentedBy(ushort unit)
{
    QString text = task;
    return text.replace("    ", QString(4, QChar(unit)));
}

} // namespace

StepState ClipboardTest::step(const QString &typeId, const QString &name,
                              const QVariant &value) const
{
    return newStepOf(m_catalog, typeId, {{name, value}});
}

TaskState ClipboardTest::pasted(const QMimeData &mime) const
{
    Result<Task> read = taskFromMime(mime, m_catalog);
    if (!read) {
        qWarning("%s", qPrintable(read.problem().toString()));
        return {};
    }
    return TaskState::fromTask(std::move(read.value()));
}

void ClipboardTest::readsTextsOfPeople_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("variables");
    const QString single =
        R"({"type": "text.append", "sourceText": "$a", "appendText": "b  >`c", "resultVar": "a"})";
    QTest::newRow("as written") << task << 1;
    QTest::newRow("a list of steps") << "[" + single + "]" << 0;
    QTest::newRow("one step") << single << 0;
    QTest::newRow("white space around") << " \n\t " + task + "\n\n  " << 1;
    QTest::newRow("byte order mark") << QChar(0xfeff) + task << 1;
    QTest::newRow("byte order mark within") << "\n" + QString(QChar(0xfeff)) + task << 1;
    QTest::newRow("carriage returns") << QString(task).replace("\n", "\r\n") << 1;
    QTest::newRow("lone carriage returns") << QString(task).replace("\n", "\r") << 1;
    QTest::newRow("no-break spaces") << indentedBy(0xa0) << 1;
    QTest::newRow("ideographic spaces") << indentedBy(0x3000) << 1;
    QTest::newRow("line separators") << QString(task).replace("\n", QChar(0x2028)) << 1;
    QTest::newRow("zero-width spaces") << indentedBy(0x200b) << 1;
    QTest::newRow("fenced") << "```\n" + task + "\n```" << 1;
    QTest::newRow("fenced with a language") << "```json\n" + task + "\n```\n" << 1;
    QTest::newRow("fenced with tildes") << "~~~~ json\n" + task + "\n~~~~\n" << 1;
    QTest::newRow("fence not closed") << "```json\n" + task << 1;
    QTest::newRow("text around the fence") << "See:\n```\n" + task + "\n```\nThanks, {me}" << 1;
    QTest::newRow("second fence") << "```\nls -l\n```\nand\n```\n" + task + "\n```" << 1;
    QTest::newRow("indented fence") << eachLine("   ", "```\n" + task + "\n```") << 1;
    QTest::newRow("code in a line") << "`" + single + "`" << 0;
    QTest::newRow("fence in a line") << "```" + single + "```" << 0;
    QTest::newRow("quoted") << eachLine("> ", task) << 1;
    QTest::newRow("quoted without a space") << eachLine(">", task) << 1;
    QTest::newRow("quoted twice") << eachLine("> > ", task) << 1;
    QTest::newRow("quoted, space and all") << eachLine(">" + QString(QChar(0xa0)), task) << 1;
    QTest::newRow("somebody wrote")
        << "On Monday, he wrote:\n" + eachLine("> ", task) + "\nOk." << 1;
    QTest::newRow("quoted fence") << eachLine("> ", "Like so:\n```json\n" + task + "\n```") << 1;
    QTest::newRow("fence below a quotation") << "> How?\n\n```\n" + task + "\n```" << 1;
    QTest::newRow("quoted with no-break spaces") << eachLine("> ", indentedBy(0xa0)) << 1;
}

void ClipboardTest::readsTextsOfPeople()
{
    QFETCH(QString, text);
    QFETCH(int, variables);
    const Result<Task> read = taskFromText(text, m_catalog);
    QVERIFY2(read, read ? "" : qPrintable(read.problem().toString()));
    QCOMPARE(read.value().variables.size(), variables);
    QCOMPARE(read.value().steps.size(), 1U);
    QCOMPARE(read.value().steps.front()->property("appendText").toString(), "b  >`c");
}

void ClipboardTest::keepsWhatIsWithinStrings()
{
    const QString value =
        QString("a") + QChar(0xa0) + QChar(0xfeff) + QChar(0x2028) + "> `b` \\\"" + QChar(0x200b);
    const QString json = QString(R"([{"type": "text.append", "sourceText": "%1"}])")
                             .arg(QString(value).replace("\\", "\\\\").replace("\"", "\\\""));
    const Result<Task> read = taskFromText(json, m_catalog);
    QVERIFY2(read, read ? "" : qPrintable(read.problem().toString()));
    QCOMPARE(read.value().steps.front()->property("sourceText").toString(), value);
    // Nothing but a byte order mark, which a parser might swallow.
    const Result<Task> mark = taskFromText(
        QString(R"([{"type": "text.append", "sourceText": "%1"}])").arg(QChar(0xfeff)), m_catalog);
    QVERIFY(mark);
    QCOMPARE(mark.value().steps.front()->property("sourceText").toString(), QChar(0xfeff));
}

void ClipboardTest::tellsWhatIsWrongWhere_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("place");
    const QString broken = QString(task).replace("\"steps\"", "steps");
    QTest::newRow("nothing") << ""
                             << "line 1, column 1";
    QTest::newRow("prose") << "Hello"
                           << "line 1, column 1";
    QTest::newRow("broken") << broken << "line 5, column 5";
    QTest::newRow("broken in a fence") << "```\n" + broken + "\n```"
                                       << "line 6, column 5";
    QTest::newRow("broken in a quotation")
        << "He:\n" + eachLine("> ", broken) << "line 6, column 7";
    QTest::newRow("unknown type") << R"([{"type": "text.gone"}])"
                                  << "steps[0].type";
    QTest::newRow("one step of unknown type") << R"({"type": "text.gone"})"
                                              << "steps[0].type";
    QTest::newRow("unknown setting") << R"({"type": "text.append", "x": 1})"
                                     << "steps[0].x";
    QTest::newRow("list of numbers") << "[1]"
                                     << "steps[0]";
    QTest::newRow("other object") << R"({"name": "a"})"
                                  << "";
    QTest::newRow("no steps") << R"({"variables": {}})"
                              << "steps";
}

void ClipboardTest::tellsWhatIsWrongWhere()
{
    QFETCH(QString, text);
    const Result<Task> read = taskFromText(text, m_catalog);
    QVERIFY(!read);
    QTEST(read.problem().place, "place");
    QVERIFY(!read.problem().message.isEmpty());
}

void ClipboardTest::survivesEveryTruncation()
{
    const QString text = "He:\n" + eachLine("> ", "```json\n" + indentedBy(0xa0) + "\n```");
    int readable = 0;
    for (int size = 0; size <= text.size(); ++size) {
        for (const QString &part : {text.left(size), text.mid(size)})
            readable += taskFromText(part, m_catalog) ? 1 : 0;
    }
    QVERIFY(readable > 0);
}

void ClipboardTest::copiesACompleteTask()
{
    TaskState state;
    state.steps = {step("text.append", "sourceText", "$line"),
                   step("text.trim", "sourceText", "$other")};
    state.variables = {{newStateId(), {"line", VarType::String, "v"}},
                       {newStateId(), {"other", VarType::String, "w"}}};
    const auto mime =
        mimeFromTask(partialTask(state, {state.steps.first().id}, m_catalog), m_catalog);
    QVERIFY(!mime->hasFormat(packedTaskMimeType()));
    QVERIFY(mime->text().contains("\n    \"steps\": ["));
    const Result<Task> read = TaskReader(m_catalog).readBytes(mime->text().toUtf8());
    QVERIFY(read);
    QCOMPARE(read.value().variables.size(), 1);
    QCOMPARE(read.value().variables.first().name, "line");
    QCOMPARE(read.value().variables.first().value, QVariant("v"));
    QCOMPARE(read.value().steps.size(), 1U);
    QCOMPARE(read.value().steps.front()->property("sourceText"), QVariant("$line"));
}

void ClipboardTest::takesTheVariablesInUse_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("reference") << "text.append"
                               << "sourceText"
                               << "$v" << true;
    QTest::newRow("member") << "text.append"
                            << "sourceText"
                            << "$v.Count" << true;
    QTest::newRow("number") << "text.substring"
                            << "startIndex"
                            << "$v" << true;
    QTest::newRow("result") << "text.append"
                            << "resultVar"
                            << "v" << true;
    QTest::newRow("bare input") << "editors.names"
                                << "source"
                                << "v" << true;
    QTest::newRow("bare result of any type") << "editors.names"
                                             << "resultVar"
                                             << "v" << true;
    QTest::newRow("other case") << "text.append"
                                << "sourceText"
                                << "$V" << false;
    QTest::newRow("literal") << "text.append"
                             << "sourceText"
                             << "v" << false;
    QTest::newRow("amid a text") << "text.append"
                                 << "sourceText"
                                 << "x$v" << false;
    QTest::newRow("result with a sign") << "text.append"
                                        << "resultVar"
                                        << "$v" << false;
    QTest::newRow("plain setting") << "odd.plain"
                                   << "text"
                                   << "$v" << false;
}

void ClipboardTest::takesTheVariablesInUse()
{
    QFETCH(QString, type);
    QFETCH(QString, property);
    QFETCH(QString, value);
    QFETCH(bool, isTaken);
    const StepState one = step(type, property, value);
    QCOMPARE(one.operation->property(property.toUtf8().constData()).toString(), value);
    QCOMPARE(usedVariables({one}, m_catalog).contains("v"), isTaken);
}

void ClipboardTest::leavesLargeValuesBehind_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("none") << QVariant() << false;
    QTest::newRow("number") << QVariant(5) << true;
    QTest::newRow("text") << QVariant(QString(1000, 'x')) << true;
    QTest::newRow("long text") << QVariant(QString(1001, 'x')) << false;
    QTest::newRow("list") << QVariant(QVariantList{1, "a"}) << true;
    QVariantList rows;
    for (int i = 0; i < 20; ++i)
        rows.append(QVariant(QVariantList{QString(50, 'y')}));
    QTest::newRow("long list of lists") << QVariant(rows) << false;
    QVariantList deep;
    for (int i = 0; i < 600; ++i)
        deep = QVariantList{QVariant(deep)};
    QTest::newRow("deep list") << QVariant(deep) << true;
}

void ClipboardTest::leavesLargeValuesBehind()
{
    QFETCH(QVariant, value);
    QFETCH(bool, isKept);
    TaskState state;
    state.steps = {step("text.append", "sourceText", "$v")};
    const VarType type = value.userType() == QMetaType::QVariantList ? VarType::List
                         : value.userType() == QMetaType::Int        ? VarType::Int
                                                                     : VarType::String;
    state.variables = {{newStateId(), {"v", type, value}}};
    const Task part = partialTask(state, {state.steps.first().id}, m_catalog);
    QCOMPARE(part.variables.first().value, isKept ? value : QVariant());
    const TaskState back = pasted(*mimeFromTask(part, m_catalog));
    QCOMPARE(back.variables.first().variable.type, type);
    QCOMPARE(back.variables.first().variable.value, isKept ? value : QVariant());
}

void ClipboardTest::packsWhatJsonDoesNotSay_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isPacked");
    QTest::newRow("plain") << "text.append"
                           << "sourceText" << QVariant("a") << false;
    QTest::newRow("byte order mark") << "text.append"
                                     << "sourceText" << QVariant(QString(QChar(0xfeff))) << false;
    QTest::newRow("null character") << "text.append"
                                    << "sourceText" << QVariant(QString(1, QChar())) << false;
    QTest::newRow("lone surrogate") << "text.append"
                                    << "sourceText" << QVariant(QString(QChar(0xd800))) << false;
    QTest::newRow("list of texts") << "odd.plain"
                                   << "tags" << QVariant(QStringList{"a", "b"}) << true;
}

void ClipboardTest::packsWhatJsonDoesNotSay()
{
    QFETCH(QString, type);
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QFETCH(bool, isPacked);
    TaskState state;
    state.steps = {step(type, property, value)};
    const auto mime =
        mimeFromTask(partialTask(state, {state.steps.first().id}, m_catalog), m_catalog);
    QCOMPARE(mime->hasFormat(packedTaskMimeType()), isPacked);
    QVERIFY(mime->hasText());
    const TaskState back = pasted(*mime);
    QCOMPARE(back.steps.size(), 1);
    QCOMPARE(back.steps.first().operation->property(property.toUtf8().constData()), value);
}

void ClipboardTest::takesTheTextWhereARecordIsUnfit()
{
    QMimeData mime;
    mime.setText(task);
    mime.setData(packedTaskMimeType(), "no packed task");
    QCOMPARE(pasted(mime).steps.size(), 1);
}

void ClipboardTest::filesAreNotPasted()
{
    QMimeData mime;
    QVERIFY(!mayHoldTask(mime));
    mime.setText(task);
    QVERIFY(mayHoldTask(mime));
    mime.setUrls({QUrl::fromLocalFile("/a.json")});
    QVERIFY(!mayHoldTask(mime));
}

QTEST_GUILESS_MAIN(ClipboardTest)
#include "ClipboardTest.moc"
