#include "tests/support/QuietTest.h"
#include "tests/support/RecordingTranslator.h"

#include "plugin/TextOperPlugin.h"

#include "IEditorRegistry.h"
#include "Operation.h"

#include <QtTest>

#include <type_traits>

class TextOperPluginTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void metaObject();
    void casts();
    void identity();
    void manifest();
    void manifestAsksTheVirtualFunctions();
    void weights();
    void prototypes();
    void everyCallMakesFreshObjects();
    void nameIsTranslatedInTheSharedContext();
    void defaultEditors();
};

namespace {

/// The prototypes in their order, with their weights.
const QList<QPair<QString, int>> catalogue{
    {"text.append", 0},       {"text.substring", 80}, {"text.pad", 40},   {"text.between", 10},
    {"text.trim", 90},        {"text.reverse", 60},   {"text.case", 120}, {"text.toNumber", 100},
    {"text.fromNumber", 110}, {"text.join", 20},      {"text.split", 30}, {"text.find", 70},
    {"text.replace", 50},
};

} // namespace

void TextOperPluginTest::construction()
{
    QVERIFY(!TextOperPlugin().parent());
}

void TextOperPluginTest::metaObject()
{
    const QMetaObject &meta = TextOperPlugin::staticMetaObject;
    QCOMPARE(meta.className(), "TextOperPlugin");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.classInfoCount(), QObject::staticMetaObject.classInfoCount());
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta.enumeratorCount(), 0);
    QCOMPARE(meta.constructorCount(), 0);
}

void TextOperPluginTest::casts()
{
    TextOperPlugin plugin;
    QObject *const object = &plugin;
    auto *const interface = static_cast<IOperationPlugin *>(&plugin);
    QCOMPARE(qobject_cast<IOperationPlugin *>(object), interface);
    QCOMPARE(object->qt_metacast("IOperationPlugin"), static_cast<void *>(interface));
    QCOMPARE(object->qt_metacast("com.quorlent.Brimwork.IOperationPlugin/1.0"),
             static_cast<void *>(interface));
    QVERIFY(!object->qt_metacast("com.quorlent.Brimwork.IOperationPlugin/2.0"));
}

void TextOperPluginTest::identity()
{
    const TextOperPlugin plugin;
    QCOMPARE(plugin.pluginId(), QString("com.quorlent.Brimwork.TextOperPlugin"));
    QCOMPARE(plugin.name(), QString("文本操作插件"));
    QCOMPARE(plugin.version(), QString("1.0.0"));
    QCOMPARE(plugin.apiVersion(), 2);
    QCOMPARE(plugin.requiredCapabilities(), QStringList("hasListType"));
}

void TextOperPluginTest::manifest()
{
    const PluginManifest manifest = TextOperPlugin().manifest();
    QCOMPARE(manifest.id, QString("com.quorlent.Brimwork.TextOperPlugin"));
    QCOMPARE(manifest.name, QString("文本操作插件"));
    QCOMPARE(manifest.version, QString("1.0.0"));
    QCOMPARE(manifest.apiVersion, 2);
    QCOMPARE(manifest.typeIdPrefix, QString("text."));
    QCOMPARE(manifest.requiredCapabilities, QStringList("hasListType"));
    QCOMPARE(manifest.optionalCapabilities, QStringList());
    QCOMPARE(manifest.rootOrder, (QMap<QString, int>{{"文本", 500}}));
}

void TextOperPluginTest::manifestAsksTheVirtualFunctions()
{
    class Renamed : public TextOperPlugin
    {
    public:
        QString pluginId() const override { return "id"; }
        QString name() const override { return "name"; }
        QString version() const override { return "9"; }
        int apiVersion() const override { return 9; }
        QStringList requiredCapabilities() const override { return {"other"}; }
    };
    const PluginManifest manifest = Renamed().manifest();
    QCOMPARE(manifest.id, QString("id"));
    QCOMPARE(manifest.name, QString("name"));
    QCOMPARE(manifest.version, QString("9"));
    QCOMPARE(manifest.apiVersion, 2);
    QCOMPARE(manifest.requiredCapabilities, QStringList("hasListType"));
}

void TextOperPluginTest::weights()
{
    QMap<QString, int> expected;
    for (const auto &[typeId, weight] : catalogue)
        expected.insert(typeId, weight);
    QCOMPARE(TextOperPlugin().manifest().typeOrder, expected);
}

void TextOperPluginTest::prototypes()
{
    QStringList expected;
    for (const auto &entry : catalogue)
        expected.append(entry.first);
    const QList<Operation *> prototypes = TextOperPlugin().createPrototypes();
    QStringList actual;
    for (const Operation *prototype : prototypes) {
        QVERIFY(!prototype->parent());
        actual.append(prototype->typeId());
    }
    qDeleteAll(prototypes);
    QCOMPARE(actual, expected);
}

void TextOperPluginTest::everyCallMakesFreshObjects()
{
    TextOperPlugin plugin;
    const QList<Operation *> first = plugin.createPrototypes();
    const QList<Operation *> second = plugin.createPrototypes();
    QSet<Operation *> distinct(first.begin(), first.end());
    distinct.unite(QSet<Operation *>(second.begin(), second.end()));
    QCOMPARE(distinct.size(), 2 * catalogue.size());
    qDeleteAll(distinct);
}

void TextOperPluginTest::nameIsTranslatedInTheSharedContext()
{
    RecordingTranslator translator;
    const TextOperPlugin plugin;
    translator.takeRequests();
    plugin.name();
    QCOMPARE(translator.takeRequests(), QStringList("QObject|文本操作插件"));
    plugin.pluginId();
    plugin.version();
    QCOMPARE(translator.takeRequests(), QStringList());
    QVERIFY(plugin.manifest().rootOrder.contains("文本"));
    QCOMPARE(translator.takeRequests(), QStringList("QObject|文本操作插件"));
}

void TextOperPluginTest::defaultEditors()
{
    // Inherited, not overridden: the host's default applies.
    using Inherited = void (IOperationPlugin::*)(IEditorRegistry &);
    static_assert(std::is_same_v<decltype(&TextOperPlugin::registerEditors), Inherited>);
    class Registry : public IEditorRegistry
    {
    };
    Registry registry;
    TextOperPlugin().registerEditors(registry);
}

QTEST_GUILESS_MAIN(TextOperPluginTest)

#include "TextOperPluginTest.moc"
