#include "tables.h"

#include <algorithm>
#include <cstdio>

namespace calvix::benchmarks
{

namespace
{

/// "31.4 ns", "2.08 us".
std::string Duration(double nanoseconds)
{
    constexpr const char* kUnits[] = {"ns", "us", "ms"};
    std::size_t unit = 0;
    for (; nanoseconds >= 999.5 && unit < 2; ++unit)
        nanoseconds /= 1000;
    char text[32];
    std::snprintf(text, sizeof(text), nanoseconds < 999.5 ? "%.3g %s" : "%.0f %s", nanoseconds, kUnits[unit]);
    return text;
}

std::string WithoutLastPart(const std::string& name)
{
    return name.substr(0, name.rfind('/'));
}

std::string LastPart(const std::string& name)
{
    return name.substr(name.rfind('/') + 1);
}

} // namespace

bool Tables::ReportContext(const Context& context)
{
    std::printf("%d processors; load average when it began:", context.cpu_info.num_cpus);
    for (const double load : context.cpu_info.load_avg)
        std::printf(" %.2f", load);
    std::printf("\n\n");
    std::fflush(stdout);
    return true;
}

void Tables::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        const std::string& name = run.run_name.function_name;
        if (run.error_occurred)
        {
            m_hasErrors = true;
            std::fprintf(stderr, "%s: %s\n", name.c_str(), run.error_message.c_str());
        }
        else if (run.run_type == Run::RT_Iteration)
        {
            m_names[run.family_index] = name;
            Keep(name, "time", run.real_accumulated_time / static_cast<double>(run.iterations) * 1e9);
            for (const auto& [counter, value] : run.counters)
                Keep(name, counter, value);
        }
    }
}

void Tables::Keep(const std::string& name, const std::string& figure, double value)
{
    const auto [kept, isFirst] = m_figures[name].try_emplace(figure, value);
    if (!isFirst)
        kept->second = (std::min)(kept->second, value);
}

void Tables::Finalize()
{
    PrintMethods();
    PrintGrowth();
    PrintSimulator();
    std::fflush(stdout);
}

std::vector<std::string> Tables::NamesIn(const std::string& group) const
{
    std::vector<std::string> names;
    for (const auto& [index, name] : m_names)
        if (name.compare(0, group.size(), group) == 0)
            names.push_back(name);
    return names;
}

void Tables::PrintMethods() const
{
    std::printf("### Beside direct calls\n\n| Method | library | direct calls | more |\n|---|--:|--:|--:|\n");
    for (const std::string& name : NamesIn("method/"))
    {
        const double library = m_figures.at(name).at("library");
        const double direct = m_figures.at(name).at("direct");
        std::printf("| `%s` | %s | %s | %+.1f %% |\n", LastPart(name).c_str(), Duration(library).c_str(),
                    Duration(direct).c_str(), (library / direct - 1) * 100);
    }
    std::printf("\n");
}

void Tables::PrintGrowth() const
{
    std::printf("### As the lists grow\n\n| Method | profiles and networks | in the platform | library beside it | "
                "nested loops beside it |\n"
                "|---|--:|--:|--:|--:|\n");
    for (const std::string& name : NamesIn("growth/"))
    {
        const auto loops = m_figures.find(WithoutLastPart(name) + "/loops");
        if (LastPart(name) != "library" || loops == m_figures.end())
            continue;
        const Figures& library = m_figures.at(name);
        const std::string sized = WithoutLastPart(name);
        std::printf("| `%s` | %s | %s | %s | %s |\n", LastPart(WithoutLastPart(sized)).c_str(), LastPart(sized).c_str(),
                    Duration(library.at("platform")).c_str(), Duration(library.at("beside")).c_str(),
                    Duration(loops->second.at("beside")).c_str());
    }
    std::printf("\n");
}

void Tables::PrintSimulator() const
{
    std::printf(
        "### The simulated computer\n\n| Operation | visible networks | time | calls a second |\n|---|--:|--:|--:|\n");
    for (const std::string& name : NamesIn("simulator/"))
    {
        const double time = m_figures.at(name).at("time");
        std::printf("| %s | %s | %s | %.3g |\n", LastPart(WithoutLastPart(name)).c_str(), LastPart(name).c_str(),
                    Duration(time).c_str(), 1e9 / time);
    }
    std::printf("\n");
}

} // namespace calvix::benchmarks
