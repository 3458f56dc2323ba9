#include "refhost/validator/checks/ThreadsCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/trials/MemoryLimit.h"
#include "refhost/validator/trials/RandomSource.h"
#include "refhost/validator/trials/RandomTask.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

#include "Operation.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace {

constexpr int threadCount = 4;
constexpr int taskCount = 40;
constexpr int roundCount = 10;

/// What a task does on one thread.
struct Expectation
{
    VariableScope after;
    QList<LoggedMessage> messages;
};

/// The tasks of one thread: steps and scopes of its own.
using Tasks = std::vector<Task>;

Tasks makeTasks(Specimen &specimen, quint32 seed)
{
    RandomSource source(seed, specimen.name());
    Tasks tasks;
    tasks.reserve(taskCount);
    for (int i = 0; i < taskCount; ++i)
        tasks.push_back(randomTask(source, specimen));
    return tasks;
}

Expectation runOnce(const Task &task)
{
    Expectation result;
    result.after = task.startScope();
    result.messages = traceStep(*task.steps.front(), result.after).messages;
    return result;
}

bool isAsExpected(const Task &task, const Expectation &expected)
{
    const Expectation result = runOnce(task);
    return areSame(result.after, expected.after) && result.messages == expected.messages;
}

/// Runs the tasks of all threads at the same time. How many runs did something else than expected.
int countDeviations(const std::vector<Tasks> &allTasks, const std::vector<Expectation> &expected)
{
    std::atomic<int> deviations = 0;
    std::atomic<int> waiting = threadCount;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < allTasks.size(); ++i) {
        threads.emplace_back([&, i] {
            --waiting;
            while (waiting > 0)
                std::this_thread::yield();
            // At each moment the threads are at different tasks.
            for (std::size_t run = i; run < i + roundCount * expected.size(); ++run) {
                const std::size_t index = run % expected.size();
                if (!isAsExpected(allTasks[i][index], expected[index]))
                    ++deviations;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    return deviations;
}

} // namespace

ThreadsCheck::ThreadsCheck()
    : OperationCheck({QStringLiteral("hostile.threads"), 5,
                      QStringLiteral("Steps on several threads do what they do on one.")},
                     Needs::CloneAndResultVariable)
{
}

void ThreadsCheck::examine(Specimen &specimen, CheckContext &context) const
{
    // Below the least that a size of 2^31 bytes takes: whether such a step fails must not depend on
    // what the other threads do.
    constexpr int mebibytes = 2047;
    limitMemory(mebibytes);
    specimen.doing(QStringLiteral("doOperation of random steps on one thread"));
    std::vector<Tasks> tasks;
    tasks.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i)
        tasks.push_back(makeTasks(specimen, context.seed()));
    std::vector<Expectation> expected;
    std::transform(tasks.front().begin(), tasks.front().end(), std::back_inserter(expected),
                   runOnce);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (!isAsExpected(tasks.front()[i], expected[i])) {
            specimen.remark(QStringLiteral("does different things on one thread; not checked"));
            return;
        }
    }
    specimen.doing(QStringLiteral("doOperation of random steps on %1 threads").arg(threadCount));
    const int deviations = countDeviations(tasks, expected);
    if (deviations > 0) {
        specimen.fail(QStringLiteral("%1 of %2 runs on %3 threads at once gave something else")
                          .arg(deviations)
                          .arg(threadCount * roundCount * taskCount)
                          .arg(threadCount));
    }
}
