// How many calls of the operating system each method makes, beside the fewest that its contract allows: a call of the
// service costs a program more than everything else that a method does.

#include "sweep/bench.h"
#include "sweep/scenarios.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <set>
#include <string_view>

namespace calvix::test::call_count_test
{
namespace
{

/// What stays in the program's own process, or is asked once in its life.
constexpr std::string_view kFree[] = {
    "WlanOpenHandle",      "WlanFreeMemory",       "LocalFree",         "GetLastError",     "Sleep",
    "MultiByteToWideChar", "WideCharToMultiByte",  "StringFromGUID2",   "GetModuleHandleA", "GetProcAddress",
    "GetCurrentProcess",   "FileTimeToSystemTime", "OutputDebugStringA"};

/// The sweep's first scenario: two adapters, the first with five profiles, of which the networks of three are listed.
constexpr unsigned kAdapters = 2;
constexpr unsigned kProfiles = 5;
constexpr unsigned kMatches = 3;

/// What a contract asks for more than once.
struct Repetition
{
    std::string_view declaration; ///< or the beginning of several
    std::string_view operation;
    unsigned times;
};

constexpr Repetition kRepetitions[] = {
    {"CheckAutoConfig(", "CloseServiceHandle", 2},
    {"ResetWiFiRadio(", "WlanSetInterface", 2}, // off and on
    {"RestartWiFiRadio(", "WlanSetInterface", 2},
    {"RestartWiFiRadio(", "WlanQueryInterface", 2}, // whether it is off, whether it is on
    {"GetAvailableNetwork(", "WlanGetAvailableNetworkList", kAdapters},
    {"GetNetworkBss(", "WlanGetNetworkBssList", kAdapters},
    {"GetMatchAPList(", "WlanGetNetworkBssList", kMatches},
    {"GetMatchBSSID(", "WlanGetNetworkBssList", 4 * kMatches}, // now, and once a second for three seconds
    // The profile that is named counts without being read; beside it the automatic one does, of three.
    {"GetConnectableAPList(", "WlanGetProfile", kMatches - 1},
    {"GetConnectableAPList(", "WlanGetNetworkBssList", 2},
    {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, wchar_t", "WlanGetProfile", kMatches - 1},
    {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, wchar_t", "WlanGetNetworkBssList", 2},
    {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, int", "WlanGetProfile", kMatches},
    {"ConnectBestAP(", "WlanGetProfile", kMatches},
    {"ConnectAutoMode(", "WlanGetProfile", kProfiles},
    {"GetSystemPowerPolicy(", "CallNtPowerInformation", 2}, // on mains, on battery
    {"GetPowerScheme(", "PowerWriteACValueIndex", 2},
    {"CreateProcRunCmd(", "CloseHandle", 2}, // the process and its thread
    {"CreateProcRunExe(", "CloseHandle", 2},
};

unsigned Fewest(std::string_view declaration, std::string_view operation)
{
    const auto found =
        std::find_if(std::begin(kRepetitions), std::end(kRepetitions),
                     [&](const Repetition& repetition)
                     { return declaration.starts_with(repetition.declaration) && repetition.operation == operation; });
    return found != std::end(kRepetitions) ? found->times : 1;
}

std::map<std::string, unsigned> CountedCalls(const methods::Method& method)
{
    std::map<std::string, unsigned> calls;
    for (const std::string& operation : sweep::Record(sweep::Scenarios()[0].make(), method).operations)
        if (std::find(std::begin(kFree), std::end(kFree), operation) == std::end(kFree))
            ++calls[operation];
    return calls;
}

TEST(CallCount, OfEveryMethodIsTheFewestThatItsContractAllows)
{
    std::map<std::pair<unsigned, unsigned>, std::set<std::string>> methods; // by calls made and the fewest
    for (const methods::Method& method : methods::EveryMethod())
    {
        unsigned made = 0;
        unsigned fewest = 0;
        for (const auto& [operation, times] : CountedCalls(method))
        {
            EXPECT_EQ(times, Fewest(method.declaration, operation)) << method.declaration << " calls " << operation;
            made += times;
            fewest += Fewest(method.declaration, operation);
        }
        methods[{made, fewest}].insert(method.Name());
    }
    std::cout << "| calls | fewest | methods |\n|--:|--:|---|\n";
    for (const auto& [counts, names] : methods)
    {
        std::cout << "| " << counts.first << " | " << counts.second << " |";
        for (const std::string& name : names)
            std::cout << " `" << name << "`";
        std::cout << " |\n";
    }
}

} // namespace
} // namespace calvix::test::call_count_test
