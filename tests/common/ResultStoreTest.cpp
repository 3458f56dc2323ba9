#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include "operations/common/ResultStore.h"

#include "VariableScope.h"

#include <QtTest>

class ResultStoreTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void stores();
    void refuses_data();
    void refuses();
    void withoutScopeOrName();
    void quotesTheName_data();
    void quotesTheName();
    void storesNumbers_data();
    void storesNumbers();
    void refusesNumbers_data();
    void refusesNumbers();
    void numberWithoutScopeOrName();
};

void ResultStoreTest::stores()
{
    VariableScope scope;
    scope.declare("r", VarType::String, "old");
    QVERIFY(storeStringResult(&scope, "r", "新"));
    QCOMPARE(scope.get("r"), QVariant("新"));
    QCOMPARE(scope.get("r").userType(), int(QMetaType::QString));
    QVERIFY(storeStringResult(&scope, "r", ""));
    QCOMPARE(scope.get("r"), QVariant(""));
}

void ResultStoreTest::refuses_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("undeclared") << 0;
    QTest::newRow("int") << 1;
    QTest::newRow("double") << 2;
    QTest::newRow("bool") << 4;
    QTest::newRow("list") << 5;
    QTest::newRow("table") << 6;
    QTest::newRow("unknown type") << 7;
}

void ResultStoreTest::refuses()
{
    QFETCH(int, type);
    VariableScope scope;
    scope.declare("n", static_cast<VarType>(type));
    const QVariant before = scope.get("n");
    QVERIFY(!storeStringResult(&scope, "n", "x"));
    QCOMPARE(takeWarnings(), QStringList("[TextOp] 变量 \"n\" 未声明为字符串，已跳过"));
    QCOMPARE(scope.get("n"), before);
    QCOMPARE(scope.writtenNames(), QStringList());
}

void ResultStoreTest::withoutScopeOrName()
{
    VariableScope scope;
    scope.declare("", VarType::String, "old");
    QVERIFY(!storeStringResult(nullptr, "r", "x"));
    QVERIFY(!storeStringResult(&scope, "", "x"));
    QCOMPARE(scope.get(""), QVariant("old"));
}

void ResultStoreTest::quotesTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("chinese") << "结果"
                             << "\"结果\"";
    QTest::newRow("dollar") << "$r"
                            << "\"$r\"";
    QTest::newRow("spaces") << " r "
                            << "\" r \"";
    QTest::newRow("quote") << "a\"b"
                           << "\"a\\\"b\"";
    QTest::newRow("line feed") << "a\nb"
                               << "\"a\\nb\"";
    QTest::newRow("percent") << "%1"
                             << "\"%1\"";
}

void ResultStoreTest::quotesTheName()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    VariableScope scope;
    QVERIFY(!storeStringResult(&scope, name, "x"));
    QCOMPARE(takeWarnings(), QStringList("[TextOp] 变量 " + shown + " 未声明为字符串，已跳过"));
}

void ResultStoreTest::storesNumbers_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("number");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("int") << 1 << 4.0 << QVariant(4);
    QTest::newRow("int, rounded") << 1 << 2.5 << QVariant(3);
    QTest::newRow("double") << 2 << -3.7 << QVariant(-3.7);
    QTest::newRow("string") << 3 << 0.1 << QVariant("0.1");
    QTest::newRow("bool") << 4 << 0.0 << QVariant(false);
    QTest::newRow("bool, nan") << 4 << qQNaN() << QVariant(true);
    QTest::newRow("table is emptied") << 6 << 5.0 << QVariant(QVariantList());
    QTest::newRow("unknown type") << 7 << 5.0 << QVariant(5.0);
}

void ResultStoreTest::storesNumbers()
{
    QFETCH(int, type);
    QFETCH(double, number);
    QFETCH(QVariant, expected);
    VariableScope scope;
    scope.declare("v", static_cast<VarType>(type), listOf({listOf({"old"})}));
    QVERIFY(storeNumberResult(&scope, "v", number));
    QCOMPARE(scope.get("v"), expected);
    QCOMPARE(scope.get("v").userType(), expected.userType());
}

void ResultStoreTest::refusesNumbers_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("end");
    QTest::newRow("undeclared") << 0 << "未声明，已跳过写入";
    QTest::newRow("list") << 5 << "数值类型不匹配，已跳过写入";
}

void ResultStoreTest::refusesNumbers()
{
    QFETCH(int, type);
    QFETCH(QString, end);
    VariableScope scope;
    scope.declare("变量", static_cast<VarType>(type));
    QVERIFY(!storeNumberResult(&scope, "变量", 5.0));
    QCOMPARE(takeWarnings(), QStringList("[TextOp] 变量 \"变量\" " + end));
    QCOMPARE(scope.writtenNames(), QStringList());
}

void ResultStoreTest::numberWithoutScopeOrName()
{
    VariableScope scope;
    scope.declare("", VarType::Int);
    QVERIFY(!storeNumberResult(nullptr, "v", 5.0));
    QVERIFY(!storeNumberResult(&scope, "", 5.0));
    QCOMPARE(scope.writtenNames(), QStringList());
}

QTEST_GUILESS_MAIN(ResultStoreTest)

#include "ResultStoreTest.moc"
