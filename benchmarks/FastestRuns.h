#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Keeps the fastest repetition of each benchmark that it is told about, and prints nothing.
class FastestRuns : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;

    /// The processor time of one call in the fastest repetition, in nanoseconds.
    double nanoseconds(const std::string &benchmark) const;

private:
    std::map<std::string, double> m_nanoseconds;
};
