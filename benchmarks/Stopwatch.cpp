#include "benchmarks/Stopwatch.h"

#include "benchmarks/FastestRuns.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

namespace {

void startLibrary()
{
    std::string program = "textoper-bench";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    char *arguments[] = {program.data(), interleaving.data(), nullptr};
    int count = 2;
    benchmark::Initialize(&count, arguments);
}

benchmark::internal::Benchmark *registered(const std::string &name, const Stopwatch::Work &work)
{
    auto *added = benchmark::RegisterBenchmark(name.c_str(), [&work](benchmark::State &state) {
        for ([[maybe_unused]] auto turn : state)
            work();
    });
    return added->Unit(benchmark::kNanosecond);
}

} // namespace

Stopwatch::Stopwatch(const Effort &effort)
    : m_effort(effort)
{
    startLibrary();
}

std::vector<double> Stopwatch::once(const std::vector<Work> &works) const
{
    benchmark::ClearRegisteredBenchmarks();
    for (std::size_t i = 0; i < works.size(); ++i)
        registered(std::to_string(i), works[i])->Iterations(1);
    FastestRuns runs;
    benchmark::RunSpecifiedBenchmarks(&runs, ".");
    std::vector<double> figures;
    for (std::size_t i = 0; i < works.size(); ++i)
        figures.push_back(runs.nanoseconds(std::to_string(i)));
    return figures;
}

std::vector<double> Stopwatch::repeated(const std::vector<Work> &works,
                                        const std::vector<double> &calls) const
{
    std::vector<double> figures = calls;
    std::vector<std::size_t> repeatable;
    for (std::size_t i = 0; i < works.size(); ++i) {
        if (!isTooLong(calls[i]))
            repeatable.push_back(i);
    }
    if (repeatable.empty())
        return figures;
    benchmark::ClearRegisteredBenchmarks();
    for (const std::size_t i : repeatable) {
        registered(std::to_string(i), works[i])
            ->MinTime(m_effort.repetitionTime)
            ->Repetitions(repetitions(calls[i]));
    }
    FastestRuns runs;
    benchmark::RunSpecifiedBenchmarks(&runs, ".");
    for (const std::size_t i : repeatable)
        figures[i] = runs.nanoseconds(std::to_string(i));
    return figures;
}

bool Stopwatch::isTooLong(double call) const
{
    return call > m_effort.callLimit * 1e9;
}

int Stopwatch::repetitions(double call) const
{
    const double affordable = m_effort.figureTime * 1e9 / call;
    return affordable < m_effort.repetitions ? std::max(2, static_cast<int>(affordable))
                                             : m_effort.repetitions;
}
