#include "support/changed_platform.h"
#include "support/library_test.h"

#include <algorithm>

namespace calvix::test::power_facts_test
{
namespace
{

using ::testing::ElementsAre;

/// STATUS_ACCESS_DENIED, as the methods and the fault injection have it.
constexpr DWORD kDenied = 0xC0000022;
constexpr long kDeniedStatus = static_cast<std::int32_t>(0xC0000022);

std::string Query(const std::string& level, const std::string& record)
{
    return "CallNtPowerInformation(level=" + level + ", input=null, inputSize=0, output=non-null, outputSize=sizeof(" +
           record + "))";
}

class PowerFactsTest : public LibraryTest
{
public:
    void UsePower(const simulation::PowerDescription& power)
    {
        simulation::Scenario fresh = RichScenario();
        fresh.power = power;
        UseScenario(fresh);
    }

    void ExpectTraced(const std::vector<std::string>& lines)
    {
        EXPECT_EQ(lines, traced());
        EXPECT_EQ(lines.back(), sharedTrace());
        ExpectNothingHeld();
    }
};

// --- the questions with a trace line ---

simulation::PowerDescription SleptOnce()
{
    simulation::PowerDescription power;
    power.modernStandby = true;
    power.upMilliseconds = 60'000;
    power.lastSleepTime = 111'111'111;
    power.lastWakeTime = 222'222'222;
    return power;
}

TEST_F(PowerFactsTest, EachAsksOnceAndTracesItsSuccess)
{
    UsePower(SleptOnce());
    EXPECT_EQ(1, manager().IsSurpportAoAc());
    EXPECT_EQ("SYSTEM_POWER_CAPABILITIES succeed", sharedTrace());
    EXPECT_EQ(222'222'222u, manager().GetLastWakeTime());
    EXPECT_EQ("GetLastWakeTime succeed", sharedTrace());
    EXPECT_EQ(111'111'111u, manager().GetLastSleepTime());
    EXPECT_THAT(callLines(), ElementsAre(Query("SystemPowerCapabilities", "SYSTEM_POWER_CAPABILITIES"),
                                         Query("LastWakeTime", "ULONGLONG"), Query("LastSleepTime", "ULONGLONG")));
    ExpectTraced({"SYSTEM_POWER_CAPABILITIES succeed", "GetLastWakeTime succeed", "GetLastSleepTime succeed"});
}

TEST_F(PowerFactsTest, WhatIsAskedForBeginsAsZero)
{
    unsigned seen = 0;
    ChangedPlatform changed;
    changed.Before<&Power::CallNtPowerInformation>(
        [&seen](auto, auto, auto, PVOID output, ULONG size)
        {
            const auto* const bytes = static_cast<const unsigned char*>(output);
            EXPECT_TRUE(std::all_of(bytes, bytes + size, [](unsigned char byte) { return byte == 0; }));
            ++seen;
        });
    manager().IsSurpportAoAc();
    manager().GetLastWakeTime();
    manager().GetLastSleepTime();
    manager().GetSystemPowerPolicy();
    EXPECT_EQ(5u, seen);
}

TEST_F(PowerFactsTest, ModernStandbyIsOneByteOfTheCapabilities)
{
    for (const bool modernStandby : {true, false})
    {
        simulation::PowerDescription power;
        power.modernStandby = modernStandby;
        UsePower(power);
        EXPECT_EQ(modernStandby ? 1 : 0, manager().IsSurpportAoAc());
    }
}

TEST_F(PowerFactsTest, AComputerThatHasNotSleptYetHasNoTimes)
{
    UsePower({});
    EXPECT_EQ(0u, manager().GetLastWakeTime());
    EXPECT_EQ(0u, manager().GetLastSleepTime());
}

TEST_F(PowerFactsTest, TheTimesHaveSixtyFourBits)
{
    simulation::PowerDescription power = SleptOnce();
    power.lastSleepTime = 0x123456789ABCDEF0ULL;
    power.lastWakeTime = 0xFEDCBA9876543210ULL;
    UsePower(power);
    EXPECT_EQ(0xFEDCBA9876543210ULL, manager().GetLastWakeTime());
    EXPECT_EQ(0x123456789ABCDEF0ULL, manager().GetLastSleepTime());
}

// --- GetSystemPowerPolicy ---

const std::string kMains = Query("SystemPowerPolicyAc", "SYSTEM_POWER_POLICY");
const std::string kBattery = Query("SystemPowerPolicyDc", "SYSTEM_POWER_POLICY");

TEST_F(PowerFactsTest, BothPoliciesAreAskedFor)
{
    EXPECT_EQ(0, manager().GetSystemPowerPolicy());
    EXPECT_THAT(callLines(), ElementsAre(kMains, kBattery));
    ExpectTraced({"SystemPowerPolicyAc succeed", "SystemPowerPolicyDc succeed"});
}

// Deliberate: the answer about mains power shows in the trace only.
TEST_F(PowerFactsTest, OnlyTheSecondAnswerComesOut)
{
    struct
    {
        unsigned fromCall, times;
        long expected;
        std::vector<std::string> lines;
    } const rows[] = {
        {1, 1, 0, {"SystemPowerPolicyAc fail", "SystemPowerPolicyDc succeed"}},
        {2, 1, kDeniedStatus, {"SystemPowerPolicyAc succeed", "SystemPowerPolicyDc fail"}},
        {1, 2, kDeniedStatus, {"SystemPowerPolicyAc fail", "SystemPowerPolicyDc fail"}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.lines[0] + ", " + row.lines[1]);
        Restart();
        FailOn("CallNtPowerInformation", kDenied, row.fromCall, row.times);
        EXPECT_EQ(row.expected, manager().GetSystemPowerPolicy());
        EXPECT_EQ(row.times, InjectedFailures());
        EXPECT_THAT(callLines(), ElementsAre(kMains, kBattery));
        ExpectTraced(row.lines);
    }
}

// --- IsPowerHibernateAllowed ---

// Deliberate: the name promises another answer.
TEST_F(PowerFactsTest, TheAnswerAboutHibernationIsWhetherTheComputerWokeByItself)
{
    for (const bool byItself : {true, false})
    {
        for (const bool allowed : {true, false})
        {
            simulation::PowerDescription power = SleptOnce();
            power.resumesAutomatically = byItself;
            power.hibernateAllowed = power.shutdownAllowed = power.suspendAllowed = allowed;
            UsePower(power);
            EXPECT_EQ(byItself, manager().IsPowerHibernateAllowed() != 0);
            EXPECT_THAT(timeline(), ElementsAre("IsPwrHibernateAllowed()", "IsPwrShutdownAllowed()",
                                                "IsPwrSuspendAllowed()", "IsSystemResumeAutomatic()"));
            ExpectSilence();
        }
    }
}

} // namespace
} // namespace calvix::test::power_facts_test
