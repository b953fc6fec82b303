// Every method, with every one of its allocations failing in turn. Only those of the library fail: platform and test
// keep their memory.

#include "support/allocation_counter.h"
#include "support/edited_answers.h"
#include "support/test_scenarios.h"
#include "sweep/bench.h"
#include "sweep/scenarios.h"
#include "testing/manager_internals.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <set>
#include <string_view>

namespace calvix::test::memory_sweep_test
{
namespace
{

using methods::Method;
using methods::Outcome;

constexpr DWORD kNotEnoughMemory = 8;

/// How a method ends where memory runs out: as it does, outputs included, when the operation fails with the platform's
/// error number for that.
struct Shortage
{
    std::string_view method;
    std::string_view operation; ///< none: the method does without, and ends as ever
    long long code;             ///< 0 then
};

/// The shortages of a method in the order of its steps. The methods that are not named take no memory from the heap.
constexpr Shortage kShortages[] = {
    {"GetWlanInterface", "WlanEnumInterfaces", -2},
    {"WideCharToChar", "WideCharToMultiByte", 0},
    {"CreateProcRunExe", "CreateProcessA", 0},

    // For want of the list of networks. Where the platform's error number is the result, it is its number for memory.
    {"GetConnectableNetworkCount", "WlanGetAvailableNetworkList", -7},
    {"GetSoftAPList", "WlanGetAvailableNetworkList", kNotEnoughMemory},
    {"GetMatchAPList", "WlanGetAvailableNetworkList", -7},
    {"GetConnectableAPList", "WlanGetAvailableNetworkList", -7},
    {"GetMatchAPCount", "WlanGetAvailableNetworkList", -7},
    {"GetMatchBSSID", "WlanGetAvailableNetworkList", -7},
    {"AutoConnect", "WlanGetAvailableNetworkList", -6},
    {"AutoSwitch", "WlanGetAvailableNetworkList", -6},
    {"SmartSwitch", "WlanGetAvailableNetworkList", kNotEnoughMemory},
    {"SmartConnecting", "WlanGetAvailableNetworkList", kNotEnoughMemory},

    // The candidates; they are sorted without further memory, too.
    {"AutoConnectEx", "WlanGetAvailableNetworkList", -6},
    {"AutoConnectEx", "", 0},
    {"ConnectBestAP", "WlanGetAvailableNetworkList", -6},
    {"ConnectBestAP", "", 0},
};

std::vector<Shortage> ShortagesOf(const Method& method)
{
    std::vector<Shortage> shortages;
    std::copy_if(std::begin(kShortages), std::end(kShortages), std::back_inserter(shortages),
                 [&](const Shortage& shortage) { return method.Is(shortage.method); });
    return shortages;
}

/// A dozen networks more, heard at 5 GHz, the last two from software access points; and a name that has no room inside a
/// string.
simulation::Scenario Crowded()
{
    constexpr std::uint8_t kNetworks = 12;
    simulation::Scenario scenario = sweep::Scenarios().front().make();
    const std::string longName = "The quiet room behind the stairs";
    scenario.adapters[0].profiles.push_back(MakeProfile(longName));
    scenario.accessPoints.push_back(MakeAccessPoint(longName, {2, 7, 7, 7, 8, 0}, 5180000, -85));
    for (std::uint8_t number = 0; number < kNetworks; ++number)
    {
        const std::string name = number < kNetworks - 2 ? "Net" : "Conference room LC#";
        scenario.accessPoints.push_back(
            MakeAccessPoint(name + std::to_string(number), {2, 7, 7, 7, 7, number}, 5180000, -90));
    }
    return scenario;
}

/// More adapters than an output list has entries before.
simulation::Scenario ManyAdapters()
{
    simulation::Scenario scenario = sweep::Scenarios().front().make();
    for (int number = 100; number < 180; ++number)
    {
        scenario.adapters.push_back(scenario.adapters[0]);
        scenario.adapters.back().guid.replace(1, 3, std::to_string(number));
        scenario.adapters.back().profiles.resize(1); // each run would read all of them eighty times
    }
    return scenario;
}

/// Where the methods are called.
struct Setting
{
    std::string name;
    simulation::Scenario scenario;
    bool refusesConnections = false;
    bool whereMore = false; ///< only for the methods that allocate more often here than in the first setting
};

std::vector<Setting> Settings()
{
    std::vector<Setting> settings;
    for (const sweep::NamedScenario& scenario : sweep::Scenarios())
        settings.push_back({scenario.name, scenario.make()});
    settings.push_back({.name = "many adapters", .scenario = ManyAdapters(), .whereMore = true});
    settings.push_back({"crowded", Crowded()});
    settings.push_back({"crowded and refusing", Crowded(), true});
    return settings;
}

/// A bench on which only the library's own allocations count. Text converts as the methods want it.
class CountingBench
{
public:
    CountingBench(const Setting& setting, const Method& method) : m_bench(setting.scenario, m_chain)
    {
        m_answers.conversion.takesAllFlagsForUtf8 = true;
        m_answers.conversion.takesAllFlagsForNarrow = true;
        m_bench.Prepare(method);
        if (setting.refusesConnections)
            m_faults.Fail("WlanConnect");
    }

    void Fail(std::string_view operation) { m_faults.Fail(std::string(operation), {kNotEnoughMemory}); }
    Outcome Call(const Method& method) { return m_bench.Call(method); }
    simulation::Accounts Audit() { return m_bench.Audit(); }

private:
    PlatformCallsUncounted m_uncounted;
    wrappers::FaultInjection m_faults;
    wrappers::InterceptorChain m_chain{{&m_uncounted, &m_faults}};
    sweep::Bench m_bench;
    EditedAnswers m_answers;
};

/// What a method does where memory does not run out.
struct Plenty
{
    std::size_t allocations = 0;
    Outcome first;
    Outcome again;
};

Plenty CallWithPlenty(const Setting& setting, const Method& method)
{
    CountingBench bench(setting, method);
    Plenty plenty;
    const AllocationCounter counter;
    plenty.first = bench.Call(method);
    plenty.allocations = counter.Count();
    plenty.again = bench.Call(method);
    return plenty;
}

Outcome CallInTrouble(const Setting& setting, const Method& method, std::string_view operation)
{
    CountingBench bench(setting, method);
    bench.Fail(operation);
    return bench.Call(method);
}

/// Blocks of the heap that a copy of a value holds, as many as the value.
template <typename Value>
std::ptrdiff_t BlocksIn(const Value& value)
{
    const std::ptrdiff_t heldBefore = HeldHeapBlocks();
    const Value copy = value;
    return HeldHeapBlocks() - heldBefore;
}

struct Run
{
    bool threw = false;
    Outcome outcome;
    simulation::Accounts afterwards;
    Outcome again; ///< the same method when there is memory
};

/// The `from`-th allocation and the following fail, as many as `times`.
Run CallShort(const Setting& setting, const Method& method, std::size_t from, std::size_t times)
{
    CountingBench bench(setting, method);
    Run run;
    try
    {
        const AllocationFailure failure(from, times);
        run.outcome = bench.Call(method);
        EXPECT_GE(failure.Refused(), 1U);
    }
    catch (const std::exception&)
    {
        run.threw = true;
    }
    run.afterwards = bench.Audit();
    run.again = bench.Call(method);
    return run;
}

std::string Text(const Outcome& outcome)
{
    std::string text = std::to_string(outcome.code.value_or(0));
    for (const std::string& output : outcome.outputs)
        text += ", " + output.substr(0, output.find(' '));
    return text;
}

/// The sweep of one method in one setting.
class Sweep
{
public:
    Sweep(const Setting& setting, const Method& method)
        : m_setting(setting), m_method(method), m_plenty(CallWithPlenty(setting, method)),
          m_shortages(ShortagesOf(method))
    {
        for (const Shortage& shortage : m_shortages)
            m_expected.push_back(Expected(shortage));
    }

    /// The allocations of one call, each alone and with all that follow.
    void Run()
    {
        for (const std::size_t times : {std::size_t{1}, AllocationFailure::kUnlimited})
        {
            std::size_t step = 0;
            for (std::size_t from = 1; from <= m_plenty.allocations; ++from)
            {
                SCOPED_TRACE("allocation " + std::to_string(from) + (times == 1 ? " fails" : " and all later fail"));
                step = Check(from, times, step);
            }
        }
    }

    std::size_t Allocations() const { return m_plenty.allocations; }
    const std::set<std::size_t>& Seen() const { return m_seen; }

private:
    Outcome Expected(const Shortage& shortage) const
    {
        if (shortage.operation.empty())
            return m_plenty.first;
        return CallInTrouble(m_setting, m_method, shortage.operation);
    }

    /// The first step from `step` on whose shortage the run shows.
    std::size_t Check(std::size_t from, std::size_t times, std::size_t step)
    {
        const std::ptrdiff_t heldBefore = HeldHeapBlocks();
        const memory_sweep_test::Run run = CallShort(m_setting, m_method, from, times);
        EXPECT_EQ(HeldHeapBlocks() - BlocksIn(run), heldBefore) << "blocks of the heap are not given back";
        EXPECT_FALSE(run.threw) << "an exception leaves the method";
        EXPECT_EQ(run.afterwards.liveBlocks, 0U);
        EXPECT_EQ(run.afterwards.openHandles, 0U);
        EXPECT_THAT(run.afterwards.defects, testing::IsEmpty());
        EXPECT_TRUE(run.again == m_plenty.first || run.again == m_plenty.again)
            << "with memory again: " << Text(run.again) << ", at first " << Text(m_plenty.first);
        if (run.threw)
            return step;
        const auto found =
            std::find(m_expected.begin() + static_cast<std::ptrdiff_t>(step), m_expected.end(), run.outcome);
        EXPECT_NE(found, m_expected.end()) << "the method gives " << Text(run.outcome);
        if (found == m_expected.end())
            return step;
        const auto place = static_cast<std::size_t>(found - m_expected.begin());
        m_seen.insert(place);
        EXPECT_TRUE(m_shortages[place].operation.empty() || run.outcome.code == m_shortages[place].code)
            << "the method gives " << Text(run.outcome);
        return place;
    }

    const Setting& m_setting;
    const Method& m_method;
    Plenty m_plenty;
    std::vector<Shortage> m_shortages;
    std::vector<Outcome> m_expected; ///< one for each shortage
    std::set<std::size_t> m_seen;    ///< the shortages that were met
};

TEST(MemorySweep, EveryAllocationOfEveryMethodFails)
{
    const std::vector<Setting> settings = Settings();
    std::size_t runs = 0;
    for (const Method& method : methods::EveryMethod())
    {
        SCOPED_TRACE(method.declaration);
        const std::size_t usual = CallWithPlenty(settings.front(), method).allocations;
        std::set<std::size_t> seen;
        for (const Setting& setting : settings)
        {
            SCOPED_TRACE(setting.name);
            Sweep sweep(setting, method);
            if (setting.whereMore && sweep.Allocations() <= usual)
                continue;
            sweep.Run();
            runs += 2 * sweep.Allocations();
            seen.insert(sweep.Seen().begin(), sweep.Seen().end());
        }
        EXPECT_EQ(seen.size(), ShortagesOf(method).size()) << "not every shortage of the table was met";
    }
    RecordProperty("runs", std::to_string(runs));
    std::cout << runs << " runs with too little memory\n";
}

TEST(MemorySweep, GetGivesNullWithoutMemoryForTheManager)
{
    PlatformCallsUncounted uncounted;
    sweep::Bench bench(sweep::Scenarios().front().make(), uncounted);
    ASSERT_EQ(nullptr, ManagerInternals::Instance());
    {
        const AllocationFailure failure(1);
        EXPECT_EQ(nullptr, CWirelessManage::Get());
        EXPECT_EQ(1U, failure.Refused());
    }
    EXPECT_NE(nullptr, ManagerInternals::Client());
    EXPECT_NE(nullptr, CWirelessManage::Get());
}

TEST(MemorySweep, TheTableNamesMethods)
{
    for (const Shortage& shortage : kShortages)
        EXPECT_NO_THROW(methods::FindMethod(shortage.method)) << shortage.method;
}

} // namespace
} // namespace calvix::test::memory_sweep_test
