#pragma once

#include "refhost/runner/rows/RowBatch.h"
#include "refhost/runner/rows/RowBatchOutcome.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

/// Runs batches on several threads, and hands the outcomes over in the order of the batches. No
/// more batches than a few for each thread are kept, however many come.
class BatchPool
{
public:
    /// Runs one batch.
    using Work = std::function<RowBatchOutcome(const RowBatch &)>;
    /// Makes the work of one thread; called on that thread, and what it made is deleted there.
    using WorkMaker = std::function<Work()>;
    /// Takes an outcome, on one thread at a time. False when no more are wanted.
    using Sink = std::function<bool(const RowBatchOutcome &)>;

    /// Starts a thread for each of `makers`, or as many as the system allows; throws std::bad_alloc
    /// when it allows none. `stopped` is called, on any thread, once no more batches are wanted.
    BatchPool(const std::vector<WorkMaker> &makers, Sink sink, std::function<void()> stopped);

    /// Waits for the threads.
    ~BatchPool();

    /// Adds a batch, numbered in sequence from 0; waits while there are too many. False when no
    /// more are wanted.
    bool add(RowBatch batch);

    /// Waits until all batches are through. None may be added any more. Throws std::bad_alloc when
    /// one of them did not fit into memory.
    void finish();

private:
    Q_DISABLE_COPY_MOVE(BatchPool)

    void startThreads(const std::vector<WorkMaker> &makers);
    void joinThreads();
    void work(const WorkMaker &maker);
    void runBatches(const WorkMaker &maker);
    void stop();
    bool takeBatch(RowBatch &batch);
    void handOver(qint64 number, RowBatchOutcome outcome);

    const Sink m_sink;
    const std::function<void()> m_stopped;
    const std::size_t m_mostWaiting;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<RowBatch> m_batches;               ///< not begun
    std::map<qint64, RowBatchOutcome> m_outcomes; ///< whose turn has not come
    qint64 m_next = 0;                            ///< the number of the batch whose turn it is
    qint64 m_added = 0;
    bool m_isFinished = false;
    bool m_isStopped = false;
    bool m_isOutOfMemory = false;
    std::vector<std::thread> m_threads;
};
