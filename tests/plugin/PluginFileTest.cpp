#include "tests/support/QuietTest.h"

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QPluginLoader>
#include <QProcess>
#include <QResource>
#include <QtTest>

/// The built library as a file, and through Qt's plug-in loader.
class PluginFileTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void embeddedMetadata();
    void loaderReadsTheMetadata();
    void exportsOnlyTheEntryPoints();
    void resolvesAllSymbols();
    void oneInstance();
    void loadsAndUnloadsRepeatedly();
    void iconsAreStoredUncompressed();
};

namespace {

const QString pluginFile = PLUGIN_FILE;

/// Qt keeps plug-ins in memory unless told otherwise; here unloading is to be seen.
class UnloadingLoader : public QPluginLoader
{
public:
    explicit UnloadingLoader(QLibrary::LoadHints hints = {})
        : QPluginLoader(pluginFile)
    {
        setLoadHints(hints);
    }
};

QStringList nmOutput()
{
    QProcess nm;
    nm.start(NM_PROGRAM, {"-D", "--defined-only", "--format=posix", pluginFile});
    if (!nm.waitForFinished() || nm.exitCode() != 0)
        return {"nm failed: " + nm.errorString() + nm.readAllStandardError()};
    return QString::fromLocal8Bit(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

} // namespace

void PluginFileTest::embeddedMetadata()
{
#ifdef QT_NO_DEBUG
    const char requirements = 0;
#else
    const char requirements = 1; // Qt marks debug builds here
#endif
    const QByteArray identifier = "com.quorlent.Brimwork.IOperationPlugin/1.0";
    const QByteArray className = "TextOperPlugin";
    QByteArray expected = "QTMETADATA !";
    expected += QByteArray("\x00\x05\x0f", 3) + requirements;
    expected += "\xbf";                                                         // map
    expected += QByteArray("\x02\x78") + char(identifier.size()) + identifier;  // 2: long text
    expected += QByteArray("\x03") + char(0x60 + className.size()) + className; // 3: short text
    expected += "\xff";                                                         // end of the map

    QFile file(pluginFile);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
    const QByteArray content = file.readAll();
    QCOMPARE(content.count("QTMETADATA !"), 1);
    QCOMPARE(content.mid(content.indexOf("QTMETADATA !"), expected.size()).toHex(' '),
             expected.toHex(' '));
}

void PluginFileTest::loaderReadsTheMetadata()
{
    const UnloadingLoader loader;
    const QJsonObject metadata = loader.metaData();
    QCOMPARE(metadata.value("IID").toString(),
             QString("com.quorlent.Brimwork.IOperationPlugin/1.0"));
    QCOMPARE(metadata.value("className").toString(), QString("TextOperPlugin"));
    QVERIFY(metadata.value("MetaData").toObject().isEmpty());
}

void PluginFileTest::exportsOnlyTheEntryPoints()
{
    QStringList symbols;
    const QStringList lines = nmOutput();
    for (const QString &line : lines)
        symbols.append(line.section(' ', 0, 0));
    symbols.sort();
    QCOMPARE(symbols, QStringList({"qt_plugin_instance", "qt_plugin_query_metadata"}));
}

void PluginFileTest::resolvesAllSymbols()
{
    UnloadingLoader loader(QLibrary::ResolveAllSymbolsHint);
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    QVERIFY(loader.unload());
}

void PluginFileTest::oneInstance()
{
    UnloadingLoader first;
    UnloadingLoader second;
    QObject *const root = first.instance();
    QVERIFY2(root, qPrintable(first.errorString()));
    QCOMPARE(second.instance(), root);
    QVERIFY(qobject_cast<IOperationPlugin *>(root));
    QCOMPARE(root->metaObject()->className(), "TextOperPlugin");
    delete root;
    QObject *const again = first.instance();
    QVERIFY(qobject_cast<IOperationPlugin *>(again));
    second.unload();
    QVERIFY(first.unload());
}

void PluginFileTest::loadsAndUnloadsRepeatedly()
{
    const QString icon = ":/images/text_append.svg";
    for (int round = 0; round < 50; ++round) {
        QVERIFY(!QFile::exists(icon));
        UnloadingLoader loader;
        auto *const plugin = qobject_cast<IOperationPlugin *>(loader.instance());
        QVERIFY2(plugin, qPrintable(loader.errorString()));
        QVERIFY(QFile::exists(icon));
        const QList<Operation *> prototypes = plugin->createPrototypes();
        QVERIFY(!prototypes.isEmpty());
        for (const Operation *prototype : prototypes)
            QVERIFY(QFile::exists(prototype->icon()));
        qDeleteAll(prototypes);
        QVERIFY2(loader.unload(), qPrintable(loader.errorString()));
    }
    QVERIFY(!QFile::exists(icon));
}

void PluginFileTest::iconsAreStoredUncompressed()
{
    UnloadingLoader loader;
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    const QStringList names = QDir(":/images").entryList();
    QCOMPARE(names, QDir(ICON_FOLDER).entryList({"*.svg"}));
    for (const QString &name : names) {
        const QResource icon(":/images/" + name);
        QCOMPARE(icon.compressionAlgorithm(), QResource::NoCompression);
        // Read as it stands in the library, byte for byte the file it was made from.
        QFile source(QString(ICON_FOLDER) + '/' + name);
        QVERIFY2(source.open(QIODevice::ReadOnly), qPrintable(source.fileName()));
        const auto *const data = reinterpret_cast<const char *>(icon.data());
        QCOMPARE(QByteArray(data, int(icon.size())), source.readAll());
    }
    QVERIFY(loader.unload());
}

QTEST_GUILESS_MAIN(PluginFileTest)

#include "PluginFileTest.moc"
