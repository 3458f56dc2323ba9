#include "tests/support/QuietTest.h"

#include "VariableScope.h"

#include <QtTest>

class VariableScopeTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void undeclared();
    void declareWithValue();
    void emptyValues_data();
    void emptyValues();
    void redeclare();
    void remove();
    void unknownType();
    void namesAreExact();
    void copiesAreIndependent();
    void movedFromIsEmptyAndUsable();
    void writtenNames();
    void writtenNamesOfCopies();
    void redeclaringForgetsTheWrite();
    void namesWithTheMark();
    void manyRounds();
};

void VariableScopeTest::undeclared()
{
    VariableScope scope;
    QVERIFY(!scope.get("a").isValid());
    QCOMPARE(scope.typeOf("a"), VarType::None);
    scope.set("a", 1);
    QVERIFY(!scope.get("a").isValid());
    QCOMPARE(scope.names(), QStringList());
    QCOMPARE(scope.writtenNames(), QStringList());
}

void VariableScopeTest::declareWithValue()
{
    VariableScope scope;
    scope.declare("b", VarType::String, "text");
    scope.declare("a", VarType::Int, 7);
    QCOMPARE(scope.typeOf("b"), VarType::String);
    QCOMPARE(scope.get("b"), QVariant("text"));
    QCOMPARE(scope.names(), QStringList({"a", "b"}));
    scope.set("b", "other");
    QCOMPARE(scope.get("b"), QVariant("other"));
    scope.set("b", QVariant());
    QVERIFY(!scope.get("b").isValid());
    QCOMPARE(scope.typeOf("b"), VarType::String);
}

void VariableScopeTest::emptyValues_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("int") << 1 << QVariant(0);
    QTest::newRow("double") << 2 << QVariant(0.0);
    QTest::newRow("string") << 3 << QVariant(QString(""));
    QTest::newRow("bool") << 4 << QVariant(false);
    QTest::newRow("list") << 5 << QVariant(QVariantList());
    QTest::newRow("table") << 6 << QVariant(QVariantList());
}

void VariableScopeTest::emptyValues()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    VariableScope scope;
    scope.declare("v", static_cast<VarType>(type));
    QCOMPARE(scope.get("v"), value);
    QCOMPARE(scope.get("v").userType(), value.userType());
}

void VariableScopeTest::redeclare()
{
    VariableScope scope;
    scope.declare("v", VarType::String, "text");
    scope.set("v", "other");
    scope.declare("v", VarType::Double);
    QCOMPARE(scope.typeOf("v"), VarType::Double);
    QCOMPARE(scope.get("v"), QVariant(0.0));
    QCOMPARE(scope.writtenNames(), QStringList());
}

void VariableScopeTest::remove()
{
    VariableScope scope;
    scope.declare("v", VarType::String, "text");
    scope.declare("v", VarType::None);
    QCOMPARE(scope.names(), QStringList());
    QVERIFY(!scope.get("v").isValid());
}

void VariableScopeTest::unknownType()
{
    VariableScope scope;
    scope.declare("v", static_cast<VarType>(7));
    QCOMPARE(static_cast<int>(scope.typeOf("v")), 7);
    QVERIFY(!scope.get("v").isValid());
    scope.set("v", 2.5);
    QCOMPARE(scope.get("v"), QVariant(2.5));
}

void VariableScopeTest::namesAreExact()
{
    VariableScope scope;
    scope.declare("Name", VarType::Int, 1);
    scope.declare(" Name", VarType::Int, 2);
    scope.declare("变量", VarType::Int, 3);
    scope.declare("", VarType::Int, 4);
    QCOMPARE(scope.get("Name"), QVariant(1));
    QCOMPARE(scope.get(" Name"), QVariant(2));
    QCOMPARE(scope.get("变量"), QVariant(3));
    QCOMPARE(scope.get(""), QVariant(4));
    QCOMPARE(scope.typeOf("name"), VarType::None);
}

void VariableScopeTest::copiesAreIndependent()
{
    VariableScope original;
    original.declare("v", VarType::Int, 1);
    VariableScope copy = original;
    copy.set("v", 2);
    QCOMPARE(original.get("v"), QVariant(1));
    QCOMPARE(copy.get("v"), QVariant(2));
    original = copy;
    copy.declare("w", VarType::Int);
    QCOMPARE(original.get("v"), QVariant(2));
    QCOMPARE(original.names(), QStringList({"v"}));
}

void VariableScopeTest::movedFromIsEmptyAndUsable()
{
    VariableScope original;
    original.declare("v", VarType::Int, 1);
    VariableScope moved = std::move(original);
    QCOMPARE(moved.get("v"), QVariant(1));
    VariableScope assigned;
    assigned.declare("x", VarType::Int);
    assigned = std::move(moved);
    QCOMPARE(assigned.names(), QStringList({"v"}));

    VariableScope source;
    source.declare("v", VarType::Int, 1);
    const VariableScope target(std::move(source));
    // NOLINTNEXTLINE(bugprone-use-after-move,clang-analyzer-cplusplus.Move): what is tested
    QCOMPARE(source.names(), QStringList());
    source.declare("again", VarType::Bool, true);
    QCOMPARE(source.get("again"), QVariant(true));
    QCOMPARE(target.names(), QStringList({"v"}));
}

void VariableScopeTest::writtenNames()
{
    VariableScope scope;
    scope.declare("a", VarType::Int, 1);
    scope.declare("b", VarType::Int, 1);
    scope.declare("c", VarType::Int, 1);
    scope.set("c", 1);
    scope.set("a", 2);
    QCOMPARE(scope.writtenNames(), QStringList({"a", "c"}));
    scope.forgetWrites();
    QCOMPARE(scope.writtenNames(), QStringList());
    QCOMPARE(scope.get("a"), QVariant(2));
}

void VariableScopeTest::writtenNamesOfCopies()
{
    VariableScope original;
    original.declare("a", VarType::Int);
    original.declare("b", VarType::Int);
    original.set("a", 1);
    VariableScope copy = original;
    copy.set("b", 1);
    QCOMPARE(original.writtenNames(), QStringList({"a"}));
    QCOMPARE(copy.writtenNames(), QStringList({"a", "b"}));
    original.forgetWrites();
    QCOMPARE(original.writtenNames(), QStringList());
    QCOMPARE(copy.writtenNames(), QStringList({"a", "b"}));
    const VariableScope moved = std::move(copy);
    QCOMPARE(moved.writtenNames(), QStringList({"a", "b"}));
    original = moved;
    original.forgetWrites();
    original.set("a", 2);
    QCOMPARE(original.writtenNames(), QStringList({"a"}));
}

void VariableScopeTest::redeclaringForgetsTheWrite()
{
    VariableScope scope;
    scope.declare("v", VarType::Int);
    scope.set("v", 1);
    scope.declare("v", VarType::None);
    QCOMPARE(scope.writtenNames(), QStringList());
    scope.forgetWrites();
    scope.declare("v", VarType::Int);
    QCOMPARE(scope.writtenNames(), QStringList());
    scope.set("v", 1);
    scope.declare("v", VarType::String);
    QCOMPARE(scope.writtenNames(), QStringList());
    scope.set("v", "x");
    QCOMPARE(scope.writtenNames(), QStringList({"v"}));
}

void VariableScopeTest::namesWithTheMark()
{
    // The scope keeps notes of its own under a name that begins with this code unit.
    const QString mark(QChar(0xFFFF));
    VariableScope scope;
    QVERIFY(!scope.get(mark).isValid());
    scope.set(mark, 1);
    scope.declare("a", VarType::Int, 1);
    scope.set("a", 2);
    QCOMPARE(scope.names(), QStringList({"a"}));
    QCOMPARE(scope.typeOf(mark), VarType::None);
    QVERIFY(!scope.get(mark).isValid());
    scope.declare(mark, VarType::String, "one");
    scope.declare(mark + mark, VarType::String, "two");
    scope.declare(mark + "a", VarType::String, "three");
    scope.set(mark, "four");
    QCOMPARE(scope.get(mark), QVariant("four"));
    QCOMPARE(scope.get(mark + mark), QVariant("two"));
    QCOMPARE(scope.get(mark + "a"), QVariant("three"));
    QCOMPARE(scope.names(), QStringList({"a", mark, mark + "a", mark + mark}));
    QCOMPARE(scope.writtenNames(), QStringList({"a", mark}));
    scope.forgetWrites();
    QCOMPARE(scope.writtenNames(), QStringList());
    scope.declare(mark, VarType::None);
    QCOMPARE(scope.names(), QStringList({"a", mark + "a", mark + mark}));
}

void VariableScopeTest::manyRounds()
{
    // A round costs what was written in it. Were it a walk over all variables, this would take
    // minutes; the limit is far above what it takes.
    constexpr int count = 50'000;
    VariableScope scope;
    for (int i = 0; i < count; ++i)
        scope.declare(QString::number(i), VarType::Int);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < count; ++i) {
        scope.forgetWrites();
        scope.set(QString::number(i), i);
        QCOMPARE(scope.writtenNames(), QStringList(QString::number(i)));
    }
    QVERIFY2(clock.elapsed() < 20'000, "a round costs more than what was written in it");
}

QTEST_GUILESS_MAIN(VariableScopeTest)

#include "VariableScopeTest.moc"
