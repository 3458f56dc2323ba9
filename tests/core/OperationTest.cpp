#include "tests/support/PlainOperation.h"
#include "tests/support/QuietTest.h"
#include "tests/support/Records.h"

#include "VariableScope.h"

#include <QtTest>

#include <memory>

class OperationTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void fresh();
    void baseRecord();
    void truncatedRecord();
    void scopeReachesAllChildren();
    void childAccess();
    void changingTheParent();
    void deletedChildLeavesItsParent();
    void deletedParentIsForgotten();
    void qtParentOwns();
};

namespace {

void place(Operation &child, Operation &parent)
{
    parent.children().append(&child);
    child.setParentOperation(&parent);
}

} // namespace

void OperationTest::fresh()
{
    PlainOperation operation;
    QVERIFY(!operation.isContainer());
    QCOMPARE(operation.childCount(), 0);
    QVERIFY(operation.children().isEmpty());
    QVERIFY(!operation.parentOperation());
    QVERIFY(!operation.currentScope());
    QVERIFY(!operation.parent());
    QCOMPARE(operation.state(), 0U);
}

void OperationTest::baseRecord()
{
    PlainOperation operation;
    operation.setState(0x01020304);
    const QByteArray big = saveRecord(operation);
    const QByteArray little = saveRecord(operation, {QDataStream::LittleEndian});
    QCOMPARE(big, QByteArray("\x01\x02\x03\x04"));
    QCOMPARE(little, QByteArray("\x04\x03\x02\x01"));

    PlainOperation loaded;
    QCOMPARE(loadRecord(loaded, big), QDataStream::Ok);
    QCOMPARE(loaded.state(), 0x01020304U);
}

void OperationTest::truncatedRecord()
{
    PlainOperation operation;
    QCOMPARE(loadRecord(operation, QByteArray("\x01\x02")), QDataStream::ReadPastEnd);
}

void OperationTest::scopeReachesAllChildren()
{
    PlainOperation top(true);
    PlainOperation inner(true);
    PlainOperation leaf;
    PlainOperation other;
    place(inner, top);
    place(leaf, inner);
    place(other, top);
    top.children().append(nullptr);

    VariableScope scope;
    top.setVariableScope(&scope);
    QCOMPARE(top.currentScope(), &scope);
    QCOMPARE(inner.currentScope(), &scope);
    QCOMPARE(leaf.currentScope(), &scope);
    QCOMPARE(other.currentScope(), &scope);

    inner.setVariableScope(nullptr);
    QVERIFY(!inner.currentScope());
    QVERIFY(!leaf.currentScope());
    QCOMPARE(top.currentScope(), &scope);
    QCOMPARE(other.currentScope(), &scope);
}

void OperationTest::childAccess()
{
    PlainOperation top(true);
    PlainOperation first;
    PlainOperation second;
    place(first, top);
    place(second, top);
    QVERIFY(top.isContainer());
    QCOMPARE(top.childCount(), 2);
    QCOMPARE(top.childAt(0), &first);
    QCOMPARE(top.childAt(1), &second);
    QVERIFY(!top.childAt(2));
    QVERIFY(!top.childAt(-1));
}

void OperationTest::changingTheParent()
{
    PlainOperation first(true);
    PlainOperation second(true);
    PlainOperation child;
    place(child, first);
    QCOMPARE(child.parentOperation(), &first);
    child.setParentOperation(&first);
    QCOMPARE(first.childCount(), 1);

    place(child, second);
    QCOMPARE(first.childCount(), 0);
    QCOMPARE(second.childCount(), 1);
    QCOMPARE(child.parentOperation(), &second);

    child.setParentOperation(nullptr);
    QCOMPARE(second.childCount(), 0);
    QVERIFY(!child.parentOperation());
}

void OperationTest::deletedChildLeavesItsParent()
{
    PlainOperation top(true);
    {
        PlainOperation child;
        place(child, top);
        QCOMPARE(top.childCount(), 1);
    }
    QCOMPARE(top.childCount(), 0);
}

void OperationTest::deletedParentIsForgotten()
{
    PlainOperation elsewhere(true);
    PlainOperation child;
    PlainOperation moved;
    {
        PlainOperation top(true);
        place(child, top);
        top.children().append(&moved);
        moved.setParentOperation(&elsewhere);
        top.children().append(nullptr);
    }
    QVERIFY(!child.parentOperation());
    QCOMPARE(moved.parentOperation(), &elsewhere);
}

void OperationTest::qtParentOwns()
{
    auto top = std::make_unique<PlainOperation>(true);
    auto *const child = new PlainOperation;
    child->setParent(top.get());
    place(*child, *top);
    const QPointer<QObject> watch(child);
    top.reset();
    QVERIFY(watch.isNull());
}

QTEST_GUILESS_MAIN(OperationTest)

#include "OperationTest.moc"
