#include "refhost/workbench/files/FileActions.h"

#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskWriter.h"
#include "refhost/workbench/files/Recovery.h"
#include "refhost/workbench/settings/Settings.h"
#include "refhost/workbench/window/Workbench.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/NewStep.h"
#include "tests/workbench/support/ScriptedQuestions.h"

#include "Operation.h"

#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWidget>

Q_DECLARE_METATYPE(Questions::Unsaved)
Q_DECLARE_METATYPE(Questions::Inexact)

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray taskText(const QString &text)
{
    return R"({"steps": [{"type": "text.append", "sourceText": ")" + text.toUtf8() + R"("}]})";
}

} // namespace

/// New, open and save through the actions of the window, with the questions answered by a script.
class FileActionsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void readsAndWritesEveryExample_data();
    void readsAndWritesEveryExample();
    void savesInTheFormTheFileHad();
    void formFollowsTheChoice();
    void asksBeforeChangesAreLost_data();
    void asksBeforeChangesAreLost();
    void asksNothingWithoutChanges();
    void aFileThatCannotBeReadChangesNothing_data();
    void aFileThatCannotBeReadChangesNothing();
    void aFileThatCannotBeWrittenChangesNothing();
    void cancelledDialogsChangeNothing();
    void tellsWhatJsonCannotSay_data();
    void tellsWhatJsonCannotSay();
    void noticesAnotherProgramOnSaving();
    void offersToLoadAgain();
    void keepsToItselfWhatTheUserDeclined();
    void doesNotOfferWhileModified();
    void showsTheFileInTheTitle();
    void remembersRecentFiles();
    void opensFromTheRecentMenu();
    void opensADroppedFile();
    void declinesOtherDrops();
    void followsLinks();
    void actionsHaveShortcuts();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QAction *action(const QString &name) const;
    QString source() const;
    void edit(const QString &text);
    void addVariable(const TaskVariable &variable);
    /// Drops it on the window; whether the window takes it.
    bool drop(const QMimeData &data);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench> m_bench;
    std::unique_ptr<QWidget> m_window;
    FileActions *m_files = nullptr;
    QMenu *m_menu = nullptr;
    QuestionScript m_script;
};

bool FileActionsTest::drop(const QMimeData &data)
{
    QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(m_window.get(), &enter);
    QDropEvent event({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_window.get(), &event);
    return enter.isAccepted() && event.isAccepted();
}

void FileActionsTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void FileActionsTest::init()
{
    QuietTest::init();
    QFile::remove(settingsFile());
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("OPWORKBENCH_RECOVERY", path("recovery").toUtf8());
    m_bench = std::make_unique<Workbench>(QStringList{PLUGIN_FILE});
    m_window = std::make_unique<QWidget>();
    m_files = new FileActions(*m_bench, m_window.get());
    m_script = {};
    m_files->setQuestions(std::make_unique<ScriptedQuestions>(m_script));
    m_menu = new QMenu(m_window.get());
    m_files->addTo(*m_menu);
}

void FileActionsTest::cleanup()
{
    m_window.reset();
    m_bench.reset();
    QFile::remove(settingsFile());
    QuietTest::cleanup();
}

QAction *FileActionsTest::action(const QString &name) const
{
    return m_files->findChild<QAction *>("files." + name);
}

QString FileActionsTest::source() const
{
    const QVector<StepState> &steps = m_bench->document.state().steps;
    return steps.isEmpty() ? QString("no step")
                           : steps.first().operation->property("sourceText").toString();
}

void FileActionsTest::edit(const QString &text)
{
    TaskDocument &document = m_bench->document;
    if (document.state().steps.isEmpty()) {
        const StepState step = newStepOf(m_bench->library.catalog(), "text.append");
        document.change("add", document.state().withSteps(0, {step}), {});
    }
    const int id = document.state().steps.first().id;
    document.change("edit", document.state().withProperty(id, "sourceText", text), {});
}

void FileActionsTest::addVariable(const TaskVariable &variable)
{
    TaskDocument &document = m_bench->document;
    document.change("variable", document.state().withVariable(0, {newStateId(), variable}), {});
}

void FileActionsTest::readsAndWritesEveryExample_data()
{
    QTest::addColumn<QString>("file");
    for (const QString folder : {"", "/mistakes"}) {
        const QDir dir(EXAMPLE_FOLDER + folder);
        for (const QString &name : dir.entryList({"*.json"})) {
            if (name != "operations.json")
                QTest::newRow(qPrintable(name)) << dir.filePath(name);
        }
    }
}

void FileActionsTest::readsAndWritesEveryExample()
{
    QFETCH(QString, file);
    const OperationCatalog &catalog = m_bench->library.catalog();
    QVERIFY(m_files->open(file));
    QVERIFY(!m_bench->document.isModified());
    const QByteArray expected =
        indentedJson(taskToJson(m_bench->document.state().toTask(), catalog));
    QVERIFY(expected.contains("\"type\": \"text."));
    for (const QString name : {"copy.json", "copy.task"}) {
        m_script.saveFile = {path(name), formOfName(name, TaskForm::Json)};
        QVERIFY(m_files->saveAs());
        const QByteArray saved = bytesOf(path(name));
        QVERIFY(m_files->open(path(name)));
        QCOMPARE(indentedJson(taskToJson(m_bench->document.state().toTask(), catalog)), expected);
        QVERIFY(m_files->save());
        QCOMPARE(bytesOf(path(name)), saved);
    }
    QCOMPARE(m_script.told, QStringList());
}

void FileActionsTest::savesInTheFormTheFileHad()
{
    edit("a");
    m_script.saveFile = {path("named.json"), TaskForm::Packed};
    QVERIFY(m_files->saveAs());
    QVERIFY(bytesOf(path("named.json")).startsWith('\x89') ||
            !bytesOf(path("named.json")).startsWith('{'));
    QVERIFY(m_files->startNew());
    QVERIFY(m_files->open(path("named.json")));
    edit("b");
    action("save")->trigger();
    QVERIFY(!bytesOf(path("named.json")).startsWith('{'));
    QVERIFY(!m_bench->document.isModified());
    const auto back = TaskReader(m_bench->library.catalog()).readFile(path("named.json"));
    QCOMPARE(back.value().steps.front()->property("sourceText").toString(), QString("b"));
}

void FileActionsTest::formFollowsTheChoice()
{
    QCOMPARE(formOfName("a.task", TaskForm::Json), TaskForm::Packed);
    QCOMPARE(formOfName("a.JSON", TaskForm::Packed), TaskForm::Json);
    QCOMPARE(formOfName("a.b", TaskForm::Packed), TaskForm::Packed);
    edit("a");
    m_script.saveFile = {path("a.json"), TaskForm::Json};
    action("save")->trigger();
    QCOMPARE(m_script.takeAsked().last(), QString::fromUtf8("save 未命名.json json"));
    QVERIFY(bytesOf(path("a.json")).startsWith('{'));
    m_script.saveFile = {path("a.task"), TaskForm::Packed};
    action("saveAs")->trigger();
    QCOMPARE(m_script.takeAsked(), QStringList{"save a.json json"});
    QVERIFY(!bytesOf(path("a.task")).startsWith('{'));
    QCOMPARE(m_files->path(), path("a.task"));
}

void FileActionsTest::asksBeforeChangesAreLost_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<Questions::Unsaved>("answer");
    QTest::addColumn<bool>("left");
    QTest::addColumn<QString>("onDisk");

    for (const char *const way : {"new", "open", "open path", "drop", "recent", "close"}) {
        const auto row = [&](const char *answer) -> QTestData & {
            return QTest::newRow(qPrintable(QString("%1, %2").arg(way, answer))) << QString(way);
        };
        row("save") << Questions::Unsaved::Save << true << "edited";
        row("discard") << Questions::Unsaved::Discard << true << "first";
        row("cancel") << Questions::Unsaved::Cancel << false << "first";
    }
}

void FileActionsTest::asksBeforeChangesAreLost()
{
    QFETCH(QString, way);
    QFETCH(Questions::Unsaved, answer);
    QFETCH(bool, left);
    QFETCH(QString, onDisk);

    write(path("first.json"), taskText("first"));
    write(path("other.json"), taskText("other"));
    QVERIFY(m_files->open(path("other.json")));
    QVERIFY(m_files->open(path("first.json")));
    edit("edited");
    m_script.unsaved = answer;
    m_script.openFile = path("other.json");
    QString expected = "other";
    if (way == "new") {
        expected = "no step";
        action("new")->trigger();
    } else if (way == "open") {
        action("open")->trigger();
    } else if (way == "open path") {
        QCOMPARE(m_files->open(path("other.json")), left);
    } else if (way == "drop") {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path("other.json"))});
        QVERIFY(drop(data));
        QCoreApplication::processEvents();
    } else if (way == "recent") {
        QMenu *const recent = m_menu->findChild<QMenu *>("files.recent");
        Q_EMIT recent->aboutToShow();
        recent->actions().at(1)->trigger();
    } else {
        // What a window asks when it is closed.
        QCOMPARE(m_files->mayLeave(), left);
        expected = "edited";
    }
    QCOMPARE(m_script.asked.first(), QString("unsaved first.json"));
    QCOMPARE(m_script.asked.filter("unsaved").size(), 1);
    QCOMPARE(source(), left ? expected : QString("edited"));
    QVERIFY2(bytesOf(path("first.json")).contains(onDisk.toUtf8()),
             bytesOf(path("first.json")).constData());
}

void FileActionsTest::asksNothingWithoutChanges()
{
    write(path("first.json"), taskText("first"));
    QVERIFY(m_files->open(path("first.json")));
    edit("edited");
    m_bench->document.undo();
    QVERIFY(m_files->startNew());
    QVERIFY(m_files->mayLeave());
    QCOMPARE(m_script.asked, QStringList());
}

void FileActionsTest::aFileThatCannotBeReadChangesNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");
    QTest::newRow("no JSON") << QByteArray("{") << "line 1";
    QTest::newRow("no task") << QByteArray("{\"a\": 1}") << "unknown key";
    QTest::newRow("another operation")
        << QByteArray("{\"steps\": [{\"type\": \"nix\"}]}") << "steps[0].type";
    QTest::newRow("empty") << QByteArray("") << "line 1";
}

void FileActionsTest::aFileThatCannotBeReadChangesNothing()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    write(path("bad.json"), content);
    write(path("good.json"), taskText("good"));
    QVERIFY(m_files->open(path("good.json")));
    edit("edited");
    m_script.unsaved = Questions::Unsaved::Discard;
    for (const QString &name : {path("bad.json"), path("missing.json"), m_folder->path()}) {
        m_script.told.clear();
        QVERIFY(!m_files->open(name));
        QCOMPARE(m_script.told.size(), 1);
        QVERIFY2(m_script.told.first().startsWith(name), qPrintable(m_script.told.first()));
        if (name.endsWith("bad.json"))
            QVERIFY2(m_script.told.first().contains(message), qPrintable(m_script.told.first()));
        QCOMPARE(source(), QString("edited"));
        QVERIFY(m_bench->document.isModified());
        QCOMPARE(m_files->path(), path("good.json"));
    }
    QCOMPARE(RecentFiles().files(), QStringList{path("good.json")});
}

void FileActionsTest::aFileThatCannotBeWrittenChangesNothing()
{
    edit("a");
    m_script.saveFile = {path("no folder/a.json"), TaskForm::Json};
    QVERIFY(!m_files->save());
    QCOMPARE(m_script.told.size(), 1);
    QVERIFY(m_script.told.first().startsWith(path("no folder/a.json")));
    QVERIFY(m_bench->document.isModified());
    QCOMPARE(m_files->path(), QString());
    m_script.unsaved = Questions::Unsaved::Save;
    QVERIFY(!m_files->mayLeave());
}

void FileActionsTest::cancelledDialogsChangeNothing()
{
    edit("a");
    QVERIFY(!m_files->save());
    m_script.unsaved = Questions::Unsaved::Discard;
    QVERIFY(!m_files->chooseAndOpen());
    QCOMPARE(source(), QString("a"));
    QVERIFY(m_bench->document.isModified());
}

void FileActionsTest::tellsWhatJsonCannotSay_data()
{
    QTest::addColumn<Questions::Inexact>("answer");
    QTest::addColumn<bool>("saved");
    QTest::addColumn<QString>("file");
    QTest::newRow("packed") << Questions::Inexact::SavePacked << true << "a.task";
    QTest::newRow("as JSON all the same") << Questions::Inexact::SaveJson << true << "a.json";
    QTest::newRow("not at all") << Questions::Inexact::Cancel << false << "";
}

void FileActionsTest::tellsWhatJsonCannotSay()
{
    QFETCH(Questions::Inexact, answer);
    QFETCH(bool, saved);
    QFETCH(QString, file);
    write(path("a.json"), taskText("a"));
    QVERIFY(m_files->open(path("a.json")));
    addVariable({"nothing", VarType::String, QString()});
    const QByteArray before = bytesOf(path("a.json"));
    m_script.inexact = answer;
    m_script.saveFile = {path("a.task"), TaskForm::Packed};
    QCOMPARE(m_files->save(), saved);
    QStringList asked{"inexact variables.nothing.value"};
    if (answer == Questions::Inexact::SavePacked)
        asked.append("save a.task packed");
    QCOMPARE(m_script.asked, asked);
    QCOMPARE(m_bench->document.isModified(), !saved);
    QCOMPARE(bytesOf(path("a.json")) == before, file != "a.json");
    if (saved) {
        QCOMPARE(m_files->path(), path(file));
        QVERIFY(TaskReader(m_bench->library.catalog()).readFile(path(file)));
    }
}

void FileActionsTest::noticesAnotherProgramOnSaving()
{
    write(path("a.json"), taskText("a"));
    QVERIFY(m_files->open(path("a.json")));
    edit("mine");
    write(path("a.json"), taskText("theirs"));
    QVERIFY(!m_files->save());
    QCOMPARE(m_script.takeAsked(), QStringList{"changed"});
    QVERIFY(bytesOf(path("a.json")).contains("theirs"));

    m_script.changed = Questions::Changed::SaveElsewhere;
    m_script.saveFile = {path("b.json"), TaskForm::Json};
    QVERIFY(m_files->save());
    QCOMPARE(m_script.takeAsked(), (QStringList{"changed", "save a.json json"}));
    QVERIFY(bytesOf(path("a.json")).contains("theirs"));
    QVERIFY(bytesOf(path("b.json")).contains("mine"));

    edit("mine again");
    write(path("b.json"), taskText("theirs"));
    m_script.changed = Questions::Changed::Overwrite;
    QVERIFY(m_files->save());
    QVERIFY(bytesOf(path("b.json")).contains("mine again"));
    m_script.takeAsked();
    edit("and again");
    QVERIFY(m_files->save());
    QCOMPARE(m_script.takeAsked(), QStringList());
    QVERIFY(QFile::remove(path("b.json")));
    edit("once more");
    QVERIFY(m_files->save());
    QCOMPARE(m_script.takeAsked(), QStringList());
}

void FileActionsTest::offersToLoadAgain()
{
    write(path("a.json"), taskText("a"));
    QVERIFY(m_files->open(path("a.json")));
    m_script.reload = true;
    QVERIFY(QFile::remove(path("a.json")));
    write(path("a.json"), taskText("theirs"));
    QTRY_COMPARE(source(), QString("theirs"));
    QCOMPARE(m_script.takeAsked(), QStringList{"reload"});
    QVERIFY(!m_bench->document.isModified());
    write(path("a.json"), "{");
    QTRY_COMPARE(m_script.told.size(), 1);
    QCOMPARE(source(), QString("theirs"));
}

void FileActionsTest::keepsToItselfWhatTheUserDeclined()
{
    write(path("a.json"), taskText("a"));
    QVERIFY(m_files->open(path("a.json")));
    write(path("a.json"), taskText("theirs"));
    QTRY_COMPARE(m_script.asked.size(), 1);
    write(path("other.json"), taskText("the folder is another one"));
    QTest::qWait(500);
    QCOMPARE(m_script.takeAsked(), QStringList{"reload"});
    QCOMPARE(source(), QString("a"));
    edit("mine");
    m_script.changed = Questions::Changed::Cancel;
    QVERIFY(!m_files->save());
    QCOMPARE(m_script.takeAsked(), QStringList{"changed"});
}

void FileActionsTest::doesNotOfferWhileModified()
{
    write(path("a.json"), taskText("a"));
    QVERIFY(m_files->open(path("a.json")));
    edit("mine");
    write(path("a.json"), taskText("theirs"));
    QTest::qWait(500);
    QCOMPARE(m_script.asked, QStringList());
}

void FileActionsTest::showsTheFileInTheTitle()
{
    QCOMPARE(m_window->windowTitle(), QString::fromUtf8("未命名[*] — 操作工作台"));
    QVERIFY(!m_window->isWindowModified());
    write(path("a.json"), taskText("a"));
    QVERIFY(m_files->open(path("a.json")));
    QCOMPARE(m_window->windowTitle(), QString::fromUtf8("a.json[*] — 操作工作台"));
    QCOMPARE(m_window->windowFilePath(), path("a.json"));
    edit("b");
    QVERIFY(m_window->isWindowModified());
    m_bench->document.undo();
    QVERIFY(!m_window->isWindowModified());
    write(path("b[*].json"), taskText("b"));
    QVERIFY(m_files->open(path("b[*].json")));
    QCOMPARE(m_window->windowTitle(), QString::fromUtf8("b[*][*].json[*] — 操作工作台"));
}

void FileActionsTest::remembersRecentFiles()
{
    for (int i = 0; i < 12; ++i) {
        const QString name = path(QString("%1.json").arg(i));
        write(name, taskText("a"));
        QVERIFY(m_files->open(name));
    }
    QCOMPARE(RecentFiles().files().size(), 10);
    QCOMPARE(RecentFiles().files().first(), path("11.json"));
    QVERIFY(m_files->open(path("4.json")));
    QCOMPARE(RecentFiles().files().mid(0, 2), (QStringList{path("4.json"), path("11.json")}));
    QVERIFY(QFile::remove(path("11.json")));
    QCOMPARE(RecentFiles().files().mid(0, 2), (QStringList{path("4.json"), path("10.json")}));
    QCOMPARE(RecentFiles().files().last(), path("11.json"));
}

void FileActionsTest::opensFromTheRecentMenu()
{
    QMenu *const recent = m_menu->findChild<QMenu *>("files.recent");
    Q_EMIT recent->aboutToShow();
    QCOMPARE(recent->actions().first()->text(), QString::fromUtf8("（无）"));
    write(path("a & b.json"), taskText("a"));
    write(path("c.json"), taskText("c"));
    QVERIFY(m_files->open(path("a & b.json")));
    QVERIFY(m_files->open(path("c.json")));
    QVERIFY(QFile::remove(path("c.json")));
    Q_EMIT recent->aboutToShow();
    QVERIFY(recent->actions().at(0)->text().endsWith("a && b.json"));
    QVERIFY(recent->actions().at(0)->isEnabled());
    QVERIFY(!recent->actions().at(1)->isEnabled());
    recent->actions().at(0)->trigger();
    QCOMPARE(source(), QString("a"));
    Q_EMIT recent->aboutToShow();
    recent->findChild<QAction *>("files.clearRecent")->trigger();
    QCOMPARE(RecentFiles().files(), QStringList());
}

void FileActionsTest::opensADroppedFile()
{
    write(path("a.json"), taskText("a"));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path("a.json"))});
    QVERIFY(drop(data));
    QTRY_COMPARE(source(), QString("a"));
}

void FileActionsTest::declinesOtherDrops()
{
    write(path("a.json"), taskText("a"));
    QMimeData text;
    text.setText("a");
    QVERIFY(!drop(text));
    QMimeData folder;
    folder.setUrls({QUrl::fromLocalFile(m_folder->path())});
    QVERIFY(!drop(folder));
    QMimeData two;
    two.setUrls({QUrl::fromLocalFile(path("a.json")), QUrl::fromLocalFile(path("a.json"))});
    QVERIFY(!drop(two));
    QMimeData web;
    web.setUrls({QUrl("https://example.org/a.json")});
    QVERIFY(!drop(web));
}

void FileActionsTest::followsLinks()
{
    write(path("a.json"), taskText("a"));
    QVERIFY(QFile::setPermissions(path("a.json"), QFile::ReadOwner | QFile::WriteOwner));
    const QFile::Permissions permissions = QFile::permissions(path("a.json"));
    QVERIFY(QFile::link(path("a.json"), path("link.json")));
    QVERIFY(m_files->open(path("link.json")));
    edit("b");
    QVERIFY(m_files->save());
    QVERIFY(QFileInfo(path("link.json")).isSymLink());
    QVERIFY(bytesOf(path("a.json")).contains("\"b\""));
    QCOMPARE(QFile::permissions(path("a.json")), permissions);
}

void FileActionsTest::actionsHaveShortcuts()
{
    QCOMPARE(action("new")->shortcut(), QKeySequence("Ctrl+N"));
    QCOMPARE(action("open")->shortcut(), QKeySequence("Ctrl+O"));
    QCOMPARE(action("save")->shortcut(), QKeySequence("Ctrl+S"));
    QCOMPARE(action("saveAs")->shortcut(), QKeySequence("Ctrl+Shift+S"));
    QCOMPARE(action("quit")->shortcut(), QKeySequence("Ctrl+Q"));
    QVERIFY(m_menu->actions().contains(action("save")));
}

QTEST_MAIN(FileActionsTest)
#include "FileActionsTest.moc"
