#include "measure/report.h"

#include "measure/pair.h"

#include <cstdio>

namespace calvix::benchmarks
{

std::string Duration(double nanoseconds)
{
    char text[32];
    if (nanoseconds < 999.5)
        std::snprintf(text, sizeof(text), "%.3g ns", nanoseconds);
    else if (nanoseconds < 999.5e3)
        std::snprintf(text, sizeof(text), "%.3g us", nanoseconds / 1e3);
    else if (nanoseconds < 999.5e6)
        std::snprintf(text, sizeof(text), "%.3g ms", nanoseconds / 1e6);
    else
        std::snprintf(text, sizeof(text), "%.3g s", nanoseconds / 1e9);
    return text;
}

Results Results::Of(const std::string& group) const
{
    Results results;
    for (const std::string& name : names)
    {
        if (name.compare(0, group.size(), group) != 0)
            continue;
        results.names.push_back(name.substr(group.size()));
        results.figures[results.names.back()] = figures.at(name);
    }
    return results;
}

bool Report::ReportContext(const Context& context)
{
    std::printf("%d processors; load average when it began:", context.cpu_info.num_cpus);
    for (const double load : context.cpu_info.load_avg)
        std::printf(" %.2f", load);
    std::printf("\n\n");
    std::fflush(stdout);
    return true;
}

void Report::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        if (run.error_occurred)
        {
            m_hasErrors = true;
            std::fprintf(stderr, "%s: %s\n", run.run_name.function_name.c_str(), run.error_message.c_str());
        }
        else if (run.run_type == Run::RT_Iteration)
            Keep(run);
    }
}

void Report::Keep(const Run& run)
{
    const std::string& name = run.run_name.function_name;
    if (m_figures.count(name) == 0)
        m_names.push_back(name);
    Figures& figures = m_figures[name];
    figures["time"].push_back(run.real_accumulated_time / static_cast<double>(run.iterations) * 1e9);
    for (const auto& [counter, value] : run.counters)
        figures[counter].push_back(value.value);
}

void Report::Finalize()
{
    const Results all{m_names, m_figures};
    PrintMethods(all);
    PrintGrowth(all.Of("growth/"));
    PrintShares(all.Of("share/"));
    PrintSimulator(all.Of("simulator/"));
    std::fflush(stdout);
}

} // namespace calvix::benchmarks
