#include "growth/growth_benchmarks.h"

#include "growth/replay.h"
#include "measure/pair.h"
#include "service/list_platform.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace calvix::benchmarks
{

namespace
{

/// What grows.
enum class Growing
{
    everyNetworkMatches, ///< profiles and networks, all of which match
    lastMatches,         ///< the same, of which the last profile matches the last network
    firstMatches,        ///< the same as the first, for methods that end at the first match
    accessPoints,        ///< of the one BSS list
    candidatesAndPoints  ///< profiles, networks and the access points that rank them
};

struct GrowthCase
{
    const char* signature;
    Growing growing;
    bool nested = true;            ///< whether nested loops are quadratic
    std::size_t largest = 1000000; ///< size that ends in reasonable time
};

constexpr GrowthCase kCases[] = {
    {"GetConnectableNetworkCount(GUID const*)", Growing::everyNetworkMatches},
    {"GetMatchAPList(GUID const*, std::vector<WLAN_BSS_ENTRY>*)", Growing::everyNetworkMatches},
    {"GetConnectableAPList(GUID const*, wchar_t*, std::vector<WLAN_BSS_ENTRY>*)", Growing::everyNetworkMatches},
    {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, int)", Growing::everyNetworkMatches},
    {"ConnectBestAP(GUID const*)", Growing::everyNetworkMatches},
    {"ConnectBestAP(GUID const*)", Growing::candidatesAndPoints},
    {"AutoConnectEx(GUID const*)", Growing::everyNetworkMatches},
    {"AutoConnectEx(GUID const*)", Growing::candidatesAndPoints},
    {"AutoConnect(GUID const*)", Growing::lastMatches},
    {"AutoConnect(GUID const*)", Growing::firstMatches, false},
    {"AutoSwitch(GUID const*)", Growing::lastMatches},
    {"SmartSwitch(GUID const*)", Growing::everyNetworkMatches, false},
    {"SmartConnecting(GUID const*, char*)", Growing::lastMatches},
    {"ConnectAutoMode(GUID const*)", Growing::lastMatches, true, 1000}, // a conversion for every pair
    {"LinkProfile(GUID const*, char*)", Growing::lastMatches, false},
    {"GetAP(GUID const*, DOT11_SSID*)", Growing::lastMatches, false},
    {"GetWiFiRSSI(GUID const*, DOT11_SSID&)", Growing::lastMatches, false},
    {"GetSoftAPList(GUID const*, std::vector<std::string>*)", Growing::lastMatches, false},
    {"GetWlanProfile(GUID const*, char const*)", Growing::lastMatches, false},
    {"Reconnect(GUID const*, WLAN_CONNECTION_ATTRIBUTES*, unsigned long)", Growing::accessPoints, false},
    {"Roaming(GUID const*)", Growing::accessPoints, false},
    {"GetNetworkBssCount()", Growing::accessPoints, false},
};

constexpr std::size_t kSizes[] = {10, 100, 1000, 10000};

Shape ShapeOf(Growing growing, std::size_t size)
{
    switch (growing)
    {
    case Growing::lastMatches:
        return {size, size, 1, 2, true};
    case Growing::accessPoints:
        return {10, 20, 3, size};
    case Growing::candidatesAndPoints:
        return {size, size, size, size};
    default:
        return {size, size, size};
    }
}

const char* NameOf(Growing growing)
{
    switch (growing)
    {
    case Growing::lastMatches:
        return "last profile, last network";
    case Growing::firstMatches:
        return "first profile, first network";
    case Growing::accessPoints:
        return "access points";
    case Growing::candidatesAndPoints:
        return "all match, as many access points";
    default:
        return "all match";
    }
}

/// The name and the SSID that a method is asked for: those of the last network where only that matches.
void AskFor(Scene& scene, const Shape& shape)
{
    const std::wstring name = ProfileName(shape.lastOnly ? shape.profiles - 1 : 0);
    const std::string ssid = "network-" + std::to_string(shape.lastOnly ? shape.networks - 1 : 0);
    std::copy(name.c_str(), name.c_str() + name.size() + 1, scene.profile);
    std::transform(name.begin(), name.end(), scene.narrowProfile,
                   [](wchar_t letter) { return static_cast<char>(letter); });
    scene.ssid.uSSIDLength = static_cast<ULONG>(ssid.size());
    std::memcpy(scene.ssid.ucSSID, ssid.data(), ssid.size());
}

CallCounts g_replayed{};

long long ReplayCall(Scene& scene)
{
    Replay(scene, g_replayed);
    return 0;
}

/// Nested loops of ten thousand by ten thousand take seconds: there they are left to be extrapolated.
bool NestedLoopsEnd(const GrowthCase& growth, std::size_t size)
{
    return !growth.nested || size <= 1000;
}

void MeasureGrowth(benchmark::State& state, const GrowthCase& growth, const MethodRow& row, std::size_t size)
{
    const Shape shape = ShapeOf(growth.growing, size);
    ListPlatform platform(ContentOf(shape));
    Scene scene;
    AskFor(scene, shape);
    const Staging staging(scene, platform);
    scene.direct->GetCurrentConnection(&scene.guid, &scene.connection);

    const bool nested = NestedLoopsEnd(growth, size);
    const Outcome library = TryOnce(scene, row.calvix, nullptr);
    g_replayed = library.calls;
    std::vector<Call> calls{row.calvix, ReplayCall};
    if (nested)
    {
        const std::string difference = Difference(library, TryOnce(scene, row.direct, nullptr), false);
        if (!difference.empty())
            return state.SkipWithError(difference.c_str());
        calls.push_back(row.direct);
    }
    for (auto iteration : state)
    {
        static_cast<void>(iteration);
        const Rounds rounds(scene, calls, nullptr,
                            {.batch = 200e3, .total = 15e6, .least = 5, .most = 101, .processorTime = true});
        state.SetIterationTime(rounds.Median(0) * 1e-9);
        state.counters["library"] = rounds.Median(0);
        state.counters["calls"] = rounds.Median(1);
        state.counters["ratio"] = rounds.MedianRatio(0, 1);
        if (nested)
            state.counters["nested"] = rounds.Median(2);
    }
    state.counters["libraryBlocks"] = static_cast<double>(library.allocations);
}

MethodRow FindRow(const Rows& rows, const char* signature)
{
    for (const MethodRow& row : rows)
        if (std::strcmp(row.signature, signature) == 0)
            return row;
    std::fprintf(stderr, "No row for %s.\n", signature);
    std::abort();
}

} // namespace

void RegisterGrowthBenchmarks()
{
    const Rows rows = AllRows();
    for (const GrowthCase& growth : kCases)
    {
        const MethodRow row = FindRow(rows, growth.signature);
        const std::string method = std::string(growth.signature).substr(0, std::string(growth.signature).find('('));
        for (const std::size_t size : kSizes)
        {
            if (size > growth.largest)
                continue;
            const std::string name = "growth/" + method + "/" + NameOf(growth.growing) + "/" + std::to_string(size);
            benchmark::RegisterBenchmark(name.c_str(), [growth, row, size](benchmark::State& state)
                                         { MeasureGrowth(state, growth, row, size); })
                ->Iterations(1)
                ->Repetitions(5)
                ->UseManualTime();
        }
    }
}

} // namespace calvix::benchmarks
