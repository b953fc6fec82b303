#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace calvix::benchmarks
{

/// What the repetitions of one benchmark gave: a number a repetition for each of its counters.
using Figures = std::map<std::string, std::vector<double>>;

/// Collects the runs and prints them at the end as Markdown tables: of each figure the middle one of the repetitions.
class Report final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// Whether a benchmark could not be measured.
    bool HasErrors() const { return m_hasErrors; }

private:
    void Keep(const Run& run);

    std::vector<std::string> m_names; ///< in the order of the runs
    std::map<std::string, Figures> m_figures;
    bool m_hasErrors = false;
};

/// The benchmarks whose names begin with `group`, without it, in order.
struct Results
{
    std::vector<std::string> names;
    std::map<std::string, Figures> figures;

    Results Of(const std::string& group) const;
};

void PrintMethods(const Results& all);
void PrintGrowth(const Results& growth);
void PrintShares(const Results& shares);
void PrintSimulator(const Results& simulator);

/// "31.4 ns", "2.08 us".
std::string Duration(double nanoseconds);

} // namespace calvix::benchmarks
