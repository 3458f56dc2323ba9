#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"
#include "tests/support/Steps.h"

#include "VariableScope.h"

#include <QtTest>

#include <memory>
#include <thread>
#include <vector>

/// Steps of their own in scopes of their own on several threads: they share nothing that changes.
class StepThreadsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void resultsAreThoseOfOneThread();

private:
    using Steps = std::vector<std::unique_ptr<Operation>>;

    static Steps makeSteps();
    static VariableScope makeScope();
    static QVariantList results(const Steps &steps);
};

/// One step of every operation; those that search ignore case, which is prepared at the first use.
StepThreadsTest::Steps StepThreadsTest::makeSteps()
{
    const QVariantMap settings{
        {"sourceText", "$s"},   {"appendText", "$words"}, {"startIndex", "7"}, {"padText", "--"},
        {"cutMode", 1},         {"startMarker", "OVER"},  {"mode", 2},         {"value", "$n"},
        {"decimals", "3"},      {"listVar", "words"},     {"splitMode", 1},    {"separator", "dog"},
        {"searchText", "LAZY"}, {"ignoreCase", true},     {"oldText", "THE"},  {"newText", "a"}};
    Steps steps = makeAllSteps();
    for (const auto &step : steps) {
        const QString type = step->typeId();
        applySettings(*step, settings);
        step->setProperty("resultVar", "r");
        if (type == "text.split")
            step->setProperty("resultVar", "l");
        if (type == "text.find")
            step->setProperty("resultVar", "i");
        if (type == "text.toNumber")
            step->setProperty("sourceText", "$n");
    }
    return steps;
}

VariableScope StepThreadsTest::makeScope()
{
    VariableScope scope;
    scope.declare("s", VarType::String,
                  QString("The quick brown fox jumps over the lazy dog. ").repeated(40));
    scope.declare("n", VarType::Double, 12.5);
    scope.declare("words", VarType::List, listOf({"one", 2, listOf({"three"})}));
    scope.declare("r", VarType::String);
    scope.declare("l", VarType::List);
    scope.declare("i", VarType::Int);
    return scope;
}

QVariantList StepThreadsTest::results(const Steps &steps)
{
    VariableScope scope = makeScope();
    QVariantList results;
    for (const auto &step : steps) {
        step->setVariableScope(&scope);
        step->doOperation();
        results.append(scope.get(step->property("resultVar").toString()));
    }
    return results;
}

void StepThreadsTest::resultsAreThoseOfOneThread()
{
    constexpr int threadCount = 4;
    constexpr int rounds = 100;
    std::vector<QVariantList> firstResults(threadCount);
    std::vector<int> deviations(threadCount);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            const Steps steps = makeSteps();
            firstResults[i] = results(steps);
            for (int round = 1; round < rounds; ++round)
                deviations[i] += results(steps) == firstResults[i] ? 0 : 1;
        });
    }
    for (std::thread &thread : threads)
        thread.join();

    const Steps steps = makeSteps();
    const QVariantList expected = results(steps);
    // A step without settings that it needs would be no test; a new one adds them above.
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const QString resultVar = steps[i]->property("resultVar").toString();
        QVERIFY2(expected.at(int(i)) != makeScope().get(resultVar),
                 qPrintable(steps[i]->typeId() + " has no result"));
    }
    for (std::size_t i = 0; i < threadCount; ++i) {
        QCOMPARE(firstResults[i], expected);
        QCOMPARE(deviations[i], 0);
    }
    QCOMPARE(expected.at(11), QVariant(35));
}

QTEST_GUILESS_MAIN(StepThreadsTest)

#include "StepThreadsTest.moc"
