#include "tests/support/PlainOperation.h"
#include "tests/support/QuietTest.h"

#include "IEditorRegistry.h"
#include "IOperationPlugin.h"
#include "Operation.h"
#include "VarType.h"

#include <QtTest>

#include <cstring>

/// Pins what a plug-in built elsewhere relies on.
class HostInterfaceTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void virtualFunctions_data();
    void virtualFunctions();
    void varTypeNumbers();
    void memberOrder();
    void emptyManifest();
    void interfaceIdentifier();
    void editorRegistry();
};

namespace {

/// The place of a virtual function in the table of its class, as the Itanium C++ ABI stores it in a
/// pointer to the member: one more than the offset, or the offset where odd addresses are code.
template <typename Function>
int slot(Function function)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof function == sizeof words);
    std::memcpy(words, &function, sizeof words);
#if defined(__aarch64__) || defined(__arm__)
    const std::ptrdiff_t offset = words[0];
#else
    const std::ptrdiff_t offset = words[0] - 1;
#endif
    return static_cast<int>(offset / static_cast<std::ptrdiff_t>(sizeof(void *)));
}

/// QObject: three of the meta-object, the destructor twice, seven event functions.
constexpr int firstOfOperation = 12;
/// The destructor takes two places.
constexpr int firstOfPlugin = 2;

} // namespace

void HostInterfaceTest::virtualFunctions_data()
{
    QTest::addColumn<int>("actual");
    QTest::addColumn<int>("expected");

    const QPair<const char *, int> operation[] = {
        {"root", slot(&Operation::root)},
        {"typeId", slot(&Operation::typeId)},
        {"typeName", slot(&Operation::typeName)},
        {"icon", slot(&Operation::icon)},
        {"doOperation", slot(&Operation::doOperation)},
        {"saveOperation", slot(&Operation::saveOperation)},
        {"loadOperation", slot(&Operation::loadOperation)},
        {"toString", slot(&Operation::toString)},
        {"description", slot(&Operation::description)},
        {"clone", slot(&Operation::clone)},
        {"isContainer", slot(&Operation::isContainer)},
        {"childCount", slot(&Operation::childCount)},
        {"childAt", slot(&Operation::childAt)},
        {"children", slot<QList<Operation *> &(Operation::*)()>(&Operation::children)},
        {"parentOperation", slot(&Operation::parentOperation)},
        {"setParentOperation", slot(&Operation::setParentOperation)},
        {"setVariableScope", slot(&Operation::setVariableScope)},
    };
    int expected = firstOfOperation;
    for (const auto &[name, actual] : operation)
        QTest::addRow("Operation::%s", name) << actual << expected++;

    const QPair<const char *, int> plugin[] = {
        {"createPrototypes", slot(&IOperationPlugin::createPrototypes)},
        {"pluginId", slot(&IOperationPlugin::pluginId)},
        {"name", slot(&IOperationPlugin::name)},
        {"version", slot(&IOperationPlugin::version)},
        {"apiVersion", slot(&IOperationPlugin::apiVersion)},
        {"manifest", slot(&IOperationPlugin::manifest)},
        {"registerEditors", slot(&IOperationPlugin::registerEditors)},
        {"requiredCapabilities", slot(&IOperationPlugin::requiredCapabilities)},
    };
    expected = firstOfPlugin;
    for (const auto &[name, actual] : plugin)
        QTest::addRow("IOperationPlugin::%s", name) << actual << expected++;
}

void HostInterfaceTest::virtualFunctions()
{
    QFETCH(int, actual);
    QFETCH(int, expected);
    QCOMPARE(actual, expected);
}

void HostInterfaceTest::varTypeNumbers()
{
    QCOMPARE(static_cast<int>(VarType::None), 0);
    QCOMPARE(static_cast<int>(VarType::Int), 1);
    QCOMPARE(static_cast<int>(VarType::Double), 2);
    QCOMPARE(static_cast<int>(VarType::String), 3);
    QCOMPARE(static_cast<int>(VarType::Bool), 4);
    QCOMPARE(static_cast<int>(VarType::List), 5);
    QCOMPARE(static_cast<int>(VarType::Table), 6);
    QCOMPARE(sizeof(VarType), sizeof(int));
}

void HostInterfaceTest::memberOrder()
{
    const PlainOperation operation;
    QVERIFY(operation.stateStandsBeforeScope());
}

void HostInterfaceTest::emptyManifest()
{
    const PluginManifest manifest;
    QCOMPARE(manifest.id, QString());
    QCOMPARE(manifest.name, QString());
    QCOMPARE(manifest.version, QString());
    QCOMPARE(manifest.apiVersion, 0);
    QCOMPARE(manifest.typeIdPrefix, QString());
    QVERIFY(manifest.requiredCapabilities.isEmpty());
    QVERIFY(manifest.optionalCapabilities.isEmpty());
    QVERIFY(manifest.rootOrder.isEmpty());
    QVERIFY(manifest.typeOrder.isEmpty());
}

void HostInterfaceTest::interfaceIdentifier()
{
    QCOMPARE(qobject_interface_iid<IOperationPlugin *>(),
             "com.quorlent.Brimwork.IOperationPlugin/1.0");
    QCOMPARE(Operation::staticMetaObject.className(), "Operation");
    QCOMPARE(Operation::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void HostInterfaceTest::editorRegistry()
{
    class Registry : public IEditorRegistry
    {
    public:
        explicit Registry(bool &deleted)
            : m_deleted(deleted)
        {
        }
        ~Registry() override { m_deleted = true; }

    private:
        bool &m_deleted;
    };
    bool deleted = false;
    const IEditorRegistry *registry = new Registry(deleted);
    delete registry;
    QVERIFY(deleted);
}

QTEST_GUILESS_MAIN(HostInterfaceTest)

#include "HostInterfaceTest.moc"
