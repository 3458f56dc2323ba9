#include "refhost/runner/supervision/RunProgress.h"

#include "refhost/engine/StepGuard.h"
#include "refhost/runner/supervision/CrashMark.h"

#include <QHash>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

#ifdef Q_OS_UNIX
#    include <sys/mman.h>
#endif

namespace {

RunProgress *ownProgress = nullptr;
thread_local ThreadProgress *threadProgress = nullptr;

/// Returns zeroed memory, of which only what is used takes room; null where there is none.
void *zeroedMemory(std::size_t size)
{
#ifdef Q_OS_UNIX
    void *const memory =
        mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? nullptr : memory;
#else
    return std::calloc(1, size);
#endif
}

void add(std::atomic<qint64> &count, qint64 more)
{
    // Only one thread writes it, so that no locked addition is needed.
    count.store(count.load(std::memory_order_relaxed) + more, std::memory_order_relaxed);
}

} // namespace

void ThreadProgress::beginRow(qint64 number)
{
    line.store(number, std::memory_order_relaxed);
    add(moment, 1);
}

void ThreadProgress::endRow(const RowTally &row)
{
    add(rows, row.rows);
    add(failed, row.failed);
    add(warnings, row.warnings);
    add(failedSteps, row.failedSteps);
    add(moment, 1);
}

RowTally ThreadProgress::tally() const
{
    return {rows.load(), failed.load(), warnings.load(), failedSteps.load()};
}

void RunProgress::Text::set(const QByteArray &text)
{
    const auto size = std::min(static_cast<std::size_t>(text.size()), bytes.size() - 1);
    std::copy_n(text.constData(), size, bytes.begin());
    bytes.at(size) = '\0';
}

RunProgress &RunProgress::current()
{
    if (!ownProgress && !renew())
        throw std::bad_alloc();
    return *ownProgress;
}

RunProgress *RunProgress::renew()
{
    void *const memory = zeroedMemory(sizeof(RunProgress));
    // Without an initialiser the memory stays untouched, that is zero.
    ownProgress = memory ? new (memory) RunProgress : nullptr;
    threadProgress = nullptr;
    return ownProgress;
}

ThreadProgress &RunProgress::ofThisThread()
{
    if (!threadProgress) {
        RunProgress &run = current();
        const auto next = static_cast<std::size_t>(run.threadCount.fetch_add(1));
        threadProgress = &run.threads.at(std::min(next, mostThreads - 1));
        markStepsOfThisThread(&threadProgress->step);
        useOwnSignalStack();
    }
    return *threadProgress;
}

void RunProgress::markThisThread()
{
    if (threadProgress)
        threadProgress->isEnding.store(true, std::memory_order_relaxed);
}

void RunProgress::setSteps(const QString &sourceName, const QStringList &steps)
{
    source.set(sourceName.toUtf8());
    QHash<QString, int> numbers;
    const auto count = std::min(static_cast<std::size_t>(steps.size()), mostSteps);
    for (std::size_t i = 0; i < count; ++i) {
        const QString &name = steps.at(static_cast<int>(i));
        int &number = numbers[name];
        if (number == 0 && static_cast<std::size_t>(numbers.size()) <= names.size()) {
            number = numbers.size();
            names.at(static_cast<std::size_t>(number) - 1).set(name.toUtf8());
        }
        stepNames.at(i).store(number, std::memory_order_relaxed);
    }
}

QString RunProgress::stepName(int index) const
{
    const auto place = static_cast<std::size_t>(index);
    const int number = place < mostSteps ? stepNames.at(place).load() : 0;
    return number == 0 ? QString() : names.at(static_cast<std::size_t>(number) - 1).get();
}

void RunProgress::addTemporaryFile(const QByteArray &path)
{
    for (auto &file : temporaryFiles) {
        if (file.bytes.front() == '\0') {
            file.set(path);
            return;
        }
    }
}

void RunProgress::removeTemporaryFiles() const
{
    for (const auto &file : temporaryFiles) {
        if (file.bytes.front() != '\0')
            std::remove(file.bytes.data());
    }
}
