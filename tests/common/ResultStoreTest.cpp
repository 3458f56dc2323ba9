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

QTEST_GUILESS_MAIN(ResultStoreTest)

#include "ResultStoreTest.moc"
