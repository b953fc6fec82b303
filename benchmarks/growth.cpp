#include "benchmarks.h"
#include "by_hand.h"
#include "household.h"
#include "simulation/computer.h"
#include "wrappers/intercepted_platform.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>

namespace calvix::benchmarks
{

namespace
{

using Clock = std::chrono::steady_clock;

/// Adds up the time that is spent inside the platform.
class Stopwatch final : public wrappers::Interceptor
{
public:
    std::optional<DWORD> Before(const wrappers::Call&) override
    {
        m_start = Clock::now();
        return std::nullopt;
    }

    void After(const wrappers::Call&, long long) override { total += Clock::now() - m_start; }

    Clock::duration total{};

private:
    Clock::time_point m_start;
};

/// As many stored profiles as networks in view, of which every one has a profile.
struct Scene
{
    explicit Scene(std::size_t size) : computer(HouseholdScenario(size, size, size)) {}

    simulation::Computer computer;
    Stopwatch stopwatch;
    wrappers::InterceptedPlatform platform{computer, stopwatch};
    OnComputer inUse{platform};
};

template <typename Call>
void Measure(benchmark::State& state, Stopwatch& stopwatch, Call call)
{
    using Nanoseconds = std::chrono::duration<double, std::nano>;
    Nanoseconds leastInside = Nanoseconds::max();
    Nanoseconds leastBeside = Nanoseconds::max();
    for (auto iteration : state)
    {
        static_cast<void>(iteration);
        stopwatch.total = {};
        const Clock::time_point start = Clock::now();
        benchmark::DoNotOptimize(call());
        const Clock::duration whole = Clock::now() - start;
        leastInside = (std::min)(leastInside, Nanoseconds(stopwatch.total));
        leastBeside = (std::min)(leastBeside, Nanoseconds(whole - stopwatch.total));
    }
    state.counters["platform"] = leastInside.count();
    state.counters["beside"] = leastBeside.count();
}

template <typename Call>
void Register(const char* method, Call call)
{
    for (const std::size_t size : {std::size_t{10}, std::size_t{100}, std::size_t{1000}, std::size_t{10000}})
    {
        const std::string name = std::string("growth/") + method + "/" + std::to_string(size);
        benchmark::RegisterBenchmark((name + "/library").c_str(),
                                     [call, size](benchmark::State& state)
                                     {
                                         Scene scene(size);
                                         CWirelessManage& library = *CWirelessManage::Get();
                                         Measure(state, scene.stopwatch, [&] { return call(library); });
                                     })
            ->MinTime(0.02)
            ->Repetitions(size < 10000 ? 9 : 5);
        benchmark::RegisterBenchmark((name + "/loops").c_str(),
                                     [call, size](benchmark::State& state)
                                     {
                                         Scene scene(size);
                                         ByHand byHand;
                                         Measure(state, scene.stopwatch, [&] { return call(byHand); });
                                     })
            ->MinTime(0.02)
            ->Repetitions(size < 10000 ? 9 : 3);
    }
}

} // namespace

void RegisterGrowth()
{
    Register("GetConnectableNetworkCount",
             [](auto& side) { return side.GetConnectableNetworkCount(&kHouseholdAdapter); });
    Register("GetMatchAPList",
             [](auto& side)
             {
                 std::vector<WLAN_BSS_ENTRY> entries;
                 return side.GetMatchAPList(&kHouseholdAdapter, &entries);
             });
    Register("ConnectBestAP", [](auto& side) { return side.ConnectBestAP(&kHouseholdAdapter); });
}

} // namespace calvix::benchmarks
