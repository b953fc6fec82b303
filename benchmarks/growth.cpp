#include "benchmarks.h"
#include "by_hand.h"
#include "household.h"
#include "simulation/computer.h"
#include "testing/program.h"
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
    test::Program program{platform};
    CWirelessManage& library = program.Manager();
    ByHand loops;
};

template <typename Call>
void Measure(benchmark::State& state, std::size_t size, Call call)
{
    Scene scene(size);
    using Nanoseconds = std::chrono::duration<double, std::nano>;
    Nanoseconds leastInside = Nanoseconds::max();
    Nanoseconds leastBeside = Nanoseconds::max();
    for (auto iteration : state)
    {
        static_cast<void>(iteration);
        scene.stopwatch.total = {};
        const Clock::time_point start = Clock::now();
        benchmark::DoNotOptimize(call(scene));
        const Clock::duration whole = Clock::now() - start;
        leastInside = (std::min)(leastInside, Nanoseconds(scene.stopwatch.total));
        leastBeside = (std::min)(leastBeside, Nanoseconds(whole - scene.stopwatch.total));
    }
    state.counters["platform"] = leastInside.count();
    state.counters["beside"] = leastBeside.count();
}

template <typename Call>
void RegisterSide(const char* method, std::size_t size, const char* side, int repetitions, Call call)
{
    const std::string name = std::string("growth/") + method + "/" + std::to_string(size) + "/" + side;
    benchmark::RegisterBenchmark(name.c_str(), [call, size](benchmark::State& state) { Measure(state, size, call); })
        ->MinTime(0.02)
        ->Repetitions(repetitions);
}

template <typename Call>
void Register(const char* method, Call call)
{
    for (const std::size_t size : {std::size_t{10}, std::size_t{100}, std::size_t{1000}, std::size_t{10000}})
    {
        const bool isQuick = size < 10000;
        RegisterSide(method, size, "library", isQuick ? 9 : 5, [call](Scene& scene) { return call(scene.library); });
        RegisterSide(method, size, "loops", isQuick ? 9 : 3, [call](Scene& scene) { return call(scene.loops); });
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
