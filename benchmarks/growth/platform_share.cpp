#include "growth/platform_share.h"

#include "measure/pair.h"
#include "methods/scene.h"
#include "service/household_scenario.h"
#include "simulation/computer.h"
#include "wrappers/intercepted_platform.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <vector>

namespace calvix::benchmarks
{

namespace
{

using Clock = std::chrono::steady_clock;

/// Adds up the time between a call's beginning and its end.
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

struct Measured
{
    const char* method;
    int (*call)(CWirelessManage& manager);
    std::size_t largest = 10000; ///< size that ends in reasonable time
};

constexpr Measured kMeasured[] = {
    {"GetConnectableNetworkCount", [](CWirelessManage& m) { return m.GetConnectableNetworkCount(&kHouseholdAdapter); }},
    {"AutoConnect", [](CWirelessManage& m) { return m.AutoConnect(&kHouseholdAdapter); }},
    {"AutoConnectEx", [](CWirelessManage& m) { return m.AutoConnectEx(&kHouseholdAdapter); }},
    {"ConnectBestAP", [](CWirelessManage& m) { return m.ConnectBestAP(&kHouseholdAdapter); }},
    {"GetMatchAPList", // a list of access points for every network, each of which looks through all there are
     [](CWirelessManage& m)
     {
         std::vector<WLAN_BSS_ENTRY> entries;
         return m.GetMatchAPList(&kHouseholdAdapter, &entries);
     },
     1000},
};

struct Share
{
    double whole;
    double platform;
};

Share MeasureOnce(CWirelessManage& manager, const Measured& measured, Stopwatch& stopwatch)
{
    stopwatch.total = {};
    const Clock::time_point start = Clock::now();
    benchmark::DoNotOptimize(measured.call(manager));
    const std::chrono::duration<double, std::nano> whole = Clock::now() - start;
    return {whole.count(), std::chrono::duration<double, std::nano>(stopwatch.total).count()};
}

void MeasureShare(benchmark::State& state, const Measured& measured, std::size_t size)
{
    constexpr int kRounds = 5;
    simulation::Computer computer(HouseholdScenario(size, size, size));
    Stopwatch stopwatch;
    wrappers::InterceptedPlatform platform(computer, stopwatch);
    Scene scene;
    const Staging staging(scene, platform);
    MeasureOnce(*scene.calvix, measured, stopwatch);
    for (auto iteration : state)
    {
        static_cast<void>(iteration);
        std::vector<double> wholes;
        std::vector<double> platforms;
        std::vector<double> ratios;
        for (int round = 0; round < kRounds; ++round)
        {
            const Share share = MeasureOnce(*scene.calvix, measured, stopwatch);
            wholes.push_back(share.whole);
            platforms.push_back(share.platform);
            ratios.push_back(share.whole / share.platform);
        }
        state.SetIterationTime(MedianOf(wholes) * 1e-9);
        state.counters["library"] = MedianOf(wholes);
        state.counters["calls"] = MedianOf(platforms);
        state.counters["ratio"] = MedianOf(ratios);
    }
}

} // namespace

void RegisterPlatformShareBenchmarks()
{
    for (const Measured& measured : kMeasured)
    {
        for (const std::size_t size : {std::size_t{100}, std::size_t{1000}, std::size_t{10000}})
        {
            if (size > measured.largest)
                continue;
            const std::string name = std::string("share/") + measured.method + "/" + std::to_string(size);
            benchmark::RegisterBenchmark(name.c_str(), [measured, size](benchmark::State& state)
                                         { MeasureShare(state, measured, size); })
                ->Iterations(1)
                ->Repetitions(3)
                ->UseManualTime();
        }
    }
}

} // namespace calvix::benchmarks
