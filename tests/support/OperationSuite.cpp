#include "tests/support/OperationSuite.h"

#include "tests/support/Annotations.h"
#include "tests/support/ListOf.h"
#include "tests/support/RecordingTranslator.h"
#include "tests/support/Records.h"

#include "Operation.h"

#include <QMetaProperty>
#include <QtEndian>
#include <QtTest>

namespace {

/// A value that no property has by default, another one for each property.
QVariant unusualValue(const QVariant &defaultValue, int index)
{
    switch (defaultValue.type()) {
    case QVariant::Bool:
        return !defaultValue.toBool();
    case QVariant::Int:
        return -70000 - index;
    default:
        // One of them null, which a record tells from an empty text.
        return index == 1 ? QVariant(QString()) : QVariant(QString("值%1").arg(index));
    }
}

QByteArray encodedWord(quint32 word, QDataStream::ByteOrder order)
{
    const quint32 ordered =
        order == QDataStream::BigEndian ? qToBigEndian(word) : qToLittleEndian(word);
    return QByteArray(reinterpret_cast<const char *>(&ordered), sizeof ordered);
}

/// The bytes of one field, written down anew for this test: a text as length in bytes and UTF-16,
/// an integer as 32 bits, a flag as one byte.
QByteArray encodedField(const QVariant &value, QDataStream::ByteOrder order)
{
    if (value.type() == QVariant::Bool)
        return QByteArray(1, value.toBool() ? '\1' : '\0');
    if (value.type() == QVariant::Int)
        return encodedWord(static_cast<quint32>(value.toInt()), order);
    const QString text = value.toString();
    if (text.isNull())
        return encodedWord(0xFFFFFFFF, order);
    QByteArray bytes = encodedWord(static_cast<quint32>(2 * text.size()), order);
    for (const QChar unit : text) {
        const char high = static_cast<char>(unit.row());
        const char low = static_cast<char>(unit.cell());
        bytes +=
            order == QDataStream::BigEndian ? QByteArray{} + high + low : QByteArray{} + low + high;
    }
    return bytes;
}

} // namespace

OperationSuite::Facts OperationSuite::textFacts()
{
    Facts facts;
    facts.resultType = VarType::String;
    facts.refusal = "未声明为字符串，已跳过";
    facts.undeclaredRefusal = facts.refusal;
    facts.refusedTypes = {VarType::Int,  VarType::Double, VarType::Bool,
                          VarType::List, VarType::Table,  static_cast<VarType>(7)};
    return facts;
}

void OperationSuite::gives(const char *row, const Settings &settings, const QVariant &expected,
                           const QStringList &warnings)
{
    QTest::newRow(row) << settings << expected << warnings;
}

void OperationSuite::warns(const char *row, const Settings &settings, const QStringList &warnings)
{
    QTest::newRow(row) << settings << QVariant() << warnings;
}

void OperationSuite::shows(const char *row, const Settings &settings, const QString &summary,
                           const QString &sentence)
{
    QTest::newRow(row) << settings << summary << sentence;
}

std::unique_ptr<Operation> OperationSuite::make(const Settings &settings) const
{
    std::unique_ptr<Operation> operation(create(nullptr));
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        if (setting.key() != "into" &&
            !operation->setProperty(setting.key().toLatin1().constData(), setting.value()))
            qCritical("no property %s", qPrintable(setting.key()));
    }
    return operation;
}

OperationSuite::Settings OperationSuite::workable(const QString &resultVar) const
{
    Settings settings{{"resultVar", resultVar}};
    for (const char *input : {"sourceText", "value"}) {
        if (propertyNames().contains(input))
            settings.insert(input, "1");
    }
    return settings;
}

QList<QByteArray> OperationSuite::propertyNames() const
{
    const std::unique_ptr<Operation> operation(create(nullptr));
    const QMetaObject &meta = *operation->metaObject();
    QList<QByteArray> names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names.append(meta.property(i).name());
    return names;
}

std::unique_ptr<Operation> OperationSuite::makeUnusual() const
{
    std::unique_ptr<Operation> operation(create(nullptr));
    const QVariantList defaults = facts().defaults;
    const QList<QByteArray> names = propertyNames();
    for (int i = 0; i < names.size(); ++i)
        operation->setProperty(names.at(i), unusualValue(defaults.value(i), i));
    return operation;
}

VariableScope OperationSuite::sampleScope(VarType resultType) const
{
    VariableScope scope;
    scope.declare("s", VarType::String, "text");
    scope.declare("blank", VarType::String);
    scope.declare("n", VarType::Int, 3);
    scope.declare("d", VarType::Double, 2.5);
    scope.declare("yes", VarType::Bool, true);
    scope.declare("list", VarType::List, listOf({"x", 1, listOf({"y", "z"})}));
    scope.declare("table", VarType::Table, listOf({listOf({1, 2}), listOf({3})}));
    scope.declare("r", resultType);
    return scope;
}

void OperationSuite::identity()
{
    const std::unique_ptr<Operation> operation(create(nullptr));
    QCOMPARE(operation->metaObject()->className(), facts().className.constData());
    QCOMPARE(operation->metaObject()->superClass(), &Operation::staticMetaObject);
    QCOMPARE(operation->root(), QString("文本"));
    QCOMPARE(operation->typeId(), facts().typeId);
    QCOMPARE(operation->typeName(), facts().typeName);
    QCOMPARE(operation->icon(), facts().icon);
    QVERIFY(!operation->isContainer());
    QCOMPARE(operation->childCount(), 0);
}

void OperationSuite::annotations()
{
    const std::unique_ptr<Operation> operation(create(nullptr));
    QCOMPARE(annotationsOf(*operation->metaObject()), facts().annotations);
}

void OperationSuite::defaults()
{
    QObject parent;
    const Operation *const operation = create(&parent);
    QCOMPARE(operation->parent(), &parent);
    const QList<QByteArray> names = propertyNames();
    QCOMPARE(names.size(), facts().defaults.size());
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(operation->property(names.at(i)), facts().defaults.at(i));
        QCOMPARE(operation->property(names.at(i)).type(), facts().defaults.at(i).type());
    }
}

void OperationSuite::addResultColumns() const
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QVariant>("expected");
    QTest::addColumn<QStringList>("warnings");
    resultRows();
}

void OperationSuite::results()
{
    QFETCH(QVariantMap, settings);
    QFETCH(QVariant, expected);
    QFETCH(QStringList, warnings);
    const int into = settings.value("into", static_cast<int>(facts().resultType)).toInt();
    VariableScope scope = sampleScope(static_cast<VarType>(into));
    if (!settings.contains("resultVar"))
        settings.insert("resultVar", "r");
    const std::unique_ptr<Operation> operation = make(settings);
    operation->setVariableScope(&scope);
    operation->doOperation();
    QCOMPARE(takeWarnings(), warnings);
    if (expected.isValid()) {
        QCOMPARE(scope.get("r"), expected);
        QCOMPARE(scope.get("r").userType(), expected.userType());
        QCOMPARE(scope.writtenNames(), QStringList("r"));
    } else {
        QCOMPARE(scope.writtenNames(), QStringList());
    }
}

void OperationSuite::withoutScope()
{
    make({})->doOperation();
    make(workable("r"))->doOperation();
    QCOMPARE(takeWarnings(), QStringList());
}

void OperationSuite::withoutResultVariable()
{
    VariableScope scope = sampleScope(facts().resultType);
    scope.declare("", facts().resultType);
    const std::unique_ptr<Operation> operation = make(workable({}));
    operation->setVariableScope(&scope);
    operation->doOperation();
    const QString tag = QString(facts().className).remove("Operation");
    QCOMPARE(takeWarnings(), QStringList('[' + tag + "] 未指定结果变量，已跳过"));
    QCOMPARE(scope.writtenNames(), QStringList());
}

void OperationSuite::unfitResultVariable()
{
    const std::unique_ptr<Operation> operation = make(workable("r"));
    const QList<VarType> types = facts().refusedTypes + QList<VarType>{VarType::None};
    for (const VarType type : types) {
        VariableScope scope = sampleScope(type);
        operation->setVariableScope(&scope);
        operation->doOperation();
        const QString refusal = type == VarType::None ? facts().undeclaredRefusal : facts().refusal;
        QCOMPARE(takeWarnings(), QStringList("[TextOp] 变量 \"r\" " + refusal));
        QCOMPARE(scope.writtenNames(), QStringList());
    }
}

void OperationSuite::dollarBelongsToTheResultName()
{
    VariableScope scope = sampleScope(facts().resultType);
    scope.declare("$r", facts().resultType);
    const std::unique_ptr<Operation> operation = make(workable("$r"));
    operation->setVariableScope(&scope);
    operation->doOperation();
    QCOMPARE(scope.writtenNames(), QStringList("$r"));
}

void OperationSuite::addPresentationColumns() const
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QString>("sentence");
    presentationRows();
}

void OperationSuite::presentation()
{
    QFETCH(QVariantMap, settings);
    const std::unique_ptr<Operation> operation = make(settings);
    QTEST(operation->toString(), "summary");
    QTEST(operation->description(), "sentence");
    QVERIFY(operation->toString().startsWith(facts().typeName + ": "));
}

void OperationSuite::translations()
{
    RecordingTranslator translator;
    const std::unique_ptr<Operation> operation(create(nullptr));
    // Everything in the context of the class; the order within one call is nobody's business.
    const auto requests = [&](const QStringList &texts) {
        QStringList expected;
        for (const QString &text : texts)
            expected.append(facts().className + '|' + text);
        expected.sort();
        QStringList actual = translator.takeRequests();
        actual.sort();
        QCOMPARE(actual, expected);
    };
    translator.takeRequests();
    operation->root();
    requests({"文本"});
    operation->typeName();
    requests({facts().typeName});
    operation->toString();
    requests(facts().summaryTexts);
    operation->description();
    requests(facts().sentenceTexts);
    operation->typeId();
    operation->icon();
    requests({});
}

void OperationSuite::record_data()
{
    QTest::addColumn<int>("byteOrder");
    QTest::addColumn<int>("version");
    const QPair<const char *, int> versions[] = {{"4.6", QDataStream::Qt_4_6},
                                                 {"5.0", QDataStream::Qt_5_0},
                                                 {"5.6", QDataStream::Qt_5_6},
                                                 {"5.12", QDataStream::Qt_5_12},
                                                 {"5.15", QDataStream::Qt_5_15}};
    for (const auto &[name, version] : versions) {
        QTest::addRow("big endian, %s", name) << int(QDataStream::BigEndian) << version;
        QTest::addRow("little endian, %s", name) << int(QDataStream::LittleEndian) << version;
    }
}

void OperationSuite::record()
{
    QFETCH(int, byteOrder);
    QFETCH(int, version);
    const RecordForm form{static_cast<QDataStream::ByteOrder>(byteOrder),
                          static_cast<QDataStream::Version>(version)};
    // The host's 32 bits, then the fields in their order and nothing else.
    QByteArray expected = encodedWord(0x01020304, form.byteOrder);
    const QVariantList defaults = facts().defaults;
    for (int i = 0; i < defaults.size(); ++i)
        expected += encodedField(unusualValue(defaults.at(i), i), form.byteOrder);

    const std::unique_ptr<Operation> operation(create(nullptr));
    QCOMPARE(loadRecord(*operation, expected, form), QDataStream::Ok);
    const QList<QByteArray> names = propertyNames();
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(operation->property(names.at(i)), unusualValue(defaults.at(i), i));
    QCOMPARE(saveRecord(*operation, form), expected);
}

void OperationSuite::truncatedRecord()
{
    const QByteArray record = saveRecord(*makeUnusual());
    for (int size = 0; size < record.size(); ++size) {
        const std::unique_ptr<Operation> loaded(create(nullptr));
        QVERIFY(loadRecord(*loaded, record.left(size)) != QDataStream::Ok);
    }
}

void OperationSuite::cloning()
{
    VariableScope scope = sampleScope(facts().resultType);
    const std::unique_ptr<Operation> operation(create(nullptr));
    loadRecord(*operation, QByteArray::fromHex("01020304"));
    const QList<QByteArray> names = propertyNames();
    for (int i = 0; i < names.size(); ++i)
        operation->setProperty(names.at(i), unusualValue(facts().defaults.at(i), i));
    operation->setVariableScope(&scope);

    QObject parent;
    Operation *const child = operation->clone(&parent);
    QCOMPARE(child->metaObject(), operation->metaObject());
    QCOMPARE(child->parent(), &parent);
    QCOMPARE(saveRecord(*child), saveRecord(*operation));

    // The copy has no scope, so that running it does nothing, and a life of its own.
    const std::unique_ptr<Operation> orphan(operation->clone(nullptr));
    QVERIFY(!orphan->parent());
    orphan->doOperation();
    QCOMPARE(scope.writtenNames(), QStringList());
    orphan->setProperty("resultVar", "other");
    QVERIFY(operation->property("resultVar") != "other");
}
