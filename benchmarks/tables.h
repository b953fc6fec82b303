#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace calvix::benchmarks
{

/// Collects the runs and prints them at the end as Markdown tables. Of each figure the least counts: whatever else the
/// machine does only makes the others larger.
class Tables final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// Whether a benchmark could not be measured.
    bool HasErrors() const { return m_hasErrors; }

private:
    using Figures = std::map<std::string, double>; ///< nanoseconds a call, and the benchmark's counters

    void Keep(const std::string& name, const std::string& figure, double value);
    std::vector<std::string> NamesIn(const std::string& group) const;
    void PrintMethods() const;
    void PrintGrowth() const;
    void PrintSimulator() const;

    std::map<std::string, Figures> m_figures;
    std::map<std::int64_t, std::string> m_names; ///< in the order of their registration
    bool m_hasErrors = false;
};

} // namespace calvix::benchmarks
