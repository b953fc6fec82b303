#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

#include <iterator>
#include <string>
#include <vector>

namespace calvix::test::roaming_test
{

using ::testing::ElementsAre;

namespace
{

std::string RequestFor(const std::string& bssid)
{
    return ConnectLine("Profile", "[" + bssid + "]");
}

/// Net, heard from so many access points; the n-th has the address 02:00:00:00:00:0n, and the first is connected to,
/// with a quality of 60. A second network is in view, too.
simulation::Scenario NetFrom(std::size_t accessPoints)
{
    std::vector<simulation::AccessPoint> heard(accessPoints, Heard("Net", 2412000, -70));
    heard.push_back(Heard("Other", 2412000, -50));
    simulation::Scenario scenario = ScenarioOf({ProfileFor("Profile", "Net"), Profile("Other")}, heard);
    scenario.adapters[0].connection = simulation::Connection{"Profile", scenario.accessPoints.front().bssid};
    return scenario;
}

struct Method
{
    const char* name;
    long long (*call)(CWirelessManage&);
};

const Method kMethods[] = {{"PreRoaming", [](CWirelessManage& m) -> long long { return m.PreRoaming(&kAdapterA); }},
                           {"Roaming", [](CWirelessManage& m) -> long long { return m.Roaming(&kAdapterA); }}};

/// Gives the access points their link qualities.
std::function<void(WLAN_BSS_LIST&)> WithQualities(std::vector<unsigned> qualities)
{
    return [qualities](WLAN_BSS_LIST& list)
    {
        ASSERT_EQ(qualities.size(), list.dwNumberOfItems);
        for (std::size_t i = 0; i < qualities.size(); ++i)
            list.wlanBssEntries[i].uLinkQuality = qualities[i];
    };
}

/// A better access point is there: the second.
class RoamingTest : public LibraryTest
{
public:
    RoamingTest() : LibraryTest(BetterSecond()) {}

    static simulation::Scenario BetterSecond()
    {
        simulation::Scenario scenario = NetFrom(2);
        scenario.accessPoints[1].rssi = -55;
        return scenario;
    }
};

} // namespace

TEST_F(RoamingTest, PreRoamingOnlyDecides)
{
    EXPECT_EQ(0, manager().PreRoaming(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(ConnectionQuery(), NetworkBssLine("Net"), kRelease, kRelease));
    ExpectSilence();
}

TEST_F(RoamingTest, RoamingAsksForTheBetterAccessPointByTheSameProfile)
{
    EXPECT_EQ(0, manager().Roaming(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(ConnectionQuery(), NetworkBssLine("Net"), RequestFor("02:00:00:00:00:02"),
                                         kRelease, kRelease));
    ExpectSilence();

    Advance(std::chrono::seconds(5));
    WLAN_CONNECTION_ATTRIBUTES now{};
    EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapterA, &now));
    EXPECT_EQ(2, now.wlanAssociationAttributes.dot11Bssid[5]);
    EXPECT_EQ(-5, manager().PreRoaming(&kAdapterA)) << "there it is good enough";
}

TEST_F(RoamingTest, TheCurrentBssTypeAndSecurityAreAskedFor)
{
    EditedAnswers edited;
    edited.service.currentConnection = [](WLAN_CONNECTION_ATTRIBUTES& connection)
    {
        connection.wlanAssociationAttributes.dot11BssType = dot11_BSS_type_independent;
        connection.wlanSecurityAttributes.bSecurityEnabled = FALSE;
    };
    for (const auto& [name, method] : kMethods)
    {
        ClearCalls();
        EXPECT_EQ(-7, method(manager())) << name;
        EXPECT_EQ(NetworkBssLine("Net", "independent"), call("WlanGetNetworkBssList").line);
    }
}

// Deliberate: the first access point's quality stays the reference, so that the pick need not be the best one.
TEST_F(RoamingTest, ThePickIsTheLastAccessPointThatBeatsTheFirst)
{
    struct Choice
    {
        std::vector<unsigned> qualities;
        unsigned picked; ///< from 1
    };
    const Choice choices[] = {{{50, 90, 70, 60}, 4}, {{50, 90, 70, 50}, 3}, {{50, 90, 40, 30}, 2},
                              {{50, 50, 51, 50}, 3}, {{0, 0x80000000}, 2},  {{0x7FFFFFFF, 0x80000000, 0}, 2}};
    for (const auto& [qualities, picked] : choices)
    {
        SCOPED_TRACE(::testing::PrintToString(qualities));
        UseScenario(NetFrom(qualities.size()));
        EditedAnswers edited;
        edited.service.bss = WithQualities(qualities);
        EXPECT_EQ(0, manager().PreRoaming(&kAdapterA));
        EXPECT_EQ(0, manager().Roaming(&kAdapterA));
        EXPECT_EQ(RequestFor("02:00:00:00:00:0" + std::to_string(picked)), call("WlanConnect").line);
    }
}

TEST_F(RoamingTest, AccessPointsAreTheSameWhenAllSixBytesAre)
{
    for (std::size_t byte = 0; byte < 6; ++byte)
    {
        UseScenario(NetFrom(1));
        EditedAnswers edited;
        edited.service.bss = [byte](WLAN_BSS_LIST& list) { list.wlanBssEntries[0].dot11Bssid[byte] ^= 0x80; };
        EXPECT_EQ(0, manager().PreRoaming(&kAdapterA)) << "byte " << byte;
    }
}

TEST_F(RoamingTest, ARefusedMoveLeavesTheConnectionAlone)
{
    FailOn("WlanConnect");
    EXPECT_EQ(-9, manager().Roaming(&kAdapterA));
    EXPECT_EQ(1u, callCount("WlanConnect")) << "not tried again";
    EXPECT_EQ(0u, callCount("WlanDisconnect"));
    WLAN_CONNECTION_ATTRIBUTES now{};
    EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapterA, &now));
    EXPECT_EQ(1, now.wlanAssociationAttributes.dot11Bssid[5]);
}

} // namespace calvix::test::roaming_test
