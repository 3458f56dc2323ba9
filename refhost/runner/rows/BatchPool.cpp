#include "refhost/runner/rows/BatchPool.h"

#include <new>
#include <system_error>
#include <utility>

BatchPool::BatchPool(const std::vector<WorkMaker> &makers, Sink sink, std::function<void()> stopped)
    : m_sink(std::move(sink))
    , m_stopped(std::move(stopped))
    , m_mostWaiting(2 * makers.size() + 2)
{
    startThreads(makers);
}

BatchPool::~BatchPool()
{
    joinThreads();
}

void BatchPool::startThreads(const std::vector<WorkMaker> &makers)
{
    m_threads.reserve(makers.size());
    try {
        for (const WorkMaker &maker : makers)
            m_threads.emplace_back([this, maker] { work(maker); });
    } catch (const std::system_error &) {
        if (m_threads.empty())
            throw std::bad_alloc();
    }
}

bool BatchPool::add(RowBatch batch)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] {
        return m_isStopped || static_cast<std::size_t>(m_added - m_next) < m_mostWaiting;
    });
    if (m_isStopped)
        return false;
    ++m_added;
    m_batches.push_back(std::move(batch));
    m_changed.notify_all();
    return true;
}

void BatchPool::finish()
{
    joinThreads();
    if (m_isOutOfMemory)
        throw std::bad_alloc();
}

void BatchPool::joinThreads()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isFinished = true;
        m_changed.notify_all();
    }
    for (std::thread &thread : m_threads)
        thread.join();
    m_threads.clear();
}

void BatchPool::work(const WorkMaker &maker)
{
    try {
        runBatches(maker);
    } catch (const std::bad_alloc &) {
        const std::lock_guard lock(m_mutex);
        m_isOutOfMemory = true;
        stop();
    }
}

void BatchPool::runBatches(const WorkMaker &maker)
{
    const Work run = maker();
    RowBatch batch;
    while (takeBatch(batch))
        handOver(batch.number, run(batch));
}

/// With the mutex locked.
void BatchPool::stop()
{
    m_isStopped = true;
    m_changed.notify_all();
    m_stopped();
}

/// Waits for a batch. False when there will be none.
bool BatchPool::takeBatch(RowBatch &batch)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isStopped || m_isFinished || !m_batches.empty(); });
    if (m_isStopped || m_batches.empty())
        return false;
    batch = std::move(m_batches.front());
    m_batches.pop_front();
    return true;
}

/// Keeps the outcome until its turn comes. The thread that has the outcome whose turn it is calls
/// the sink, for all that follow as well; the others find no such outcome meanwhile, and go on. So
/// a slow sink keeps one thread busy and no other waiting.
void BatchPool::handOver(qint64 number, RowBatchOutcome outcome)
{
    std::unique_lock lock(m_mutex);
    m_outcomes.emplace(number, std::move(outcome));
    for (auto first = m_outcomes.find(m_next); first != m_outcomes.end() && !m_isStopped;
         first = m_outcomes.find(m_next)) {
        const RowBatchOutcome current = std::move(first->second);
        m_outcomes.erase(first);
        lock.unlock();
        const bool wantsMore = m_sink(current);
        lock.lock();
        ++m_next;
        m_changed.notify_all();
        if (!wantsMore)
            stop();
    }
}
