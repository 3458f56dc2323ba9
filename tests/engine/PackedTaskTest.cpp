#include "tests/engine/RandomTask.h"
#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"
#include "tests/support/Records.h"

#include "refhost/engine/JsonFile.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/PackedFrame.h"
#include "refhost/engine/TaskPacker.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskUnpacker.h"
#include "refhost/engine/TaskWriter.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <limits>

/// Tasks in their packed form: what it keeps, what it refuses, and what of it JSON can say.
class PackedTaskTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theGoldenFile();
    void thePage();
    void keepsValues_data();
    void keepsValues();
    void keepsTheHostsState();
    void keepsEmptyRecords();
    void readsEitherForm();
    void readsOlderRecords();
    void cannotPack_data();
    void cannotPack();
    void refuses_data();
    void refuses();
    void refusesRecords_data();
    void refusesRecords();
    void cutOffAnywhere();
    void everyBit();
    void anyBytes();
    void randomTasks();
    void throughJson();
    void beyondJson_data();
    void beyondJson();
    void stepsBeyondJson_data();
    void stepsBeyondJson();
    void nestingAsDeepAsJson();

private:
    std::unique_ptr<Operation> step(const QString &typeId) const;
    Task goldenTask() const;

    std::unique_ptr<OperationCatalog> m_catalog;
};

namespace {

using Reason = Problem::Reason;

constexpr quint32 manyOfThem = 0xFFFFFFFF;

double fromBits(quint64 bits)
{
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

/// A value with its type, bit by bit.
QString spelled(const QVariant &value)
{
    const QString type = QString::fromLatin1(value.typeName()) + ' ';
    if (value.userType() == QMetaType::Double) {
        const double number = value.toDouble();
        return type + QByteArray(reinterpret_cast<const char *>(&number), sizeof number).toHex();
    }
    if (value.userType() == QMetaType::QString) {
        QString text = value.toString().isNull() ? type + "null" : type;
        for (const QChar unit : value.toString())
            text += QString::number(unit.unicode(), 16) + ' ';
        return text;
    }
    if (value.userType() == QMetaType::QVariantList) {
        QStringList elements;
        for (const QVariant &element : value.toList())
            elements.append(spelled(element));
        return '[' + elements.join(", ") + ']';
    }
    return type + value.toString();
}

/// A task with its variables and the records of its steps, each on a line.
QString spelled(const Task &task)
{
    QStringList lines;
    for (const TaskVariable &variable : task.variables) {
        lines.append(spelled(QVariant(variable.name)) + QString::number(int(variable.type)) + ' ' +
                     spelled(variable.value));
    }
    for (const auto &step : task.steps)
        lines.append(step->typeId() + ' ' + saveRecord(*step).toHex());
    return lines.join('\n');
}

/// The bytes of these, one after the other, as a stream of Qt writes them.
template <typename... Parts>
QByteArray bytesOf(const Parts &...parts)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    ((stream << parts), ...);
    return bytes;
}

/// A packed task with this content, a true length and a true checksum.
QByteArray sealed(const QByteArray &content, quint32 recordVersion = 19)
{
    const QByteArray file = QByteArray::fromHex("895441534b0d0a1a") +
                            bytesOf(quint32(1), quint32(content.size() + 52), recordVersion) +
                            content;
    return file + QCryptographicHash::hash(file, QCryptographicHash::Sha256);
}

/// A packed task with one variable and no step.
QByteArray withVariable(const QString &name, int type, const QByteArray &value)
{
    return sealed(bytesOf(quint32(1), name, quint8(type)) + value + bytesOf(quint32(0)));
}

/// A packed task with a step and, behind it, another.
QByteArray withStep(const QString &typeId, const QByteArray &record)
{
    return sealed(bytesOf(quint32(0), quint32(2), typeId, record, QString("text.append"),
                          bytesOf(quint32(0), QString(), QString(), QString())));
}

Task withValue(VarType type, const QVariant &value)
{
    Task task;
    task.variables.append({"a", type, value});
    return task;
}

/// A list within a list, and so on.
QVariant nested(int depth)
{
    QVariant list = QVariantList();
    for (int i = 1; i < depth; ++i)
        list = QVariantList{list};
    return list;
}

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString failure(const Result<QByteArray> &result)
{
    return result ? QString() : result.problem().toString();
}

QString failure(const Result<Task> &result)
{
    return result ? QString() : result.problem().toString();
}

} // namespace

void PackedTaskTest::initTestCase()
{
    m_catalog = std::make_unique<OperationCatalog>(QStringList{PLUGIN_FILE, ODD_PLUGIN});
    QVERIFY(m_catalog->failures().isEmpty());
}

std::unique_ptr<Operation> PackedTaskTest::step(const QString &typeId) const
{
    return std::unique_ptr<Operation>(m_catalog->find(typeId)->prototype->clone(nullptr));
}

/// A task of all that is odd. Whoever changes it writes the golden file anew.
Task PackedTaskTest::goldenTask() const
{
    const qlonglong widest = std::numeric_limits<qlonglong>::max();
    Task task;
    task.variables = {
        {"none", VarType::String, {}},
        {"null", VarType::String, QString()},
        {"empty", VarType::String, QString("")},
        {"文\U0001F600", VarType::String, QString(QChar(0xD800)) + "a" + QChar(0xDC00)},
        {"-0", VarType::Double, -0.0},
        {"nan", VarType::Double, fromBits(0xFFF8000000000001)},
        {"int", VarType::Int, std::numeric_limits<int>::min()},
        {"bool", VarType::Bool, true},
        {"list", VarType::List, listOf({widest, 1, 1LL, 2.0, "x", QVariant(), listOf({false})})},
        {"table", VarType::Table, listOf({listOf({1, "a"}), QVariantList()})}};
    task.steps.push_back(step("text.pad"));
    task.steps.back()->setProperty("sourceText", "$文");
    task.steps.back()->setProperty("position", -7);
    QByteArray record = saveRecord(*task.steps.back());
    record.replace(0, 4, QByteArray::fromHex("CAFE0001"));
    loadRecord(*task.steps.back(), record);
    return task;
}

void PackedTaskTest::theGoldenFile()
{
    const QByteArray golden = content(GOLDEN_FILE);
    const auto packed = packTask(goldenTask());
    QVERIFY2(packed, qPrintable(failure(packed)));
    QCOMPARE(packed.value().toHex(), golden.toHex());
    const auto task = unpackTask(golden, *m_catalog);
    QVERIFY2(task, qPrintable(failure(task)));
    QCOMPARE(spelled(task.value()), spelled(goldenTask()));
}

void PackedTaskTest::thePage()
{
    // The task the page shows, and the bytes it shows of it.
    const QString page = QString::fromUtf8(content(PAGE));
    const QString json = page.section("```json\n", 1, 1).section("```", 0, 0);
    const QString dump = page.section("```text\n", 1, 1).section("```", 0, 0);
    QByteArray bytes;
    for (const QString &line : dump.split('\n', Qt::SkipEmptyParts)) {
        const auto match =
            QRegularExpression("^(\\d{4})  ((?:[0-9a-f]{2} )*[0-9a-f]{2})   +[^ ].*$").match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line));
        QCOMPARE(match.captured(1).toInt(), bytes.size());
        bytes += QByteArray::fromHex(match.captured(2).toLatin1());
    }
    const auto object = parseJsonObject(json.toUtf8(), PAGE);
    QVERIFY(object);
    const auto task = TaskReader(*m_catalog).read(object.value());
    QVERIFY2(task, qPrintable(failure(task)));
    QCOMPARE(bytes.toHex(' '), packTask(task.value()).value().toHex(' '));
}

void PackedTaskTest::keepsValues_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, VarType type, const QVariant &value) {
        QTest::newRow(name) << int(type) << value;
    };
    using Ints = std::numeric_limits<int>;
    using Longs = std::numeric_limits<qlonglong>;
    using Doubles = std::numeric_limits<double>;
    for (int type = int(VarType::Int); type <= int(VarType::Table); ++type)
        QTest::addRow("no value, type %d", type) << type << QVariant();
    row("null text", VarType::String, QString());
    row("empty text", VarType::String, QString(""));
    row("first half of a pair", VarType::String, QString(QChar(0xD83D)));
    row("halves in the wrong order", VarType::String, QString(QChar(0xDE00)) + QChar(0xD83D));
    row("beyond the BMP", VarType::String, QString("\U0001F600"));
    row("zeros", VarType::String, QString(3, QChar(0)));
    row("byte order mark", VarType::String, QString(QChar(0xFEFF)) + "a");
    row("long text", VarType::String, QString(3000000, 'x'));
    row("smallest int", VarType::Int, Ints::min());
    row("largest int", VarType::Int, Ints::max());
    row("zero", VarType::Double, 0.0);
    row("minus zero", VarType::Double, -0.0);
    row("infinite", VarType::Double, Doubles::infinity());
    row("minus infinite", VarType::Double, -Doubles::infinity());
    row("not a number", VarType::Double, Doubles::quiet_NaN());
    row("not a number, with a sign", VarType::Double, fromBits(0xFFF8000000000000));
    row("not a number, with a payload", VarType::Double, fromBits(0x7FF8123456789ABC));
    row("smallest double", VarType::Double, Doubles::denorm_min());
    row("true", VarType::Bool, true);
    row("false", VarType::Bool, false);
    row("empty list", VarType::List, QVariantList());
    row("64-bit numbers", VarType::List, listOf({Longs::min(), Longs::max(), 9007199254740993LL}));
    row("narrow and wide", VarType::List, listOf({5, 5LL, 5.0}));
    row("all kinds", VarType::List,
        listOf({QVariant(), true, false, 1, 1LL, 1.5, QString(), "", QVariantList()}));
    row("lists in lists", VarType::List,
        listOf({listOf({listOf({}), listOf({"a"})}), listOf({1})}));
    row("deepest list", VarType::List, nested(1021));
    row("empty table", VarType::Table, QVariantList());
    row("table", VarType::Table, listOf({listOf({1, "a"}), QVariantList()}));
}

void PackedTaskTest::keepsValues()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    const Task task = withValue(static_cast<VarType>(type), value);
    const auto packed = packTask(task);
    QVERIFY2(packed, qPrintable(failure(packed)));
    const auto back = unpackTask(packed.value(), *m_catalog);
    QVERIFY2(back, qPrintable(failure(back)));
    QCOMPARE(back.value().variables.first().type, static_cast<VarType>(type));
    QCOMPARE(spelled(back.value()), spelled(task));
    QCOMPARE(packTask(back.value()).value(), packed.value());
}

void PackedTaskTest::keepsTheHostsState()
{
    for (const CatalogEntry &entry : m_catalog->entries()) {
        if (entry.typeId.startsWith("odd."))
            continue;
        Task task;
        task.steps.push_back(step(entry.typeId));
        QByteArray record = saveRecord(*task.steps.back());
        record.replace(0, 4, QByteArray::fromHex("80000001"));
        QCOMPARE(loadRecord(*task.steps.back(), record), QDataStream::Ok);
        const auto back = unpackTask(packTask(task).value(), *m_catalog);
        QVERIFY2(back, qPrintable(failure(back)));
        QCOMPARE(saveRecord(*back.value().steps.front()).toHex(), record.toHex());
    }
}

void PackedTaskTest::keepsEmptyRecords()
{
    Task task;
    task.steps.push_back(step("odd.silent"));
    task.steps.push_back(step("text.pad"));
    const auto packed = packTask(task);
    QCOMPARE(packed.value().mid(20).chopped(32),
             bytesOf(quint32(0), quint32(2), QString("odd.silent"), quint32(0), QString("text.pad"),
                     saveRecord(*task.steps.back())));
    const auto back = unpackTask(packed.value(), *m_catalog);
    QVERIFY2(back, qPrintable(failure(back)));
    QCOMPARE(spelled(back.value()), spelled(task));
}

void PackedTaskTest::readsEitherForm()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("任务"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(packTask(goldenTask()).value());
    file.close();
    const auto packed = TaskReader(*m_catalog).readFile(file.fileName());
    QVERIFY2(packed, qPrintable(failure(packed)));
    QCOMPARE(spelled(packed.value()), spelled(goldenTask()));

    QVERIFY(file.resize(100));
    const auto cut = TaskReader(*m_catalog).readFile(file.fileName());
    QVERIFY(!cut);
    QVERIFY(cut.problem().toString().startsWith(file.fileName() + ": is cut off after 100 bytes"));

    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"steps\": []}");
    file.close();
    QVERIFY(TaskReader(*m_catalog).readFile(file.fileName()));
}

void PackedTaskTest::readsOlderRecords()
{
    // Records of these texts and numbers have looked the same for a long time.
    const QByteArray content = packTask(goldenTask()).value().mid(20).chopped(32);
    for (const quint32 version : {quint32(QDataStream::Qt_4_6), quint32(QDataStream::Qt_5_0)}) {
        const auto task = unpackTask(sealed(content, version), *m_catalog);
        QVERIFY2(task, qPrintable(failure(task)));
        QCOMPARE(spelled(task.value()), spelled(goldenTask()));
    }
}

void PackedTaskTest::cannotPack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *rowName, const QString &name, VarType type,
                        const QVariant &value, Reason reason, const QString &text) {
        QTest::newRow(rowName) << name << int(type) << value << int(reason) << text;
    };
    const QString types = "expected int, double, string, bool, list, table";
    row("no name", {}, VarType::Int, {}, Reason::UnfitValue,
        "variables.: an empty name; expected a name");
    row("same name", "first", VarType::Int, {}, Reason::UnfitValue,
        "variables.first: a name that stands there already; expected another");
    row("no type", "a", VarType::None, {}, Reason::UnknownType, "variables.a.type: 0; " + types);
    row("newer type", "a", static_cast<VarType>(7), {}, Reason::UnknownType,
        "variables.a.type: 7; " + types);
    row("text for an int", "a", VarType::Int, "5", Reason::UnfitValue,
        "variables.a.value: the text \"5\"; expected a 32-bit number");
    row("wide number for an int", "a", VarType::Int, 5LL, Reason::UnfitValue,
        "variables.a.value: the 64-bit number 5; expected a 32-bit number");
    row("int for a double", "a", VarType::Double, 5, Reason::UnfitValue,
        "variables.a.value: the 32-bit number 5; expected a floating-point number");
    row("int for a text", "a", VarType::String, 5, Reason::UnfitValue,
        "variables.a.value: the 32-bit number 5; expected a text");
    row("int for a bool", "a", VarType::Bool, 1, Reason::UnfitValue,
        "variables.a.value: the 32-bit number 1; expected true or false");
    row("texts for a list", "a", VarType::List, QStringList("x"), Reason::UnfitValue,
        "variables.a.value: a value of the type QStringList; expected a list");
    row("flat table", "a", VarType::Table, listOf({listOf({}), 1}), Reason::UnfitValue,
        "variables.a.value: a list of length 2; expected a list of rows, each a list");
    row("bytes in a list", "a", VarType::List, listOf({QByteArray("x")}), Reason::UnfitValue,
        "variables.a.value: a value of the type QByteArray; "
        "expected a text, a number, true or false, or a list");
    row("too deep", "a", VarType::List, nested(1022), Reason::UnfitValue,
        "variables.a.value: more than 1021 lists within each other; expected fewer");
}

void PackedTaskTest::cannotPack()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(QVariant, value);
    Task task;
    task.variables = {{"first", VarType::Int, 1}, {name, static_cast<VarType>(type), value}};
    const auto packed = packTask(task);
    QVERIFY(!packed);
    QTEST(int(packed.problem().reason), "reason");
    QTEST(packed.problem().toString(), "text");
}

void PackedTaskTest::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QByteArray &bytes, Reason reason,
                        const QString &text) {
        QTest::newRow(name) << bytes << int(reason) << text;
    };
    const QByteArray valid = sealed(bytesOf(quint32(0), quint32(0)));
    QVERIFY(unpackTask(valid, *m_catalog));
    const auto with = [&](int offset, quint32 number) {
        return QByteArray(valid).replace(offset, 4, bytesOf(number));
    };

    // Of the whole, in the order in which it is looked at.
    const QString magic = "is no packed task; expected the bytes 89 54 41 53 4b 0d 0a 1a first";
    row("nothing", {}, Reason::UnknownFormat, magic);
    row("JSON", "{\"steps\": []}", Reason::UnknownFormat, magic);
    row("line ends changed", QByteArray(valid).replace("\r\n", "\n"), Reason::UnknownFormat, magic);
    row("newer format", with(8, 2), Reason::NewerFormat,
        "is of format 2; this program reads up to 1");
    row("newest format, and cut off", with(8, manyOfThem).left(12), Reason::NewerFormat,
        "is of format 4294967295; this program reads up to 1");
    row("format that never was", with(8, 0), Reason::UnknownFormat,
        "is of format 0; the first is 1");
    row("byte too few", valid.chopped(1), Reason::WrongLength,
        "is cut off after 59 bytes; expected 60");
    row("byte too many", valid + 'x', Reason::WrongLength, "has 61 bytes; expected 60");
    row("too large a length", with(12, manyOfThem), Reason::WrongLength,
        "is cut off after 60 bytes; expected 4294967295");
    row("too small a length", with(12, 59), Reason::WrongLength, "has 60 bytes; expected 59");
    row("true length of too few bytes", with(12, 59).left(59), Reason::WrongLength,
        "is cut off after 59 bytes; expected 60 or more");
    const QString altered = "has been altered; its checksum is that of other bytes";
    row("cut off within the length", valid.left(13), Reason::WrongLength,
        "is cut off after 13 bytes; expected 60 or more");
    row("altered", with(20, 1), Reason::AlteredFile, altered);
    row("altered checksum", valid.chopped(1) + char(valid.back() + 1), Reason::AlteredFile,
        altered);
    row("altered version of records", with(16, 20), Reason::AlteredFile, altered);
    row("newer records", sealed(bytesOf(quint32(0), quint32(0)), 20), Reason::NewerFormat,
        "has records of stream version 20; this program reads up to 19");
    row("newest records", sealed("12345678", manyOfThem), Reason::NewerFormat,
        "has records of stream version 4294967295; this program reads up to 19");
    row("records of no version", sealed(bytesOf(quint32(0), quint32(0)), 0),
        Reason::MalformedContent,
        "has records of stream version 0; expected a version from 1 to 19");

    // Of the variables.
    const auto malformed = [&](const char *name, const QByteArray &bytes, const QString &text) {
        row(name, bytes, Reason::MalformedContent, text);
    };
    const quint8 list = 7;
    const quint8 text = 6;
    const QByteArray none = bytesOf(quint8(0));
    malformed("many variables", sealed(bytesOf(manyOfThem, quint32(0))),
              "variables: 4294967295 of them; there is room for 0 at most");
    malformed("a variable too many", sealed(bytesOf(quint32(2), QString("a"), quint8(1)) + none),
              "variables: 2 of them; there is room for 1 at most");
    malformed("a name too long", sealed(bytesOf(quint32(1), quint32(500), quint32(0))),
              "variables[0]: a name beyond the end, or of half letters");
    malformed("half a letter", sealed(bytesOf(quint32(1), quint32(3), quint32(0), quint32(0))),
              "variables[0]: a name beyond the end, or of half letters");
    malformed("no value", sealed(bytesOf(quint32(1), QString("a"), quint8(1))),
              "variables.a.value: a value beyond the end, or a text of half letters");
    malformed("cut value", sealed(bytesOf(quint32(1), QString("a"), quint8(1), quint8(3))),
              "variables.a.value: a value beyond the end, or a text of half letters");
    malformed("unknown kind", withVariable("a", 1, bytesOf(quint8(8))),
              "variables.a.value: a value of kind 8; expected a kind from 0 to 7");
    malformed("a text too long", withVariable("a", 3, bytesOf(text, quint32(0x7FFFFFFE))),
              "variables.a.value: a value beyond the end, or a text of half letters");
    malformed("half a letter in a text", withVariable("a", 3, bytesOf(text, quint32(1), quint8(0))),
              "variables.a.value: a value beyond the end, or a text of half letters");
    malformed("a long list", withVariable("a", 5, bytesOf(list, manyOfThem)),
              "variables.a.value: a list of length 4294967295; there is room for 4");
    malformed("a list too long by one", withVariable("a", 5, bytesOf(list, quint32(5))),
              "variables.a.value: a list of length 5; there is room for 4");
    malformed("unknown kind in a list",
              withVariable("a", 5, bytesOf(list, quint32(2), quint8(1), quint8(9))),
              "variables.a.value: a value of kind 9; expected a kind from 0 to 7");
    QByteArray deep;
    for (int i = 0; i < 1000000; ++i)
        deep += bytesOf(list, quint32(1));
    malformed("lists in lists", withVariable("a", 5, deep + none),
              "variables.a.value: more than 1021 lists within each other; expected fewer");
    row("no name", withVariable("", 1, none), Reason::UnfitValue,
        "variables.: an empty name; expected a name");
    row("same name",
        sealed(bytesOf(quint32(2), QString("a"), quint8(1), quint8(0), QString("a"), quint8(2),
                       quint8(0), quint32(0))),
        Reason::UnfitValue, "variables.a: a name that stands there already; expected another");
    const QString types = "expected int, double, string, bool, list, table";
    row("no type", withVariable("a", 0, none), Reason::UnknownType,
        "variables.a.type: 0; " + types);
    row("unknown type of a variable", withVariable("a", 255, none), Reason::UnknownType,
        "variables.a.type: 255; " + types);
    row("unfit value", withVariable("a", 1, bytesOf(text, QString("x"))), Reason::UnfitValue,
        "variables.a.value: the text \"x\"; expected a 32-bit number");
    row("no value in a table", withVariable("a", 6, bytesOf(list, quint32(1)) + none),
        Reason::UnfitValue,
        "variables.a.value: a list of length 1; expected a list of rows, each a list");

    // Of the steps.
    malformed("no steps", sealed(bytesOf(quint32(1), QString("a"), quint8(1), quint8(0))),
              "steps: 0 of them; there is room for 0 at most");
    malformed("many steps", sealed(bytesOf(quint32(0), manyOfThem)),
              "steps: 4294967295 of them; there is room for 0 at most");
    malformed("a type too long", sealed(bytesOf(quint32(0), quint32(1), quint32(400), quint32(0))),
              "steps[0]: a type beyond the end, or of half letters");
    row("unknown type", sealed(bytesOf(quint32(0), quint32(1), QString("text.glue"), QByteArray())),
        Reason::UnknownType,
        "steps[0].type: \"text.glue\"; expected " + m_catalog->typeIds().join(", "));
    malformed("a record too long",
              sealed(bytesOf(quint32(0), quint32(1), QString("text.pad"), quint32(5), quint32(0))),
              "steps[0]: a record of 5 bytes; there is room for 4");
    malformed("no record", sealed(bytesOf(quint32(0), quint32(1), QString("text.pad"))),
              "steps[0]: a record of 0 bytes; there is room for 0");
    malformed("something behind the steps", sealed(bytesOf(quint32(0), quint32(0), quint8(0))),
              "steps: 1 bytes behind the last; expected none");
}

void PackedTaskTest::refuses()
{
    QFETCH(QByteArray, bytes);
    const auto task = unpackTask(bytes, *m_catalog);
    QVERIFY(!task);
    QTEST(task.problem().toString(), "text");
    QTEST(int(task.problem().reason), "reason");
}

void PackedTaskTest::refusesRecords_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QString>("text");
    const QByteArray pad = saveRecord(*step("text.pad"));
    const QByteArray odd = saveRecord(*step("odd.plain"));
    const auto row = [](const char *name, const char *type, const QByteArray &record,
                        const QString &text) { QTest::newRow(name) << type << record << text; };
    row("no byte", "text.pad", "",
        "steps[0]: text.pad cannot read its record of 0 bytes; it ends too early");
    row("a byte too few", "text.pad", pad.chopped(1),
        "steps[0]: text.pad cannot read its record of 27 bytes; it ends too early");
    row("a byte too many", "text.pad", pad + 'x',
        "steps[0]: text.pad cannot read its record of 29 bytes; it has 1 bytes too many");
    row("half a letter", "text.append", bytesOf(quint32(0), quint32(1), quint8(0)),
        "steps[0]: text.append cannot read its record of 9 bytes; it makes no sense");
    row("of an operation that reads too much", "odd.greedy", odd,
        "steps[0]: odd.greedy cannot read its record of 18 bytes; it ends too early");
    row("of an operation that reads too little", "odd.frugal", odd,
        "steps[0]: odd.frugal cannot read its record of 18 bytes; it has 4 bytes too many");
}

void PackedTaskTest::refusesRecords()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, record);
    const auto task = unpackTask(withStep(type, record), *m_catalog);
    QVERIFY(!task);
    QTEST(task.problem().toString(), "text");
    QCOMPARE(task.problem().reason, Reason::UnfitRecord);
}

void PackedTaskTest::cutOffAnywhere()
{
    const QByteArray whole = packTask(goldenTask()).value();
    for (int size = 1; size < whole.size(); ++size) {
        const auto task = unpackTask(whole.left(size), *m_catalog);
        QVERIFY2(!task, qPrintable(QString::number(size)));
        QCOMPARE(task.problem().reason, Reason::WrongLength);
        QVERIFY(isPackedTask(whole.left(size)));
    }
    // With a true length and a true checksum it is still not a task.
    const QByteArray content = whole.mid(20).chopped(32);
    for (int size = 0; size < content.size(); ++size)
        QVERIFY2(!unpackTask(sealed(content.left(size)), *m_catalog),
                 qPrintable(QString::number(size)));
}

void PackedTaskTest::everyBit()
{
    const QByteArray whole = packTask(goldenTask()).value();
    for (int i = 0; i < whole.size(); ++i) {
        for (const int bits : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xFF}) {
            QByteArray altered = whole;
            altered[i] = static_cast<char>(altered.at(i) ^ bits);
            const auto task = unpackTask(altered, *m_catalog);
            QVERIFY2(!task, qPrintable(QString::number(i)));
            const Reason reason = task.problem().reason;
            if (i < 8)
                QCOMPARE(reason, Reason::UnknownFormat);
            else if (i < 12)
                QVERIFY(reason == Reason::NewerFormat || reason == Reason::UnknownFormat);
            else
                QCOMPARE(reason, i < 16 ? Reason::WrongLength : Reason::AlteredFile);
        }
    }
}

void PackedTaskTest::anyBytes()
{
    // Whatever comes with a true length and a true checksum is read or refused. What is read can be
    // packed, and comes back.
    QRandomGenerator random(20260711);
    const QByteArray content = packTask(goldenTask()).value().mid(20).chopped(32);
    int readable = 0;
    for (int round = 0; round < 20000; ++round) {
        QByteArray bytes = content;
        for (int changes = 1 + random.bounded(4); changes > 0; --changes) {
            const int place = random.bounded(bytes.size());
            const QByteArray piece(random.bounded(3), static_cast<char>(random.bounded(256)));
            bytes.replace(place, random.bounded(3), piece);
        }
        if (round % 4 == 0) {
            for (char &byte : bytes)
                byte = static_cast<char>(random.bounded(round % 8 == 0 ? 256 : 8));
        }
        const auto task = unpackTask(sealed(bytes), *m_catalog);
        if (!task) {
            QVERIFY(!task.problem().message.isEmpty());
            continue;
        }
        ++readable;
        const auto packed = packTask(task.value());
        QVERIFY2(packed, qPrintable(failure(packed)));
        const auto back = unpackTask(packed.value(), *m_catalog);
        QVERIFY2(back, qPrintable(failure(back)));
        QCOMPARE(spelled(back.value()), spelled(task.value()));
    }
    QVERIFY2(readable > 1000, qPrintable(QString::number(readable)));
}

void PackedTaskTest::randomTasks()
{
    const OperationCatalog catalog({PLUGIN_FILE});
    RandomTask random(catalog, 4711, RandomTask::Values::Any);
    for (int round = 0; round < 3000; ++round) {
        const Task task = random.take();
        const auto packed = packTask(task);
        QVERIFY2(packed, qPrintable(failure(packed)));
        const auto back = unpackTask(packed.value(), catalog);
        QVERIFY2(back, qPrintable(failure(back)));
        QCOMPARE(spelled(back.value()), spelled(task));
        const auto again = packTask(back.value());
        QCOMPARE(again.value(), packed.value());
        // Either JSON says all of it, or what it does not is told.
        const auto text = taskToExactJson(task, catalog);
        if (!text)
            QCOMPARE(text.problem().reason, Reason::BeyondJson);
    }
}

void PackedTaskTest::throughJson()
{
    const OperationCatalog catalog({PLUGIN_FILE});
    RandomTask random(catalog, 815, RandomTask::Values::OfJson);
    for (int round = 0; round < 3000; ++round) {
        const auto json = taskToExactJson(random.take(), catalog);
        QVERIFY2(json, qPrintable(failure(json)));
        const auto object = parseJsonObject(json.value(), {});
        QVERIFY(object);
        const auto task = TaskReader(catalog).read(object.value());
        QVERIFY2(task, qPrintable(failure(task)));
        const auto packed = packTask(task.value());
        QVERIFY2(packed, qPrintable(failure(packed)));
        const auto back = unpackTask(packed.value(), catalog);
        QVERIFY2(back, qPrintable(failure(back)));
        QCOMPARE(spelled(back.value()), spelled(task.value()));
        const auto again = taskToExactJson(back.value(), catalog);
        QVERIFY2(again, qPrintable(failure(again)));
        QCOMPARE(again.value(), json.value());
    }
}

void PackedTaskTest::beyondJson_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text"); // empty where JSON says the value
    const auto row = [](const char *name, VarType type, const QVariant &value,
                        const QString &text) {
        QTest::newRow(name) << int(type) << value
                            << (text.isEmpty() ? text : "variables.a.value" + text);
    };
    using Longs = std::numeric_limits<qlonglong>;
    const QString comesBack = "; as JSON it would come back as ";
    row("no value", VarType::String, {}, {});
    row("empty text", VarType::String, "", {});
    row("null text", VarType::String, QString(), ": a null text" + comesBack + "the text \"\"");
    row("byte order mark", VarType::String, QString(QChar(0xFEFF)) + "a", {});
    row("half a pair", VarType::String, QString(QChar(0xDC00)), {});
    row("fraction", VarType::Double, 0.1, {});
    row("whole double", VarType::Double, 3.0, {});
    row("large double", VarType::Double, 9223372036854775808.0, {});
    row("infinite", VarType::Double, -std::numeric_limits<double>::infinity(), {});
    row("not a number", VarType::Double, std::numeric_limits<double>::quiet_NaN(), {});
    row("minus zero", VarType::Double, -0.0, {});
    row("another NaN", VarType::Double, fromBits(0xFFF8000000000000),
        ": no number (of the bits fff8000000000000)" + comesBack +
            "no number (of the bits 7ff8000000000000)");
    row("54 bits", VarType::List, listOf({1, 9007199254740993LL}), {});
    row("64 bits", VarType::List, listOf({Longs::max(), Longs::min(), 1LL << 60}), {});
    row("wider than need be", VarType::List, listOf({5LL}),
        "[0]: the 64-bit number 5" + comesBack + "the 32-bit number 5");
    row("whole double in a list", VarType::List, listOf({2.0, 1e300, -0.0, 1e18}), {});
    row("infinite in a list", VarType::List,
        listOf({"a", listOf({std::numeric_limits<double>::infinity()})}),
        "[1][0]: the floating-point number inf" + comesBack + "the text \"inf\"");
    row("nothing in a list", VarType::List, listOf({QVariant()}),
        "[0]: no value" + comesBack + "the text \"\"");
    row("null text in a list", VarType::List, listOf({QString()}),
        "[0]: a null text" + comesBack + "the text \"\"");
    row("wide number in a table", VarType::Table, listOf({listOf({}), listOf({true, 7LL})}),
        "[1][1]: the 64-bit number 7" + comesBack + "the 32-bit number 7");
}

void PackedTaskTest::beyondJson()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    const Task task = withValue(static_cast<VarType>(type), value);
    const auto json = taskToExactJson(task, *m_catalog);
    QCOMPARE(failure(json), text);
    if (!json)
        QCOMPARE(json.problem().reason, Reason::BeyondJson);
}

void PackedTaskTest::stepsBeyondJson_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("record"); // empty for the defaults
    QTest::addColumn<QString>("text");      // empty where JSON says the step
    const auto row = [](const char *name, const char *type, const QByteArray &record,
                        const QString &text) { QTest::newRow(name) << type << record << text; };
    const auto append = [](const QString &source) {
        return bytesOf(quint32(0), source, QString(), QString());
    };
    const auto odd = [](const QStringList &tags, const QString &text, quint32 hidden) {
        return bytesOf(quint32(0), tags, text, hidden);
    };
    row("defaults", "text.append", {}, {});
    row("null text where that is the default", "text.append", append({}), {});
    row("empty text where null is the default", "text.append", append(""), {});
    row("host's state", "text.append", append("a").replace(0, 4, "1234"), {});
    row("odd defaults", "odd.plain", {}, {});
    row("empty text where that is not the default", "odd.plain", odd({}, "", 0), {});
    row("null text where that is not the default", "odd.plain", odd({}, {}, 0),
        "steps[1].text: a null text; as JSON it would come back as the text \"\"");
    row("property of another type", "odd.plain", odd({"a"}, "x", 0),
        "steps[1].tags: [\"a\"]; "
        "expected nothing: a property of type QStringList cannot stand in a task file");
    row("more than properties", "odd.plain", odd({}, "x", 9),
        "steps[1]: odd.plain keeps more than its properties; JSON has only these");
}

void PackedTaskTest::stepsBeyondJson()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, record);
    QFETCH(QString, text);
    Task task;
    task.steps.push_back(step("text.pad"));
    task.steps.push_back(step(type));
    if (!record.isEmpty())
        QCOMPARE(loadRecord(*task.steps.back(), record), QDataStream::Ok);
    const auto json = taskToExactJson(task, *m_catalog);
    QCOMPARE(failure(json), text);
    if (!json)
        QCOMPARE(json.problem().reason, Reason::BeyondJson);
}

void PackedTaskTest::nestingAsDeepAsJson()
{
    // What can be packed is never too deep for JSON, and the other way round.
    QVERIFY(taskToExactJson(withValue(VarType::List, nested(1021)), *m_catalog));
    const auto tooDeep = taskToExactJson(withValue(VarType::List, nested(1022)), *m_catalog);
    QVERIFY(!tooDeep);
    QCOMPARE(tooDeep.problem().reason, Reason::BeyondJson);
    QVERIFY2(tooDeep.problem().message.contains("within each other"), qPrintable(failure(tooDeep)));

    Task twice = withValue(VarType::Int, 1);
    twice.variables.append(twice.variables.first());
    QCOMPARE(failure(taskToExactJson(twice, *m_catalog)),
             QString("line 9, column 9: malformed JSON (the key \"a\" for the second time; "
                     "expected each key once)"));
}

QTEST_GUILESS_MAIN(PackedTaskTest)

#include "PackedTaskTest.moc"
