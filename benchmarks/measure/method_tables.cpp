#include "measure/pair.h"
#include "measure/report.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace calvix::benchmarks
{

namespace
{

constexpr double kGoal = 3; // per cent

/// By how many per cent the library is slower than the hand-written code.
struct Excess
{
    explicit Excess(const Figures& figures)
        : middle(PerCent(MedianOf(figures.at("ratio")))),
          lowest(PerCent(*std::min_element(figures.at("ratio").begin(), figures.at("ratio").end()))),
          highest(PerCent(*std::max_element(figures.at("ratio").begin(), figures.at("ratio").end())))
    {
    }

    static double PerCent(double ratio) { return (ratio - 1) * 100; }

    double middle;
    double lowest;
    double highest;
};

double Middle(const Figures& figures, const char* counter)
{
    return MedianOf(figures.at(counter));
}

void PrintSide(const Figures& figures)
{
    const Excess excess(figures);
    std::printf(" | %s | %s | %+.1f %%", Duration(Middle(figures, "library")).c_str(),
                Duration(Middle(figures, "direct")).c_str(), excess.middle);
}

void PrintRow(const std::string& method, const Results& list, const Results& computer)
{
    const Figures& onList = list.figures.at(method);
    std::printf("| `%s`", method.c_str());
    PrintSide(onList);
    const auto found = computer.figures.find(method);
    if (found != computer.figures.end())
        PrintSide(found->second);
    else
        std::printf(" | | |");
    std::printf(" | %.0f / %.0f |\n", Middle(onList, "libraryBlocks"), Middle(onList, "directBlocks"));
}

void PrintControls(const char* service, const Results& controls)
{
    double largest = 0;
    for (const auto& [name, figures] : controls.figures)
        largest = (std::max)(largest, std::abs(Excess(figures).middle));
    if (!controls.names.empty())
        std::printf("- hand-written code against itself, %s: at most %.1f %% apart\n", service, largest);
}

void PrintSummary(const char* service, const Results& methods)
{
    std::vector<double> excesses;
    std::string beyond;
    for (const std::string& name : methods.names)
    {
        const Figures& figures = methods.figures.at(name);
        const Excess excess(figures);
        excesses.push_back(excess.middle);
        if (excess.middle <= kGoal)
            continue;
        char text[256];
        std::snprintf(text, sizeof(text), "    - `%s`: %+.1f %% (%+.1f to %+.1f), %+.1f ns\n", name.c_str(),
                      excess.middle, excess.lowest, excess.highest,
                      Middle(figures, "library") - Middle(figures, "direct"));
        beyond += text;
    }
    if (excesses.empty())
        return;
    const auto within = std::count_if(excesses.begin(), excesses.end(), [](double excess) { return excess <= kGoal; });
    std::printf(
        "- %s: %td of %zu methods are no more than 3 %% slower than hand-written code; in the middle %+.1f %%\n%s",
        service, within, excesses.size(), MedianOf(excesses), beyond.c_str());
}

} // namespace

void PrintMethods(const Results& all)
{
    const Results list = all.Of("method/list/");
    const Results computer = all.Of("method/computer/");
    if (list.names.empty())
        return;
    std::printf("### Every method beside hand-written code\n\n");
    PrintSummary("simulated computer", computer);
    PrintSummary("list service", list);
    PrintControls("simulated computer", all.Of("control/computer/"));
    PrintControls("list service", all.Of("control/list/"));
    std::printf("\n| Method | list service: library | by hand | more | simulated computer: library | by hand | more | "
                "heap blocks: library / by hand |\n|---|--:|--:|--:|--:|--:|--:|--:|\n");
    for (const std::string& method : list.names)
        PrintRow(method, list, computer);
    std::printf("\n");
}

} // namespace calvix::benchmarks
