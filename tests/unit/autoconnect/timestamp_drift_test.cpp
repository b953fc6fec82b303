#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace calvix::test::timestamp_drift_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// A time of day on some day, as the service stamps it: 100 ns since 1601.
constexpr std::uint64_t
At(std::uint64_t hours, std::uint64_t minutes, std::uint64_t seconds, std::uint64_t day = 150000)
{
    return (((day * 24 + hours) * 60 + minutes) * 60 + seconds) * 10'000'000;
}

/// No calendar reaches that far.
constexpr std::uint64_t kNoTime = 0xFFFFFFFFFFFFFFFF;

class TimestampDriftTest : public LibraryTest
{
public:
    TimestampDriftTest() : LibraryTest(OneNetwork()) {}

    static simulation::Scenario OneNetwork() { return ScenarioOf({Profile("Net")}, {Heard("Net", 2412000, -50)}); }

    int Run() { return manager().GetMatchBSSID(&kAdapterA); }

    /// The offsets traced when the network's one access point was heard at `first`, then at `later`.
    std::vector<std::string> OffsetsBetween(std::uint64_t first, std::uint64_t later)
    {
        EditedAnswers edited;
        edited.service.bss = [heard = first, later](WLAN_BSS_LIST& list) mutable
        { list.wlanBssEntries[0].ullHostTimestamp = std::exchange(heard, later); };
        ClearCalls();
        EXPECT_EQ(-1, Run());
        std::vector<std::string> lines = traced();
        std::erase_if(lines, [](const std::string& line) { return !line.starts_with("ullHostTimestamp"); });
        return lines;
    }

    /// Runs with BSS lists that are empty for the calls that `isEmpty` names.
    int RunWithEmptyLists(const std::function<bool(unsigned)>& isEmpty)
    {
        EditedAnswers edited;
        edited.service.bss = [&isEmpty, number = 0u](WLAN_BSS_LIST& list) mutable
        {
            if (isEmpty(++number))
                list.dwNumberOfItems = 0;
        };
        return Run();
    }
};

std::vector<std::string> ThreeTimes(const std::string& line)
{
    return {line, line, line};
}

} // namespace

TEST_F(TimestampDriftTest, LooksThreeTimesASecondApart)
{
    EXPECT_EQ(-1, Run()) << "deliberate: -1 is what success looks like";
    std::vector<std::string> lines = callLines();
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("FileTimeToSystemTime"); });
    const char* const sleep = "Sleep(milliseconds=1000)";
    EXPECT_THAT(lines, ElementsAre(ProfilesLine(), NetworksLine(), NetworkBssLine("Net"), //
                                   sleep, NetworkBssLine("Net"), kRelease,                //
                                   sleep, NetworkBssLine("Net"), kRelease,                //
                                   sleep, NetworkBssLine("Net"), kRelease, kRelease, kRelease, kRelease));
    EXPECT_THAT(traced(), ElementsAre("ProfileName(Net)", "Available Network(Net)", "ullHostTimestamp offset(0 sec)",
                                      "ullHostTimestamp offset(0 sec)", "ullHostTimestamp offset(0 sec)"));
    EXPECT_TRUE(sharedTraceUntouched());
    EXPECT_EQ(std::chrono::milliseconds(3000), computer().Now());
}

TEST_F(TimestampDriftTest, ShowsThatAScanHeardTheAccessPointAgain)
{
    ASSERT_EQ(0, manager().Rescan());
    ClearCalls();
    EXPECT_EQ(-1, Run());
    EXPECT_THAT(traced(), ElementsAre("ProfileName(Net)", "Available Network(Net)", "ullHostTimestamp offset(0 sec)",
                                      "ullHostTimestamp offset(0 sec)", "ullHostTimestamp offset(2 sec)"));
}

TEST_F(TimestampDriftTest, EveryProfileIsNamedAndEveryMatchFollowed)
{
    UseScenario(RichScenario());
    EXPECT_EQ(-1, Run());
    std::vector<std::string> lines = traced();
    std::erase(lines, "ullHostTimestamp offset(0 sec)");
    EXPECT_THAT(lines, ElementsAre("ProfileName(HomeNet)", "Available Network(HomeNet)",     //
                                   "ProfileName(OfficeNet)", "Available Network(OfficeNet)", //
                                   "ProfileName(HiddenNet)",                                 //
                                   "ProfileName(AdHocNet)", "Available Network(AdHocNet)",   //
                                   "ProfileName(GoneNet)"));
    EXPECT_EQ(3u * (3 + 1 + 1), traced().size() - lines.size()) << "one line for each access point and look";
    EXPECT_EQ(9u, callCount("Sleep"));
    EXPECT_EQ(0u, callCount("WlanGetProfile")) << "manual profiles are followed, too";
}

TEST_F(TimestampDriftTest, LongNamesAreCutToATraceOf128Characters)
{
    const std::string name(200, 'n');
    UseScenario(ScenarioOf({ProfileFor(name, "Net")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(-1, Run());
    const std::vector<std::string> lines = traced();
    ASSERT_LE(2u, lines.size());
    EXPECT_EQ(("ProfileName(" + name).substr(0, 127), lines[0]);
    EXPECT_EQ(("Available Network(" + name).substr(0, 127), lines[1]);
    EXPECT_TRUE(sharedTraceUntouched());
}

// Deliberate: 16-bit arithmetic over the time of day, so that a step back or across midnight wraps.
TEST_F(TimestampDriftTest, OffsetsAreSecondsOfTheDayInSixteenBits)
{
    const std::string seconds = " sec)";
    const auto offset = [&](unsigned value)
    { return ThreeTimes("ullHostTimestamp offset(" + std::to_string(value) + seconds); };
    EXPECT_EQ(offset(1), OffsetsBetween(At(12, 0, 0), At(12, 0, 1)));
    EXPECT_EQ(offset(0), OffsetsBetween(At(12, 0, 0), At(12, 0, 0) + 9'999'999)) << "parts of a second do not count";
    EXPECT_EQ(offset(3661), OffsetsBetween(At(10, 20, 30), At(11, 21, 31)));
    EXPECT_EQ(offset(0), OffsetsBetween(At(12, 0, 0), At(12, 0, 0, 150001))) << "nor does the day";
    EXPECT_EQ(offset(65535), OffsetsBetween(At(12, 0, 1), At(12, 0, 0)));
    EXPECT_EQ(offset(44674), OffsetsBetween(At(23, 59, 59), At(0, 0, 1, 150001))) << "-86398 in 16 bits";
    EXPECT_EQ(offset(2864), OffsetsBetween(At(0, 0, 0), At(19, 0, 0))) << "68400 in 16 bits";
}

TEST_F(TimestampDriftTest, TimesThatAreNoneAreLeftOut)
{
    EXPECT_THAT(OffsetsBetween(kNoTime, At(12, 0, 0)), IsEmpty());
    EXPECT_THAT(OffsetsBetween(At(12, 0, 0), kNoTime), IsEmpty());
}

TEST_F(TimestampDriftTest, AFailedConversionLeavesOnlyItsOwnPairOut)
{
    FailOn("FileTimeToSystemTime", 87, 2, 1);
    EXPECT_EQ(-1, Run());
    EXPECT_THAT(traced(), ElementsAre("ProfileName(Net)", "Available Network(Net)", "ullHostTimestamp offset(0 sec)",
                                      "ullHostTimestamp offset(0 sec)"));
}

TEST_F(TimestampDriftTest, AccessPointsAreDistinguishedByTheirWholeAddress)
{
    UseScenario(ScenarioOf({Profile("Net")}, {Heard("Net", 2412000, -50), Heard("Net", 2437000, -60)}));
    EditedAnswers edited;
    edited.service.bss = [number = 0u](WLAN_BSS_LIST& list) mutable
    {
        ++number;
        WLAN_BSS_ENTRY* const entries = list.wlanBssEntries;
        entries[0].ullHostTimestamp = At(12, 0, number == 1 ? 0 : 3);
        (entries + 1)->ullHostTimestamp = At(12, 0, number == 1 ? 0 : 7);
        if (number == 3)
            std::copy_n(entries[0].dot11Bssid, 6, (entries + 1)->dot11Bssid); // heard twice
        if (number == 4)
            entries[0].dot11Bssid[0] ^= 1; // another one: the first byte counts, too
    };
    EXPECT_EQ(-1, Run());
    EXPECT_THAT(traced(), ElementsAre("ProfileName(Net)", "Available Network(Net)",                       //
                                      "ullHostTimestamp offset(3 sec)", "ullHostTimestamp offset(7 sec)", //
                                      "ullHostTimestamp offset(3 sec)", "ullHostTimestamp offset(7 sec)", //
                                      "ullHostTimestamp offset(7 sec)"));
}

// --- Problems ---------------------------------------------------------------------------------------------------

TEST_F(TimestampDriftTest, FailuresOfTheBssLists)
{
    constexpr const char* bssFailed = "WlanGetNetworkBssList failed with error: %u";
    constexpr const char* profile = "ProfileName(Net)";
    constexpr const char* network = "Available Network(Net)";
    constexpr const char* offset = "ullHostTimestamp offset(0 sec)";
    const auto check = [&](unsigned fromCall, int code, std::vector<std::string> lines)
    {
        CheckFailure(*this, {.method = "GetMatchBSSID",
                             .call = [](auto& m) { return m.GetMatchBSSID(&kAdapterA); },
                             .failingOperation = "WlanGetNetworkBssList",
                             .expected = code,
                             .traced = std::move(lines),
                             .buffer = TraceBuffer::local,
                             .fromCall = fromCall,
                             .last = fromCall == 1 ? "WlanGetNetworkBssList" : ""}); // no wait
    };
    check(1, -9, {profile, network, bssFailed});
    check(2, -11, {profile, network, bssFailed, bssFailed, bssFailed});
    check(3, -11, {profile, network, offset, bssFailed, bssFailed});
    check(4, -11, {profile, network, offset, offset, bssFailed});
}

TEST_F(TimestampDriftTest, AnEmptyFirstListIsReleasedTracedAndLeft)
{
    EXPECT_EQ(-10, RunWithEmptyLists([](unsigned) { return true; }));
    EXPECT_THAT(traced(), ElementsAre("ProfileName(Net)", "Available Network(Net)", "No BSS: -10"));
    EXPECT_EQ(0u, callCount("Sleep"));
    const std::vector<std::string> events = timeline();
    const auto trace = std::find(events.begin(), events.end(), "OutputDebugStringA(text=\"No BSS: -10\")");
    ASSERT_NE(events.end(), trace);
    EXPECT_EQ("WlanFreeMemory(memory=non-null)", *(trace - 1));
}

TEST_F(TimestampDriftTest, AnEmptyLaterListIsReleasedAndTraced)
{
    EXPECT_EQ(-12, RunWithEmptyLists([](unsigned number) { return number == 3; }));
    EXPECT_THAT(traced(), ElementsAre("ProfileName(Net)", "Available Network(Net)", "ullHostTimestamp offset(0 sec)",
                                      "No BSS2: -12", "ullHostTimestamp offset(0 sec)"))
        << "the next look is taken all the same";
    const std::vector<std::string> events = timeline();
    const auto trace = std::find(events.begin(), events.end(), "OutputDebugStringA(text=\"No BSS2: -12\")");
    ASSERT_NE(events.end(), trace);
    EXPECT_EQ("WlanFreeMemory(memory=non-null)", *(trace - 1));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(TimestampDriftTest, TheLastProblemIsTheResult)
{
    UseScenario(ScenarioOf({Profile("One"), Profile("Two"), Profile("Three")},
                           {Heard("One", 2412000, -50), Heard("Two", 2412000, -50), Heard("Three", 2412000, -50)}));
    FailOn("WlanGetNetworkBssList", 5, 2, 1); // One: its first later list
    // Two: its first list, the fourth that the service hands out.
    EXPECT_EQ(-10, RunWithEmptyLists([](unsigned number) { return number == 4; }));
    EXPECT_THAT(traced(),
                ElementsAre("ProfileName(One)", "Available Network(One)", "WlanGetNetworkBssList failed with error: 5",
                            "ullHostTimestamp offset(0 sec)",
                            "ullHostTimestamp offset(0 sec)",                            //
                            "ProfileName(Two)", "Available Network(Two)", "No BSS: -10", //
                            "ProfileName(Three)", "Available Network(Three)", "ullHostTimestamp offset(0 sec)",
                            "ullHostTimestamp offset(0 sec)", "ullHostTimestamp offset(0 sec)"))
        << "a problem of one network does not keep the others from being followed";
}

TEST_F(TimestampDriftTest, AnEmptyListIsAccepted)
{
    UseScenario(ScenarioOf({Profile("GoneNet")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(-1, Run());
    EXPECT_THAT(traced(), ElementsAre("ProfileName(GoneNet)"));
    EXPECT_EQ(0u, callCount("Sleep"));
}

} // namespace calvix::test::timestamp_drift_test
