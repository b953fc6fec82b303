#include "benchmarks.h"
#include "by_hand.h"
#include "household.h"
#include "simulation/computer.h"
#include "testing/program.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <string>
#include <vector>

namespace calvix::benchmarks
{

namespace
{

/// What the calls write.
struct Outputs
{
    int rssi = 0;
    unsigned long error = 0;
    WLAN_CONNECTION_ATTRIBUTES connection{};
    wchar_t xml[2048] = {};
    std::vector<WLAN_BSS_ENTRY> entries;
};

struct Method
{
    const char* name;
    int (*wrapped)(CWirelessManage& side, Outputs& out);
    int (*direct)(ByHand& side, Outputs& out);
};

/// A call that is written once for both sides.
template <typename Call>
Method Both(const char* name, Call)
{
    return {name, [](CWirelessManage& side, Outputs& out) { return Call{}(side, out); },
            [](ByHand& side, Outputs& out) { return Call{}(side, out); }};
}

constexpr const GUID* kAdapter = &kHouseholdAdapter;

const Method kMethods[] = {
    Both("GetWlanStatus", [](auto& side, Outputs&) { return side.GetWlanStatus(kAdapter); }),
    Both("PhyRadioIsOn", [](auto& side, Outputs&) { return side.PhyRadioIsOn(kAdapter); }),
    Both("GetRssi", [](auto& side, Outputs& out) { return side.GetRssi(kAdapter, out.rssi); }),
    Both("GetSignalQuality", [](auto& side, Outputs&) { return side.GetSignalQuality(kAdapter); }),
    Both("GetCurrentConnection",
         [](auto& side, Outputs& out) { return side.GetCurrentConnection(kAdapter, &out.connection); }),
    Both("Rescan", [](auto& side, Outputs& out) { return side.Rescan(kAdapter, out.error); }),
    Both("GetAvailableNetworkCount", [](auto& side, Outputs&) { return side.GetAvailableNetworkCount(kAdapter); }),
    Both("GetNetworkBssCount", [](auto& side, Outputs&) { return side.GetNetworkBssCount(); }),
    Both("GetProfile",
         [](auto& side, Outputs& out) { return side.GetProfile(kAdapter, kHouseholdProfile, out.xml, 2048); }),
    Both("GetConnectableNetworkCount", [](auto& side, Outputs&) { return side.GetConnectableNetworkCount(kAdapter); }),
    Both("GetMatchAPList", [](auto& side, Outputs& out) { return side.GetMatchAPList(kAdapter, &out.entries); }),
    Both("ConnectBestAP", [](auto& side, Outputs&) { return side.ConnectBestAP(kAdapter); }),
};

/// Ten stored profiles and twenty networks in view, three of which have a profile.
struct Scene
{
    simulation::Computer computer{HouseholdScenario(10, 20, 3)};
    test::Program program{computer};
    CWirelessManage& manager = program.Manager();
    ByHand byHand;
    Outputs outputs;
};

/// Nanoseconds a call.
template <typename Call>
double TimeOf(Call call)
{
    using Clock = std::chrono::steady_clock;
    constexpr int kBatch = 50;
    const Clock::time_point start = Clock::now();
    for (int repeat = 0; repeat < kBatch; ++repeat)
        benchmark::DoNotOptimize(call());
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / kBatch;
}

/// The two sides take turns; the fastest batch of each counts.
void Measure(benchmark::State& state, const Method& method)
{
    Scene scene;
    if (method.wrapped(scene.manager, scene.outputs) != method.direct(scene.byHand, scene.outputs))
        return state.SkipWithError("the library and the direct calls give different results");
    double library = (std::numeric_limits<double>::max)();
    double direct = library;
    for (auto iteration : state)
    {
        static_cast<void>(iteration);
        library = (std::min)(library, TimeOf([&] { return method.wrapped(scene.manager, scene.outputs); }));
        direct = (std::min)(direct, TimeOf([&] { return method.direct(scene.byHand, scene.outputs); }));
    }
    state.counters["library"] = library;
    state.counters["direct"] = direct;
}

} // namespace

void RegisterMethods()
{
    for (const Method& method : kMethods)
        benchmark::RegisterBenchmark((std::string("method/") + method.name).c_str(),
                                     [&method](benchmark::State& state) { Measure(state, method); })
            ->MinTime(0.5);
}

} // namespace calvix::benchmarks
