#include "measure/pair.h"
#include "measure/report.h"

#include <cstdio>
#include <cstdlib>

namespace calvix::benchmarks
{

namespace
{

/// The nested loops' time, or what it would be by ten times the size's, and whether it is only that.
struct Nested
{
    double time;
    bool extrapolated;
};

Nested NestedOf(const Results& growth, const std::string& name)
{
    const Figures& figures = growth.figures.at(name);
    const auto measured = figures.find("nested");
    if (measured != figures.end())
        return {MedianOf(measured->second), false};
    const std::size_t slash = name.rfind('/') + 1;
    const std::string smaller = name.substr(0, slash) + std::to_string(std::atol(name.c_str() + slash) / 10);
    const auto found = growth.figures.find(smaller);
    if (found == growth.figures.end())
        return {0, false};
    const double loops = MedianOf(found->second.at("nested")) - MedianOf(found->second.at("calls"));
    return {100 * loops + MedianOf(figures.at("calls")), true};
}

void PrintRow(const Results& growth, const std::string& name)
{
    const Figures& figures = growth.figures.at(name);
    const Nested nested = NestedOf(growth, name);
    const std::size_t first = name.find('/');
    const std::size_t last = name.rfind('/');
    std::printf("| `%s` | %s | %s | %s | %s | %.2f | %s%s | %.0f |\n", name.substr(0, first).c_str(),
                name.substr(first + 1, last - first - 1).c_str(), name.substr(last + 1).c_str(),
                Duration(MedianOf(figures.at("library"))).c_str(), Duration(MedianOf(figures.at("calls"))).c_str(),
                MedianOf(figures.at("ratio")), nested.extrapolated ? "about " : "",
                nested.time > 0 ? Duration(nested.time).c_str() : "", MedianOf(figures.at("libraryBlocks")));
}

} // namespace

void PrintGrowth(const Results& growth)
{
    if (growth.names.empty())
        return;
    std::printf(
        "### Growing lists\n\n| Method | matching | size | library | its platform calls alone | library / calls | "
        "nested loops | heap blocks |\n|---|---|--:|--:|--:|--:|--:|--:|\n");
    for (const std::string& name : growth.names)
        PrintRow(growth, name);
    std::printf("\n\"about\": not measured but extrapolated, a hundred times the loops at a tenth of the size.\n\n");
}

void PrintShares(const Results& shares)
{
    if (shares.names.empty())
        return;
    std::printf("### Growing lists on the simulated computer\n\n| Method | size | the call | of it in the platform | "
                "call / platform |\n|---|--:|--:|--:|--:|\n");
    for (const std::string& name : shares.names)
    {
        const Figures& figures = shares.figures.at(name);
        const std::size_t slash = name.rfind('/');
        std::printf("| `%s` | %s | %s | %s | %.2f |\n", name.substr(0, slash).c_str(), name.substr(slash + 1).c_str(),
                    Duration(MedianOf(figures.at("library"))).c_str(), Duration(MedianOf(figures.at("calls"))).c_str(),
                    MedianOf(figures.at("ratio")));
    }
    std::printf("\n");
}

void PrintSimulator(const Results& simulator)
{
    if (simulator.names.empty())
        return;
    std::printf(
        "### The simulated computer\n\n| Operation | visible networks | time | calls a second |\n|---|--:|--:|--:|\n");
    for (const std::string& name : simulator.names)
    {
        const std::size_t slash = name.rfind('/');
        const double time = MedianOf(simulator.figures.at(name).at("time"));
        std::printf("| %s | %s | %s | %.3g |\n", name.substr(0, slash).c_str(), name.substr(slash + 1).c_str(),
                    Duration(time).c_str(), 1e9 / time);
    }
    std::printf("\n");
}

} // namespace calvix::benchmarks
