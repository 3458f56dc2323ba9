#include "tests/hostile/FailingAllocation.h"
#include "tests/support/ListOf.h"
#include "tests/support/Steps.h"

#include "VariableScope.h"

#include <QtTest>

#include <algorithm>
#include <memory>

namespace {

int warningCount = 0;
QString lastWarning;

/// The handler is the host's, and the host has memory.
void collectWarning(QtMsgType, const QMessageLogContext &, const QString &line)
{
    FailingAllocation::disarm();
    ++warningCount;
    lastWarning = line;
}

} // namespace

/// Lets the first, the second, the third ... allocation of a step fail until there is none left to
/// fail. Whichever it is, the step ends with one warning and writes nothing.
class FailingAllocationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void once_data() { addSteps(); }
    void once();
    void forGood_data() { addSteps(); }
    void forGood();

private:
    static void addSteps();
    static VariableScope makeScope();
    /// Runs the step with a failing allocation; false when it has come to its end without one.
    static bool runFailing(int count, bool forGood, VariableScope &scope);
    /// Whether the variables are as the step leaves them when nothing fails.
    static bool isAsExpected(const VariableScope &scope);
};

void FailingAllocationTest::addSteps()
{
    QTest::addColumn<QString>("typeId");
    QTest::addColumn<QVariantMap>("settings");
    const auto row = [](const char *name, const char *typeId, const QVariantMap &settings) {
        QTest::newRow(name) << QString(typeId) << settings;
    };
    const QVariantMap source{{"sourceText", "$s"}};
    const auto with = [&](const QVariantMap &more) {
        QVariantMap settings = source;
        for (auto setting = more.cbegin(); setting != more.cend(); ++setting)
            settings.insert(setting.key(), setting.value());
        return settings;
    };
    row("append", "text.append", with({{"appendText", "$words"}}));
    row("substring", "text.substring", with({{"startIndex", "$n"}, {"charCount", "5"}}));
    row("pad", "text.pad", with({{"padText", "xyz"}, {"position", 1}, {"index", "3"}}));
    row("between", "text.between",
        with({{"cutMode", 2}, {"startMarker", "the"}, {"endMarker", "E"}, {"ignoreCase", true}}));
    row("trim", "text.trim", with({{"mode", 3}}));
    row("reverse", "text.reverse", source);
    row("case", "text.case", source);
    row("case, growing", "text.case", {{"sourceText", "$growing"}});
    row("to number", "text.toNumber", {{"sourceText", "$n"}, {"resultVar", "i"}});
    row("to number as text", "text.toNumber", {{"sourceText", "$n"}});
    row("no number", "text.toNumber", with({{"resultVar", "i"}}));
    row("from number", "text.fromNumber", {{"value", "$n"}, {"decimals", "2000"}});
    row("from number, grouped", "text.fromNumber", {{"value", "1e9"}, {"useGrouping", true}});
    row("join", "text.join", {{"listVar", "words"}, {"separator", "$n"}});
    row("split", "text.split", with({{"splitMode", 1}, {"separator", "e"}, {"resultVar", "l"}}));
    row("split by width", "text.split", with({{"width", "7"}, {"resultVar", "l"}}));
    row("find", "text.find",
        with({{"searchText", "OVER"}, {"ignoreCase", true}, {"resultVar", "i"}}));
    row("replace", "text.replace", with({{"oldText", "e"}, {"newText", "$words"}}));
    row("replace first", "text.replace",
        with({{"oldText", "E"}, {"newText", "--"}, {"ignoreCase", true}, {"replaceScope", 1}}));
    row("unknown mode", "text.trim", with({{"mode", 9}}));
    row("unfit result variable", "text.reverse", with({{"resultVar", "l"}}));
    row("no result variable", "text.reverse", with({{"resultVar", ""}}));
}

VariableScope FailingAllocationTest::makeScope()
{
    VariableScope scope;
    scope.declare("s", VarType::String, QString(" The quick fox jumps over the dog.").repeated(60));
    scope.declare("growing", VarType::String, QString(3000, QChar(0xDF)));
    scope.declare("n", VarType::Double, 2.5);
    scope.declare("words", VarType::List, listOf({"one", 2, listOf({"three", listOf({4.5})})}));
    scope.declare("r", VarType::String, QString("before"));
    scope.declare("l", VarType::List);
    scope.declare("i", VarType::Int);
    return scope;
}

bool FailingAllocationTest::runFailing(int count, bool forGood, VariableScope &scope)
{
    QFETCH(QString, typeId);
    QFETCH(QVariantMap, settings);
    const std::unique_ptr<Operation> step = makeStep(typeId, settings);
    step->setVariableScope(&scope);
    warningCount = 0;
    const QtMessageHandler previous = qInstallMessageHandler(collectWarning);
    FailingAllocation::arm(count, forGood);
    step->doOperation();
    const bool failed = FailingAllocation::disarm();
    qInstallMessageHandler(previous);
    return failed;
}

bool FailingAllocationTest::isAsExpected(const VariableScope &scope)
{
    VariableScope expected = makeScope();
    constexpr int never = 1 << 30;
    runFailing(never, false, expected);
    for (const QString &name : expected.names()) {
        if (scope.get(name) != expected.get(name))
            return false;
    }
    return scope.writtenNames() == expected.writtenNames();
}

void FailingAllocationTest::once()
{
    constexpr int mostAllocations = 5000;
    for (int count = 1; count < mostAllocations; ++count) {
        VariableScope scope = makeScope();
        if (!runFailing(count, false, scope)) {
            QVERIFY2(count > 1, "nothing was allocated");
            QVERIFY(warningCount == 1 || !scope.writtenNames().isEmpty());
            QVERIFY(isAsExpected(scope));
            return;
        }
        const int warnings = warningCount;
        if (warnings == 0 && isAsExpected(scope))
            continue; // the C library gets along without some of its own
        QCOMPARE(warnings, 1);
        QVERIFY2(lastWarning.endsWith("结果过大，已跳过"), qPrintable(lastWarning));
        QCOMPARE(scope.writtenNames(), QStringList());
    }
    QFAIL("there is no end of allocations");
}

/// With no memory left at all not even the warning can be made; the host goes on.
void FailingAllocationTest::forGood()
{
    constexpr int mostAllocations = 5000;
    for (int count = 1; count < mostAllocations; ++count) {
        VariableScope scope = makeScope();
        if (!runFailing(count, true, scope)) {
            QVERIFY2(count > 1, "nothing was allocated");
            QVERIFY(isAsExpected(scope));
            return;
        }
        QCOMPARE(warningCount, 0);
        QCOMPARE(scope.writtenNames(), QStringList());
    }
    QFAIL("there is no end of allocations");
}

QTEST_GUILESS_MAIN(FailingAllocationTest)

#include "FailingAllocationTest.moc"
