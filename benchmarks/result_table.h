#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace calvix::benchmarks
{

/// Collects the runs of paired benchmarks and prints them side by side: of each, the shortest of its repetitions in
/// processor time, which is what comes through when other programs share the machine.
class ResultTable final : public benchmark::BenchmarkReporter
{
public:
    /// Prints the pairs in the order of `names`.
    explicit ResultTable(std::vector<std::string> names) : m_names(std::move(names)) {}

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// Whether a benchmark could not be measured.
    bool HasErrors() const { return m_hasErrors; }

private:
    /// The two sides of a pair, in nanoseconds a call; 0 where it was not measured.
    struct Times
    {
        double ours = 0;
        double bare = 0;
        double allocations = 0;
    };

    void Keep(const Run& run);
    void PrintRow(const std::string& name, const Times& times) const;
    void PrintGrowth() const;

    std::vector<std::string> m_names;
    std::map<std::string, Times> m_times;
    bool m_hasErrors = false;
};

} // namespace calvix::benchmarks
