#include "methods/method_row.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <set>

namespace calvix::benchmarks
{

void Settle(Scene& scene)
{
    scene.computer->Advance(std::chrono::seconds(5));
}

Rows AllRows()
{
    Rows all;
    for (const auto family : {FrameRows, AdapterRows, ConversionRows, RadioRows, InventoryRows, ProfileRows,
                              ConnectionRows, AutomaticRows, ComputerRows})
    {
        const Rows rows = family();
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

std::vector<std::string> Uncovered(const Rows& rows, const char* exportsFile)
{
    std::set<std::string> exported;
    std::ifstream file(exportsFile);
    for (std::string line; std::getline(file, line);)
        if (!line.empty())
            exported.insert(line);
    std::set<std::string> measured;
    for (const MethodRow& row : rows)
        measured.insert(row.signature);
    std::vector<std::string> uncovered;
    std::set_symmetric_difference(exported.begin(), exported.end(), measured.begin(), measured.end(),
                                  std::back_inserter(uncovered));
    return uncovered;
}

} // namespace calvix::benchmarks
