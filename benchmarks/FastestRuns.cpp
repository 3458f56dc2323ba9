#include "benchmarks/FastestRuns.h"

#include <algorithm>

bool FastestRuns::ReportContext(const Context & /*context*/)
{
    return true;
}

void FastestRuns::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        const double time = run.GetAdjustedCPUTime();
        const auto [known, isNew] = m_nanoseconds.emplace(run.run_name.function_name, time);
        if (!isNew)
            known->second = std::min(known->second, time);
    }
}

double FastestRuns::nanoseconds(const std::string &benchmark) const
{
    return m_nanoseconds.at(benchmark);
}
