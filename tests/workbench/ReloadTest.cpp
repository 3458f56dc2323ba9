#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/library/PluginImage.h"
#include "refhost/workbench/library/PluginLibrary.h"
#include "refhost/workbench/library/StepMigration.h"
#include "refhost/workbench/library/StepMigrator.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString builtFile(int version)
{
    return QStringLiteral(RELOAD_PLUGINS).arg(version);
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// A plug-in whose file becomes another one is loaded anew, and the steps of the task follow.
class ReloadTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void carriesAStepOver_data();
    void carriesAStepOver();
    void noticesAnotherFile_data();
    void noticesAnotherFile();
    void leavesTheOriginalAlone();
    void ignoresATouch();
    void theStepsFollow();
    void undoesAcrossTwoReloads();
    void whatOneVersionLacksIsBackWithTheNext();
    void tellsWhatWasLost();
    void aReloadIsNoEdit();
    void keepsTheOldVersion_data();
    void keepsTheOldVersion();
    void keepsWhatOnlyTheHistoryUses();
    void takesAVersionWithoutUnusedSteps();
    void loadsWhatAppearsLater();
    void aTypeOfAnotherPluginIsNotTaken();
    void knowsAHalfWrittenLibrary();
    void theTranslationComesAlong();
    void aVersionThatIsNotTakenChangesNoTexts();

private:
    void put(int version) { write(m_file, bytesOf(builtFile(version))); }
    static void write(const QString &path, const QByteArray &bytes);
    void begin(int version, const QStringList &others = {});
    void reload(int version);
    void addStep();
    void edit(const char *property, const QVariant &value);
    QString summary() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<PluginLibrary> m_library;
    std::unique_ptr<TaskDocument> m_document;
    std::unique_ptr<StepMigrator> m_migrator;
};

void ReloadTest::init()
{
    QuietTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("libReload.so");
}

void ReloadTest::cleanup()
{
    m_migrator.reset();
    m_document.reset();
    m_library.reset();
    QuietTest::cleanup();
}

/// As a linker does it: the file goes, another one of its name comes.
void ReloadTest::write(const QString &path, const QByteArray &bytes)
{
    QFile::remove(path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void ReloadTest::begin(int version, const QStringList &others)
{
    put(version);
    m_library = std::make_unique<PluginLibrary>(QStringList{m_file} + others);
    QVERIFY(m_library->failures().isEmpty());
    m_document = std::make_unique<TaskDocument>();
    m_migrator = std::make_unique<StepMigrator>(*m_document, *m_library);
}

void ReloadTest::reload(int version)
{
    put(version);
    m_library->lookAgain();
}

void ReloadTest::addStep()
{
    const StepState step = newStepOf(m_library->catalog(), "reload.step");
    m_document->change("add", m_document->state().withSteps(0, {step}), {});
}

void ReloadTest::edit(const char *property, const QVariant &value)
{
    const int id = m_document->state().steps.first().id;
    m_document->change("edit", m_document->state().withProperty(id, property, value),
                       {id, property, 0});
}

QString ReloadTest::summary() const
{
    return m_document->state().steps.first().operation->toString();
}

void ReloadTest::carriesAStepOver_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QStringList>("lost");

    const QStringList none;
    QTest::newRow("by the record, with what is no property")
        << 1 << 5 << "version 5: a b 3 hidden 1" << none;
    QTest::newRow("property by property: a longer record")
        << 1 << 2 << "version 2: a b 3 hidden 2" << none;
    QTest::newRow("property by property: a shorter record")
        << 2 << 1 << "version 1: a b 3 hidden 1" << QStringList{"extra"};
    QTest::newRow("property by property: another order in the record")
        << 1 << 3 << "version 3: a b 0 hidden 3" << QStringList{"number"};
}

void ReloadTest::carriesAStepOver()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, summary);
    QFETCH(QStringList, lost);

    const OperationCatalog old({builtFile(from)});
    const PluginLibrary next({builtFile(to)});
    std::unique_ptr<Operation> step(old.find("reload.step")->prototype->clone(nullptr));
    step->setProperty("text", "a");
    step->setProperty("other", "b");
    step->setProperty("number", 3);
    const MigratedStep migrated =
        migrateStep(*step, *next.catalog().find("reload.step")->prototype);
    QCOMPARE(migrated.operation->toString(), summary);
    QCOMPARE(migrated.lost, lost);
}

void ReloadTest::noticesAnotherFile_data()
{
    QTest::addColumn<bool>("inPlace");
    QTest::newRow("deleted and written anew") << false;
    QTest::newRow("written over") << true;
}

void ReloadTest::noticesAnotherFile()
{
    QFETCH(bool, inPlace);
    begin(1);
    QSignalSpy reloaded(m_library.get(), &PluginLibrary::reloaded);
    QSignalSpy told(m_library.get(), &PluginLibrary::statusText);
    const OperationCatalog &old = m_library->catalog();
    const Operation *const oldPrototype = old.find("reload.step")->prototype;
    if (inPlace) {
        QFile file(m_file);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray bytes = bytesOf(builtFile(2));
        QVERIFY(file.resize(0));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    } else {
        put(2);
    }
    QTRY_COMPARE(reloaded.count(), 1);
    QCOMPARE(told.last().first().toString(), QString::fromUtf8("已重新加载 libReload.so"));
    QCOMPARE(oldPrototype->toString(), QString("version 1:   0 hidden 1"));
    QCOMPARE(m_library->catalog().find("reload.step")->prototype->toString(),
             QString("version 2:   0 hidden 2"));
    QCOMPARE(m_library->catalog().plugins().front().path(), m_file);

    put(5);
    QTRY_COMPARE(reloaded.count(), 2);
    QCOMPARE(m_library->catalog().find("reload.step")->prototype->toString(),
             QString("version 5:   0 hidden 5"));
}

void ReloadTest::leavesTheOriginalAlone()
{
    begin(1);
    QVERIFY(QFile::remove(m_file));
    QCOMPARE(m_library->catalog().find("reload.step")->prototype->toString(),
             QString("version 1:   0 hidden 1"));
    m_library->lookAgain();
    QVERIFY(m_library->failures().isEmpty());
}

void ReloadTest::ignoresATouch()
{
    begin(1);
    QSignalSpy reloaded(m_library.get(), &PluginLibrary::reloaded);
    put(1);
    m_library->lookAgain();
    QCOMPARE(reloaded.count(), 0);
}

void ReloadTest::theStepsFollow()
{
    begin(1);
    addStep();
    edit("text", "a");
    const int id = m_document->state().steps.first().id;
    QCOMPARE(summary(), QString("version 1: a  0 hidden 1"));
    int changes = 0;
    connect(m_document.get(), &TaskDocument::changed, this, [&changes] { ++changes; });
    reload(2);
    QCOMPARE(changes, 1);
    QCOMPARE(summary(), QString("version 2: a  0 hidden 2"));
    QCOMPARE(m_document->state().steps.first().id, id);
    QCOMPARE(m_document->state().steps.first().operation->property("extra").toInt(), 7);
}

void ReloadTest::undoesAcrossTwoReloads()
{
    begin(1);
    addStep();
    edit("text", "a");
    reload(2);
    edit("extra", 8);
    reload(5);
    edit("text", "c");
    QCOMPARE(m_document->undoStack().count(), 4);

    const QStringList back{"version 5: c  0 hidden 2", "version 5: a  0 hidden 2",
                           "version 5: a  0 hidden 1", "version 5:   0 hidden 1"};
    // The hidden number tells by which way a state came: the record has it, properties do not.
    for (const QString &expected : back) {
        QCOMPARE(summary().section(" hidden", 0, 0), expected.section(" hidden", 0, 0));
        m_document->undo();
    }
    QVERIFY(m_document->state().steps.isEmpty());
    for (int i = 0; i < 4; ++i)
        m_document->redo();
    QCOMPARE(summary().section(" hidden", 0, 0), QString("version 5: c  0"));
    QCOMPARE(m_document->state().steps.first().operation->metaObject(),
             m_library->catalog().find("reload.step")->prototype->metaObject());
}

void ReloadTest::whatOneVersionLacksIsBackWithTheNext()
{
    begin(1);
    addStep();
    edit("text", "a");
    edit("number", 42);
    reload(3);
    QCOMPARE(summary(), QString("version 3: a  0 hidden 3"));
    reload(5);
    QCOMPARE(summary(), QString("version 5: a  42 hidden 1"));
}

void ReloadTest::tellsWhatWasLost()
{
    begin(1);
    addStep();
    edit("number", 42);
    QSignalSpy migrated(m_migrator.get(), &StepMigrator::migrated);
    reload(3);
    QCOMPARE(migrated.count(), 1);
    QCOMPARE(migrated.first().first().toStringList(),
             QStringList{QString::fromUtf8("第 1 步：新版本没有保留 number")});
    reload(5);
    QCOMPARE(migrated.at(1).first().toStringList(), QStringList());
}

void ReloadTest::aReloadIsNoEdit()
{
    begin(1);
    addStep();
    edit("text", "a");
    m_document->markSaved();
    QSignalSpy modified(m_document.get(), &TaskDocument::modifiedChanged);
    reload(2);
    QCOMPARE(modified.count(), 0);
    QVERIFY(!m_document->isModified());
    QCOMPARE(m_document->undoStack().count(), 2);
    edit("text", "b");
    QVERIFY(m_document->isModified());
    m_document->undo();
    QVERIFY(!m_document->isModified());
    m_document->undo();
    QVERIFY(m_document->isModified());
}

void ReloadTest::keepsTheOldVersion_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");

    const QByteArray whole = bytesOf(builtFile(2));
    QTest::newRow("empty") << QByteArray() << "";
    QTest::newRow("no library") << QByteArray("broken") << "";
    QTest::newRow("a library cut off") << whole.left(whole.size() / 2) << "文件不完整";
    QTest::newRow("the beginning of one") << whole.left(20) << "文件不完整";
    QTest::newRow("no plug-in") << bytesOf(QStringLiteral(LOST_WINDOW)) << "";
    QTest::newRow("without the step") << bytesOf(builtFile(4)) << "缺少任务用到的操作“reload.step”";
}

void ReloadTest::keepsTheOldVersion()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    begin(1);
    addStep();
    edit("text", "a");
    QSignalSpy reloaded(m_library.get(), &PluginLibrary::reloaded);
    QSignalSpy failed(m_library.get(), &PluginLibrary::failuresChanged);

    write(m_file, bytes);
    m_library->lookAgain();
    QCOMPARE(reloaded.count(), 0);
    QCOMPARE(failed.count(), 1);
    QCOMPARE(m_library->failures().size(), 1);
    const Problem problem = m_library->failures().first();
    QCOMPARE(problem.file, m_file);
    QVERIFY2(problem.message.contains(reason), qPrintable(problem.message));
    QVERIFY2(problem.message.endsWith(QString::fromUtf8("；继续使用之前的版本")),
             qPrintable(problem.message));
    QVERIFY2(!problem.message.contains("/1/") && !problem.message.contains("/2/"),
             qPrintable(problem.message));
    QCOMPARE(summary(), QString("version 1: a  0 hidden 1"));

    reload(5);
    QCOMPARE(reloaded.count(), 1);
    QVERIFY(m_library->failures().isEmpty());
    QCOMPARE(summary(), QString("version 5: a  0 hidden 1"));
}

void ReloadTest::keepsWhatOnlyTheHistoryUses()
{
    begin(1);
    addStep();
    m_document->undo();
    reload(4);
    QCOMPARE(m_library->failures().size(), 1);
    m_document->redo();
    QCOMPARE(summary(), QString("version 1:   0 hidden 1"));
}

void ReloadTest::takesAVersionWithoutUnusedSteps()
{
    begin(1);
    reload(4);
    QVERIFY(m_library->failures().isEmpty());
    QCOMPARE(m_library->catalog().typeIds(), QStringList{"reload.different"});
}

void ReloadTest::loadsWhatAppearsLater()
{
    const QString folder = m_folder->filePath("later");
    m_file = folder + "/libReload.so";
    PluginLibrary library({m_file});
    QCOMPARE(library.failures().size(), 1);
    QCOMPARE(library.failures().first().file, m_file);
    QSignalSpy reloaded(&library, &PluginLibrary::reloaded);
    QVERIFY(QDir().mkpath(folder));
    put(1);
    QTRY_COMPARE(reloaded.count(), 1);
    QVERIFY(library.failures().isEmpty());
    QVERIFY(library.catalog().find("reload.step"));
}

void ReloadTest::aTypeOfAnotherPluginIsNotTaken()
{
    const QString second = m_folder->filePath("libSecond.so");
    write(second, bytesOf(builtFile(4)));
    begin(1, {second});
    reload(4);
    QCOMPARE(m_library->failures().size(), 1);
    QVERIFY(m_library->catalog().find("reload.step"));
    QVERIFY(m_library->catalog().find("reload.different"));
}

void ReloadTest::knowsAHalfWrittenLibrary()
{
    const QByteArray whole = bytesOf(builtFile(1));
    QVERIFY(isWholeLibrary(whole));
    for (int size = 4; size < whole.size(); size += qMax(1, size / 7))
        QVERIFY2(!isWholeLibrary(whole.left(size)), qPrintable(QString::number(size)));
    QByteArray noisy = whole;
    for (int i = 16; i < 64; ++i) {
        noisy[i] = '\xff';
        QVERIFY(!isWholeLibrary(noisy) || noisy.size() == whole.size());
        QCOMPARE(separated(noisy).size(), whole.size());
    }
}

void ReloadTest::theTranslationComesAlong()
{
    const auto text = [] { return QCoreApplication::translate("QObject", "文本操作插件"); };
    const QString translation = m_folder->filePath("libReload_en.qm");
    put(1);
    write(translation, "none");
    m_library = std::make_unique<PluginLibrary>(QStringList{m_file}, "en");
    QCOMPARE(m_library->failures().size(), 1);
    QCOMPARE(m_library->failures().first().file, translation);
    QVERIFY(m_library->catalog().find("reload.step"));
    QCOMPARE(text(), QString("文本操作插件"));

    write(translation, bytesOf(ENGLISH_FILE));
    reload(2);
    QVERIFY(m_library->failures().isEmpty());
    QCOMPARE(text(), QString("Text operations"));

    QFile::remove(translation);
    reload(1);
    QVERIFY(m_library->failures().isEmpty());
    QCOMPARE(text(), QString("文本操作插件"));
}

void ReloadTest::aVersionThatIsNotTakenChangesNoTexts()
{
    const QString translation = m_folder->filePath("libReload_en.qm");
    put(1);
    write(translation, bytesOf(ENGLISH_FILE));
    m_library = std::make_unique<PluginLibrary>(QStringList{m_file}, "en");
    QFile::remove(translation);
    m_library->setUsedTypes([] { return QSet<QString>{"reload.step"}; });
    reload(4);
    QCOMPARE(m_library->failures().size(), 1);
    QCOMPARE(QCoreApplication::translate("QObject", "文本操作插件"), QString("Text operations"));
}

QTEST_GUILESS_MAIN(ReloadTest)
#include "ReloadTest.moc"
