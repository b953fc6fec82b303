#pragma once

#include "allocation_count.h"
#include "list_service.h"

#include <calvix/wireless_manage.h>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace calvix::benchmarks
{

/// One side's result, calls and allocations, from a single call outside the measured time.
struct Outcome
{
    int result;
    CallCounts calls;
    std::size_t allocations;
};

template <typename Call>
Outcome TryOnce(Call& call)
{
    TheService().TakeCalls();
    const std::size_t before = AllocationCount();
    const int result = call();
    return {result, TheService().TakeCalls(), AllocationCount() - before};
}

/// Measures `measured`, after making sure that it gives the result of `counterpart` through the same platform calls:
/// times of two things that do not do the same are no comparison.
template <typename Measured, typename Counterpart>
void Measure(benchmark::State& state, const Shape& shape, Measured measured, Counterpart counterpart)
{
    TheService().Use(ContentOf(shape));
    const Outcome outcome = TryOnce(measured);
    const Outcome expected = TryOnce(counterpart);
    if (outcome.result != expected.result)
    {
        const std::string results =
            std::to_string(outcome.result) + ", the other side " + std::to_string(expected.result);
        return state.SkipWithError(("gives " + results).c_str());
    }
    if (outcome.calls != expected.calls)
        return state.SkipWithError("the two sides make different platform calls");
    for (auto iteration : state)
    {
        static_cast<void>(iteration);
        benchmark::DoNotOptimize(measured());
    }
    state.counters["allocations"] = static_cast<double>(outcome.allocations);
}

/// Names of the registered pairs, in order.
inline std::vector<std::string>& PairNames()
{
    static std::vector<std::string> names;
    return names;
}

/// Registers a method of the library, `library(manager)`, and the platform calls that it makes, issued directly:
/// `bare(service)`. Both give the method's result.
template <typename Library, typename Bare>
void RegisterPair(const std::string& name, const Shape& shape, Library library, Bare bare)
{
    PairNames().push_back(name);
    const auto throughLibrary = [library, manager = CWirelessManage::Get()] { return library(*manager); };
    const auto direct = [bare] { return bare(static_cast<platform::WlanService&>(TheService())); };
    benchmark::RegisterBenchmark((name + "/library").c_str(),
                                 [=](benchmark::State& state) { Measure(state, shape, throughLibrary, direct); });
    benchmark::RegisterBenchmark((name + "/bare").c_str(),
                                 [=](benchmark::State& state) { Measure(state, shape, direct, throughLibrary); });
}

void RegisterMatchBenchmarks();
void RegisterThinWrapperBenchmarks();

} // namespace calvix::benchmarks
