#include "tests/support/QuietTest.h"

#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/PluginFolder.h"

#include "Operation.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

class OperationCatalogTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void severalPlugins();
    void failures_data();
    void failures();
    void refusedPlugins_data();
    void refusedPlugins();
    void takenTypeIdentifier();
    void findsThePluginBesideThePrograms();
    void pluginFilesAreLibraries();
};

void OperationCatalogTest::severalPlugins()
{
    const OperationCatalog catalog({PLUGIN_FILE, GREET_PLUGIN});
    QVERIFY2(catalog.failures().isEmpty(), qPrintable(catalog.failures().value(0).toString()));
    QCOMPARE(catalog.plugins().size(), std::size_t(2));
    // By the weights of the roots, 100 before 500, not by name or by the order of loading.
    QCOMPARE(catalog.typeIds().mid(0, 3),
             QStringList({"greet.hello", "text.append", "text.between"}));
    const CatalogEntry *const entry = catalog.find("greet.hello");
    QVERIFY(entry);
    QCOMPARE(entry->root, QString("问候"));
    QCOMPARE(entry->rootWeight, 100);
    QCOMPARE(entry->prototype->typeName(), QString("问候"));
    QVERIFY(!catalog.find("Text.append"));
}

void OperationCatalogTest::failures_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no file") << "/nowhere/libX.so"
                             << "there is no such file";
    QTest::newRow("folder") << QFileInfo(PLUGIN_FILE).path() << "it is a folder; expected a file";
    QTest::newRow("no library") << SOURCE_FILE << "it is not a library";
}

void OperationCatalogTest::failures()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    const OperationCatalog catalog({file, PLUGIN_FILE});
    QCOMPARE(catalog.failures().size(), 1);
    const Problem &failure = catalog.failures().first();
    QCOMPARE(failure.reason, Problem::Reason::PluginNotLoaded);
    QCOMPARE(failure.file, file);
    QVERIFY2(failure.message.contains(reason), qPrintable(failure.message));
    // The others are there all the same.
    QVERIFY(catalog.find("text.append"));
}

void OperationCatalogTest::refusedPlugins_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");
    QTest::newRow("interface")
        << STRANGER_PLUGIN
        << "cannot be loaded as a plug-in (its root object does not implement "
           "com.quorlent.Brimwork.IOperationPlugin/1.0)";
    QTest::newRow("version")
        << NEWER_PLUGIN
        << "cannot be loaded as a plug-in (it is built for interface version 3, "
           "this host has version 2)";
    QTest::newRow("capability")
        << DEMANDING_PLUGIN
        << "cannot be loaded as a plug-in (it requires \"hasTeleport\", which "
           "this host lacks)";
}

void OperationCatalogTest::refusedPlugins()
{
    QFETCH(QString, file);
    const OperationCatalog catalog({file});
    QCOMPARE(catalog.failures().size(), 1);
    QTEST(catalog.failures().first().message, "message");
    QVERIFY(catalog.entries().isEmpty());
}

void OperationCatalogTest::takenTypeIdentifier()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath("libCopy.so");
    QVERIFY(QFile::copy(GREET_PLUGIN, copy));
    const OperationCatalog catalog({GREET_PLUGIN, copy});
    QCOMPARE(catalog.failures().size(), 1);
    QCOMPARE(catalog.failures().first().toString(),
             copy + ": contributes \"greet.hello\", which is there already");
    QCOMPARE(catalog.typeIds(), QStringList("greet.hello"));
}

void OperationCatalogTest::findsThePluginBesideThePrograms()
{
    const QStringList folders = pluginFolders(QFileInfo(OPRUN_FILE).path());
    QCOMPARE(folders.size(), 2);
    QVERIFY(pluginFiles(folders).contains(QFileInfo(PLUGIN_FILE).absoluteFilePath()));
    QVERIFY(folders.last().endsWith("operationcore/plugins"));
}

void OperationCatalogTest::pluginFilesAreLibraries()
{
    const QTemporaryDir folder;
    for (const char *name : {"libB.so", "libA.so", "readme.txt", "libC.so.bak"}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(folder.path()).mkdir("libD.so"));
    QCOMPARE(pluginFiles({folder.path(), "/nowhere"}),
             QStringList({folder.filePath("libA.so"), folder.filePath("libB.so")}));
}

QTEST_GUILESS_MAIN(OperationCatalogTest)

#include "OperationCatalogTest.moc"
