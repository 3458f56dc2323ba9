#include "tests/support/QuietTest.h"

#include "refhost/runner/rows/BatchPool.h"

#include <QtTest>

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

/// Batches on several threads.
class BatchPoolTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheOrder_data();
    void keepsTheOrder();
    void keepsFewBatches();
    void stopsWhenNoMoreAreWanted();
    void makesAndDeletesWorkOnItsThread();
    void withoutBatches();
    void outOfMemory();
};

namespace {

RowBatch batch(qint64 number)
{
    RowBatch batch;
    batch.number = number;
    batch.lines = QByteArray::number(number);
    return batch;
}

/// Takes longer for some batches than for others.
RowBatchOutcome echo(const RowBatch &batch)
{
    std::this_thread::sleep_for(std::chrono::microseconds(batch.number % 7 * 50));
    RowBatchOutcome outcome;
    outcome.output = batch.lines;
    return outcome;
}

std::vector<BatchPool::WorkMaker> workers(int count, const BatchPool::Work &work)
{
    return {static_cast<std::size_t>(count), [work] { return work; }};
}

} // namespace

void BatchPoolTest::keepsTheOrder_data()
{
    QTest::addColumn<int>("threads");

    for (const int threads : {1, 2, 5, 16})
        QTest::addRow("%d threads", threads) << threads;
}

void BatchPoolTest::keepsTheOrder()
{
    QFETCH(int, threads);

    QList<QByteArray> taken;
    QList<QByteArray> expected;
    std::atomic<int> takers = 0;
    BatchPool pool(
        workers(threads, echo),
        [&](const RowBatchOutcome &outcome) {
            // One thread at a time: else the list and this number would be in trouble.
            const bool alone = ++takers == 1;
            taken.append(alone ? outcome.output : QByteArray("not alone"));
            --takers;
            return true;
        },
        [] {});
    for (int i = 0; i < 1000; ++i) {
        expected.append(QByteArray::number(i));
        QVERIFY(pool.add(batch(i)));
    }
    pool.finish();
    QCOMPARE(taken, expected);
}

void BatchPoolTest::keepsFewBatches()
{
    std::atomic<int> added = 0;
    std::atomic<int> taken = 0;
    std::atomic<int> most = 0;
    BatchPool pool(
        workers(3, echo),
        [&](const RowBatchOutcome &) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            most = std::max<int>(most, added - taken);
            ++taken;
            return true;
        },
        [] {});
    for (int i = 0; i < 200; ++i) {
        QVERIFY(pool.add(batch(i)));
        ++added;
    }
    pool.finish();
    QCOMPARE(int(taken), 200);
    QVERIFY2(most <= 9, qPrintable(QString::number(most)));
}

void BatchPoolTest::stopsWhenNoMoreAreWanted()
{
    QList<QByteArray> taken;
    std::atomic<int> stops = 0;
    BatchPool pool(
        workers(4, echo),
        [&](const RowBatchOutcome &outcome) {
            taken.append(outcome.output);
            return taken.size() < 10;
        },
        [&] { ++stops; });
    qint64 number = 0;
    while (pool.add(batch(number)))
        ++number;
    pool.finish();
    QCOMPARE(taken.size(), 10);
    QCOMPARE(taken.last(), QByteArray("9"));
    QVERIFY(number >= 10);
    QCOMPARE(int(stops), 1);
}

void BatchPoolTest::makesAndDeletesWorkOnItsThread()
{
    struct Tool
    {
        std::thread::id owner = std::this_thread::get_id();
        std::atomic<int> *strays = nullptr;
        ~Tool() { *strays += std::this_thread::get_id() != owner ? 1 : 0; }
    };
    std::atomic<int> strays = 0;
    const BatchPool::WorkMaker maker = [&strays]() -> BatchPool::Work {
        const auto tool = std::make_shared<Tool>();
        tool->strays = &strays;
        return [tool](const RowBatch &given) {
            *tool->strays += std::this_thread::get_id() != tool->owner ? 1 : 0;
            return echo(given);
        };
    };
    {
        BatchPool pool(
            {maker, maker, maker}, [](const RowBatchOutcome &) { return true; }, [] {});
        for (int i = 0; i < 100; ++i)
            QVERIFY(pool.add(batch(i)));
    }
    QCOMPARE(int(strays), 0);
}

void BatchPoolTest::withoutBatches()
{
    BatchPool pool(
        workers(2, echo), [](const RowBatchOutcome &) { return true; }, [] {});
    pool.finish();
}

void BatchPoolTest::outOfMemory()
{
    const BatchPool::Work failing = [](const RowBatch &given) {
        if (given.number == 20)
            throw std::bad_alloc();
        return echo(given);
    };
    std::atomic<int> stops = 0;
    int taken = 0;
    BatchPool pool(
        workers(3, failing),
        [&](const RowBatchOutcome &) {
            ++taken;
            return true;
        },
        [&] { ++stops; });
    qint64 number = 0;
    while (pool.add(batch(number)))
        ++number;
    QVERIFY_EXCEPTION_THROWN(pool.finish(), std::bad_alloc);
    QVERIFY(taken <= 20);
    QCOMPARE(int(stops), 1);
}

QTEST_GUILESS_MAIN(BatchPoolTest)
#include "BatchPoolTest.moc"
