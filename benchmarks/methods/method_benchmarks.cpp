#include "methods/method_benchmarks.h"

#include "measure/pair.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace calvix::benchmarks
{

namespace
{

using Service = Household::Service;

Preparation PreparationOf(const MethodRow& row, Service service)
{
    if (row.everyTime == nullptr && service == Service::computer)
        return row.onComputer;
    return row.everyTime;
}

/// Where blocks happen to lie decides how fast they are copied, and may favour one side for a whole run. In every
/// repetition they lie elsewhere.
std::vector<std::byte> AnotherDisplacement()
{
    static std::size_t runs = 0;
    return std::vector<std::byte>(1 + ++runs * 1040 % 20000);
}

void MeasureMethod(benchmark::State& state, const MethodRow& row, Service service)
{
    const std::vector<std::byte> displacement = AnotherDisplacement();
    Household household(service);
    Scene& scene = household.scene();
    if (row.once != nullptr)
        row.once(scene);
    const Preparation before = PreparationOf(row, service);
    const Outcome library = TryOnce(scene, row.calvix, before);
    const Outcome direct = TryOnce(scene, row.direct, before);
    const std::string difference = Difference(library, direct, service == Service::list);
    if (!difference.empty())
        return state.SkipWithError(difference.c_str());

    for (auto iteration : state)
    {
        static_cast<void>(iteration);
        const Rounds rounds(scene, {row.calvix, row.direct}, before, {});
        state.SetIterationTime(rounds.Median(0) * 1e-9);
        state.counters["library"] = rounds.Median(0);
        state.counters["direct"] = rounds.Median(1);
        state.counters["ratio"] = rounds.MedianRatio(0, 1);
    }
    state.counters["libraryBlocks"] = static_cast<double>(library.allocations);
    state.counters["directBlocks"] = static_cast<double>(direct.allocations);
    state.counters["result"] = static_cast<double>(library.result);
}

void Register(const std::string& name, const MethodRow& row, Service service)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [row, service](benchmark::State& state) { MeasureMethod(state, row, service); })
        ->Iterations(1)
        ->UseManualTime();
}

} // namespace

void RegisterMethodBenchmarks()
{
    for (const MethodRow& row : AllRows())
    {
        Register(std::string("method/list/") + row.signature, row, Service::list);
        Register(std::string("method/computer/") + row.signature, row, Service::computer);
        const std::string_view signature = row.signature;
        if (signature == "GetSignalQuality(GUID const*)" || signature == "GetProfileCount(GUID const*)" ||
            signature == "GetRssi(GUID const*, int&)" || signature == "GetCurrentBSS()" ||
            signature == "RadioTurnOn(GUID const*)")
        {
            MethodRow itself = row;
            itself.calvix = row.direct;
            Register(std::string("control/list/") + row.signature, itself, Service::list);
            Register(std::string("control/computer/") + row.signature, itself, Service::computer);
        }
    }
}

} // namespace calvix::benchmarks
