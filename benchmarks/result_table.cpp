#include "result_table.h"

#include <cmath>
#include <cstdio>
#include <set>

namespace calvix::benchmarks
{

namespace
{

/// A benchmark's name: method, then, of the matching methods, lists and matches.
struct NameParts
{
    std::string method;
    std::string lists;
    std::string matches;
};

NameParts Split(const std::string& name)
{
    NameParts parts;
    const std::size_t first = name.find('/');
    parts.method = name.substr(0, first);
    if (first == std::string::npos)
        return parts;
    const std::size_t second = name.find('/', first + 1);
    parts.lists = name.substr(first + 1, second - first - 1);
    parts.matches = name.substr(second + 1);
    return parts;
}

std::string Duration(double nanoseconds)
{
    char text[32];
    if (std::abs(nanoseconds) < 1e4)
        std::snprintf(text, sizeof(text), "%.1f ns", nanoseconds);
    else if (std::abs(nanoseconds) < 1e7)
        std::snprintf(text, sizeof(text), "%.1f us", nanoseconds / 1e3);
    else
        std::snprintf(text, sizeof(text), "%.1f ms", nanoseconds / 1e6);
    return text;
}

/// The shortest time so far; 0 stands for none.
void KeepShorter(double& shortest, double time)
{
    if (shortest == 0 || time < shortest)
        shortest = time;
}

} // namespace

bool ResultTable::ReportContext(const Context& context)
{
    std::printf("%d processors; load average", context.cpu_info.num_cpus);
    for (const double load : context.cpu_info.load_avg)
        std::printf(" %.2f", load);
    std::printf("; %s\n\n", "shortest of the repetitions, processor time of one call");
    std::fflush(stdout);
    return true;
}

void ResultTable::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        if (run.error_occurred)
        {
            m_hasErrors = true;
            std::printf("%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
        }
        else if (run.run_type == Run::RT_Iteration)
            Keep(run);
    }
}

void ResultTable::Keep(const Run& run)
{
    const std::string& full = run.run_name.function_name;
    const std::size_t slash = full.rfind('/');
    Times& times = m_times[full.substr(0, slash)];
    const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9;
    if (full.substr(slash + 1) == "bare")
        return KeepShorter(times.bare, time);
    KeepShorter(times.ours, time);
    times.allocations = run.counters.at("allocations").value;
}

void ResultTable::PrintRow(const std::string& name, const Times& times) const
{
    const NameParts parts = Split(name);
    const double ratio = times.bare > 0 ? times.ours / times.bare : 0;
    std::printf("%-27s %13s %7s %11s %11s %7.2f %11s %7.0f\n", parts.method.c_str(), parts.lists.c_str(),
                parts.matches.c_str(), Duration(times.ours).c_str(), Duration(times.bare).c_str(), ratio,
                Duration(times.ours - times.bare).c_str(), times.allocations);
}

/// How the time of a method grows when ten times as many networks are visible to the same 1,000 profiles.
void ResultTable::PrintGrowth() const
{
    std::set<std::string> seen;
    for (const std::string& name : m_names)
    {
        const std::string method = Split(name).method;
        const auto few = m_times.find(method + "/1000x100/100");
        const auto sameMatches = m_times.find(method + "/1000x1000/100");
        const auto allMatch = m_times.find(method + "/1000x1000/1000");
        const bool complete = few != m_times.end() && sameMatches != m_times.end() && allMatch != m_times.end();
        if (!complete || !seen.insert(method).second)
            continue;
        if (seen.size() == 1)
            std::printf("\n1,000 x 1,000 against 1,000 x 100    same 100 matches    every network matches\n"
                        "                                       library   bare          library   bare\n");
        const Times& base = few->second;
        std::printf("%-36s %9.2f %6.2f %16.2f %6.2f\n", method.c_str(), sameMatches->second.ours / base.ours,
                    sameMatches->second.bare / base.bare, allMatch->second.ours / base.ours,
                    allMatch->second.bare / base.bare);
    }
}

void ResultTable::Finalize()
{
    std::printf("%-27s %13s %7s %11s %11s %7s %11s %7s\n", "method", "profiles x", "matches", "library", "bare",
                "library", "library", "heap");
    std::printf("%-27s %13s %7s %11s %11s %7s %11s %7s\n", "", "networks", "", "", "calls", "/ bare", "- bare",
                "blocks");
    for (const std::string& name : m_names)
    {
        const auto found = m_times.find(name);
        if (found != m_times.end())
            PrintRow(name, found->second);
    }
    PrintGrowth();
    std::printf("\nBare calls: the platform calls that the method has to make, made directly. Heap blocks: how many "
                "the library\n"
                "itself takes in one call.\n");
    std::fflush(stdout);
}

} // namespace calvix::benchmarks
