#include "tests/support/Annotations.h"
#include "tests/support/QuietTest.h"
#include "tests/support/Records.h"

#include "plugin/TextOperPlugin.h"

#include "Operation.h"
#include "VariableScope.h"

#include <QMetaProperty>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <memory>

/// What holds for every operation alike, on every operation the plug-in hands out.
class PrototypesTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_data() { eachPrototype(); }
    void metaObject();
    void propertyFlags_data() { eachPrototype(); }
    void propertyFlags();
    void identifiersAreUnique();
    void annotationGrammar_data() { eachPrototype(); }
    void annotationGrammar();
    void conditions_data() { eachPrototype(); }
    void conditions();
    void propertiesRoundTrip_data() { eachPrototype(); }
    void propertiesRoundTrip();
    void silentWithoutScope_data() { eachPrototype(); }
    void silentWithoutScope();
    void oneWarningWithoutResultVariable_data() { eachPrototype(); }
    void oneWarningWithoutResultVariable();
    void cloneIsComplete_data() { eachPrototype(); }
    void cloneIsComplete();
    void recordIsComplete_data() { eachPrototype(); }
    void recordIsComplete();
    void presentation_data() { eachPrototype(); }
    void presentation();

private:
    void eachPrototype();
};

namespace {

using OperationPtr = std::unique_ptr<Operation>;

OperationPtr makeOperation(int index)
{
    const QList<Operation *> prototypes = TextOperPlugin().createPrototypes();
    OperationPtr chosen(prototypes.at(index));
    for (Operation *prototype : prototypes) {
        if (prototype != chosen.get())
            delete prototype;
    }
    return chosen;
}

QList<QMetaProperty> ownProperties(const Operation &operation)
{
    const QMetaObject &meta = *operation.metaObject();
    QList<QMetaProperty> properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        properties.append(meta.property(i));
    return properties;
}

/// A value that no property has by default, another one for each property.
QVariant unusualValue(const QMetaProperty &property)
{
    if (property.type() == QVariant::Bool)
        return true;
    if (property.type() == QVariant::Int)
        return 1000 + property.propertyIndex();
    return QString("值 %1").arg(property.propertyIndex());
}

void fill(Operation &operation)
{
    const auto properties = ownProperties(operation);
    for (const QMetaProperty &property : properties)
        property.write(&operation, unusualValue(property));
}

} // namespace

void PrototypesTest::eachPrototype()
{
    QTest::addColumn<int>("index");
    const QList<Operation *> prototypes = TextOperPlugin().createPrototypes();
    for (int i = 0; i < prototypes.size(); ++i)
        QTest::newRow(qPrintable(prototypes.at(i)->typeId())) << i;
    qDeleteAll(prototypes);
}

void PrototypesTest::metaObject()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    const QMetaObject &meta = *operation->metaObject();
    QVERIFY(QByteArray(meta.className()).startsWith("Text"));
    QVERIFY(QByteArray(meta.className()).endsWith("Operation"));
    QCOMPARE(meta.superClass(), &Operation::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    QCOMPARE(meta.constructorCount(), 0);
    QCOMPARE(ownProperties(*operation).last().name(), "resultVar");
}

void PrototypesTest::propertyFlags()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    const auto properties = ownProperties(*operation);
    for (int i = 0; i < properties.size(); ++i) {
        QCOMPARE(::propertyFlags(*operation->metaObject(), i), 0x95103U);
        QVERIFY(!properties.at(i).hasNotifySignal());
        QVERIFY(!properties.at(i).isResettable());
    }
}

void PrototypesTest::identifiersAreUnique()
{
    TextOperPlugin plugin;
    const QString prefix = plugin.manifest().typeIdPrefix;
    const QList<Operation *> prototypes = plugin.createPrototypes();
    QSet<QString> identifiers;
    QSet<QString> classes;
    for (const Operation *prototype : prototypes) {
        QVERIFY(prototype->typeId().startsWith(prefix));
        QVERIFY(prototype->typeId().size() > prefix.size());
        QVERIFY(plugin.manifest().typeOrder.contains(prototype->typeId()));
        identifiers.insert(prototype->typeId());
        classes.insert(prototype->metaObject()->className());
    }
    QCOMPARE(identifiers.size(), prototypes.size());
    QCOMPARE(classes.size(), prototypes.size());
    QCOMPARE(plugin.manifest().typeOrder.size(), prototypes.size());
    qDeleteAll(prototypes);
}

void PrototypesTest::annotationGrammar()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    // Built up from the properties, the annotations have to come out in exactly this order; so no
    // key is unknown, doubled, missing or of another property.
    const QStringList annotations = annotationsOf(*operation->metaObject());
    QMap<QString, QString> values;
    QStringList keys;
    for (const QString &annotation : annotations) {
        keys.append(annotation.section(" = ", 0, 0));
        values.insert(keys.last(), annotation.section(" = ", 1));
    }
    QStringList expected;
    const auto properties = ownProperties(*operation);
    for (const QMetaProperty &property : properties) {
        const QString name = property.name();
        expected.append("prop_" + name);
        QVERIFY(!values.value("prop_" + name).isEmpty());
        const QString editor = values.value("editor_" + name);
        QCOMPARE(editor.isEmpty(), property.type() == QVariant::Bool);
        if (editor.isEmpty())
            continue;
        expected.append("editor_" + name);
        if (editor == "COMBO") {
            QCOMPARE(property.type(), QVariant::Int);
            expected.append("choices_" + name);
            const QStringList choices = values.value("choices_" + name).split('|');
            QVERIFY(choices.size() > 1);
            for (const QString &choice : choices)
                QVERIFY(!choice.isEmpty() && choice == choice.trimmed());
            QCOMPARE(QSet<QString>(choices.begin(), choices.end()).size(), choices.size());
        } else if (editor == "VARREF") {
            QCOMPARE(property.type(), QVariant::String);
            const bool byType = values.contains("varref_type_" + name);
            expected.append((byType ? "varref_type_" : "varref_kind_") + name);
            QCOMPARE(values.value(expected.last()),
                     QString(byType ? "int,double,string" : "string"));
        } else if (editor.startsWith("VARNAME:")) {
            QCOMPARE(property.type(), QVariant::String);
            const QString type = editor.mid(8);
            QVERIFY(QStringList({"STRING", "INT", "LIST", "SCALAR"}).contains(type));
            expected.append("varname_type_" + name);
            QCOMPARE(values.value(expected.last()), type.toLower());
        } else {
            QCOMPARE(property.type(), QVariant::String);
            QVERIFY2(editor == "NUMVAR:INT" || editor == "NUMVAR:SCALAR", qPrintable(editor));
        }
        if (values.contains("show_when_" + name))
            expected.append("show_when_" + name);
    }
    QCOMPARE(keys, expected);
}

void PrototypesTest::conditions()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    const QMetaObject &meta = *operation->metaObject();
    const auto value = [&](const QString &key) {
        const int place = meta.indexOfClassInfo(key.toLatin1().constData());
        return place < 0 ? QString() : QString::fromUtf8(meta.classInfo(place).value());
    };
    const auto properties = ownProperties(*operation);
    for (const QMetaProperty &property : properties) {
        const QString condition = value(QString("show_when_") + property.name());
        if (condition.isEmpty())
            continue;
        const QRegularExpressionMatch match =
            QRegularExpression(R"(^(\w+)=(\d+(?:\|\d+)*)$)").match(condition);
        QVERIFY2(match.hasMatch(), qPrintable(condition));
        const QString decider = match.captured(1);
        QCOMPARE(value("editor_" + decider), QString("COMBO"));
        const int choices = value("choices_" + decider).split('|').size();
        const QStringList shown = match.captured(2).split('|');
        for (const QString &number : shown)
            QVERIFY(number.toInt() < choices);
        // Shown always would be no condition.
        QVERIFY(shown.size() < choices);
    }
}

void PrototypesTest::propertiesRoundTrip()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    fill(*operation);
    const auto properties = ownProperties(*operation);
    for (const QMetaProperty &property : properties)
        QCOMPARE(property.read(operation.get()), unusualValue(property));
}

void PrototypesTest::silentWithoutScope()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    operation->doOperation();
    fill(*operation);
    operation->doOperation();
    QCOMPARE(takeWarnings(), QStringList());
}

void PrototypesTest::oneWarningWithoutResultVariable()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    fill(*operation);
    operation->setProperty("resultVar", QString());
    VariableScope scope;
    scope.declare("", VarType::String, "nameless");
    operation->setVariableScope(&scope);
    operation->doOperation();
    const QString name = QString(operation->metaObject()->className()).remove("Operation");
    QCOMPARE(takeWarnings(), QStringList("[" + name + "] 未指定结果变量，已跳过"));
    QCOMPARE(scope.writtenNames(), QStringList());
}

void PrototypesTest::cloneIsComplete()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    loadRecord(*operation, QByteArray::fromHex("89abcdef"));
    fill(*operation);
    const OperationPtr copy(operation->clone(nullptr));
    QCOMPARE(copy->metaObject(), operation->metaObject());
    const auto properties = ownProperties(*operation);
    for (const QMetaProperty &property : properties)
        QCOMPARE(property.read(copy.get()), unusualValue(property));
    QCOMPARE(saveRecord(*copy).left(4), QByteArray::fromHex("89abcdef"));
}

void PrototypesTest::recordIsComplete()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    fill(*operation);
    // The base record, then the properties in their order with the operators of their types.
    QByteArray expected(4, '\0');
    QDataStream stream(&expected, QIODevice::Append);
    const auto properties = ownProperties(*operation);
    for (const QMetaProperty &property : properties) {
        const QVariant value = unusualValue(property);
        if (value.type() == QVariant::Bool)
            stream << value.toBool();
        else if (value.type() == QVariant::Int)
            stream << value.toInt();
        else
            stream << value.toString();
    }
    QCOMPARE(saveRecord(*operation), expected);

    const OperationPtr loaded = makeOperation(index);
    QCOMPARE(loadRecord(*loaded, expected), QDataStream::Ok);
    QCOMPARE(saveRecord(*loaded), expected);
}

void PrototypesTest::presentation()
{
    QFETCH(int, index);
    const OperationPtr operation = makeOperation(index);
    QVERIFY(operation->typeId().startsWith("text."));
    QCOMPARE(operation->root(), QString("文本"));
    QCOMPARE(operation->icon(), ":/images/text_" + operation->typeId().mid(5).toLower() + ".svg");
    QVERIFY(!operation->typeName().isEmpty());
    QVERIFY(!operation->description().isEmpty());
    QVERIFY(operation->toString().startsWith(operation->typeName() + ": "));
    fill(*operation);
    QVERIFY(operation->toString().startsWith(operation->typeName() + ": "));
}

QTEST_GUILESS_MAIN(PrototypesTest)

#include "PrototypesTest.moc"
