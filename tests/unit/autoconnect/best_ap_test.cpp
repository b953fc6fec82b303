#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/requests.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

#include <algorithm>
#include <string>
#include <vector>

namespace calvix::test::best_ap_test
{

using ::testing::ElementsAre;

namespace
{

using Excluded = std::vector<WLAN_BSS_ENTRY>;

struct Overload
{
    const char* name;
    std::function<long long(CWirelessManage&)> call; ///< rules nothing out
};

std::vector<Overload> Overloads()
{
    static Excluded nobody;
    return {{"ConnectBestAP(list, name)",
             [](CWirelessManage& m) { return m.ConnectBestAP(&kAdapterA, &nobody, L"no such profile"); }},
            {"ConnectBestAP(list)", [](CWirelessManage& m) { return m.ConnectBestAP(&kAdapterA, &nobody); }},
            {"ConnectBestAP(name)", [](CWirelessManage& m) { return m.ConnectBestAP(&kAdapterA, L"no such profile"); }},
            {"ConnectBestAP()", [](CWirelessManage& m) { return m.ConnectBestAP(&kAdapterA); }}};
}

/// Two networks to choose from; the last one heard is on 5 GHz.
simulation::Scenario TwoNetworks(std::int32_t plain, std::int32_t boosted)
{
    return ScenarioOf({Profile("Plain"), Profile("Boosted")},
                      {Heard("Plain", 2412000, plain), Heard("Boosted", 5180000, boosted)});
}

class BestApTest : public LibraryTest
{
public:
    BestApTest() : LibraryTest(TwoNetworks(-60, -70)) {}

    /// Every candidate in the order in which it would be tried.
    std::vector<std::string> Ranking()
    {
        FailOn("WlanConnect");
        EXPECT_EQ(-12, manager().ConnectBestAP(&kAdapterA));
        ClearFailures();
        return RequestedProfiles(*this);
    }
};

} // namespace

// --- The whole way ----------------------------------------------------------------------------------------------

TEST_F(BestApTest, AsksForAConnectionByProfile)
{
    EXPECT_EQ(0, manager().ConnectBestAP(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(ProfilesLine(), NetworksLine(), ReadProfileLine("Plain"), kRelease,
                                         ReadProfileLine("Boosted"), kRelease, NetworkBssLine("Boosted"),
                                         ConnectLine("Boosted"), kRelease, kRelease, kRelease));
    ExpectSilence();
}

TEST_F(BestApTest, TheNetworksOwnBssTypeIsAskedFor)
{
    UseScenario(RichScenario());
    EditedAnswers edited;
    edited.service.SetProfileText(L"AdHocNet", L"<connectionMode>auto</connectionMode>");
    EXPECT_EQ(0, manager().ConnectBestAP(&kAdapterA, L"HomeNet"));
    EXPECT_EQ("{mode=profile, profile=\"AdHocNet\", ssid=null, bssids=null, bssType=independent, flags=0}",
              call("WlanConnect")["parameters"]);
}

// --- Failures ---------------------------------------------------------------------------------------------------

TEST_F(BestApTest, FailuresBesideTheLists)
{
    for (const auto& [name, call] : Overloads())
    {
        const char* const unread = "WlanGetProfile failed with error: %u";
        CheckFailure(*this, {name, call, "WlanGetProfile", -9, {unread, unread}, TraceBuffer::local});
        UseScenario(ScenarioOf({Profile("Net", "manual"), Profile("GoneNet")}, {Heard("Net", 2412000, -50)}));
        EXPECT_EQ(-9, call(manager()));
        ExpectSilence();
        UseScenario(TwoNetworks(-60, -70));
    }
}

// Only 1 means automatic: the codes below zero do not.
TEST_F(BestApTest, AProfileWithoutAModeIsNotACandidate)
{
    EditedAnswers edited;
    edited.service.SetProfileText(L"Plain", L"");                    // -5
    edited.service.SetProfileText(L"Boosted", L"</connectionMode>"); // -6
    EXPECT_EQ(-9, manager().ConnectBestAP(&kAdapterA));
}

// --- Candidates -------------------------------------------------------------------------------------------------

// Deliberate: compared over the network's length only.
TEST_F(BestApTest, ALongerExcludedSsidRulesOutWhatItBeginsWith)
{
    UseScenario(ScenarioOf({Profile("HomeNet")}, {Heard("HomeNet", 2412000, -50)}));
    const auto codeWithout = [this](const std::string& ssid)
    {
        Excluded excluded = {EntryOf(ssid)};
        return manager().ConnectBestAP(&kAdapterA, &excluded);
    };
    EXPECT_EQ(-9, codeWithout("HomeNet5G"));
    EXPECT_EQ(-9, codeWithout("HomeNet"));
    EXPECT_EQ(0, codeWithout("Home"));
    EXPECT_EQ(0, codeWithout("homenet"));
    EXPECT_EQ(0, codeWithout("MyHomeNet"));
    EXPECT_EQ(0, codeWithout(""));
}

// --- Ranking ----------------------------------------------------------------------------------------------------

// Deliberate: from the weakest upward.
TEST_F(BestApTest, TheLowestScoreIsTriedFirst)
{
    EXPECT_THAT(Ranking(), ElementsAre("Boosted", "Plain")) << "60 + 10 before 80";
    UseScenario(TwoNetworks(-68, -70));
    EXPECT_THAT(Ranking(), ElementsAre("Plain", "Boosted")) << "64 before 60 + 10";
    UseScenario(TwoNetworks(-80, -70));
    EXPECT_THAT(Ranking(), ElementsAre("Plain", "Boosted")) << "40 before 70";
}

// Deliberate: one BSS query, for the network listed last, candidate or not.
TEST_F(BestApTest, OnlyTheNetworkListedLastCanEarnTheBonus)
{
    UseScenario(ScenarioOf({Profile("Boosted"), Profile("Plain")},
                           {Heard("Boosted", 5180000, -70), Heard("Plain", 2412000, -68)}));
    EXPECT_THAT(Ranking(), ElementsAre("Boosted", "Plain")) << "60 before 64";
    EXPECT_EQ(1u, callCount("WlanGetNetworkBssList"));
    EXPECT_EQ("\"Plain\"/5", call("WlanGetNetworkBssList")["ssid"]);

    UseScenario(
        ScenarioOf({Profile("Boosted"), Profile("Plain")},
                   {Heard("Boosted", 5180000, -70), Heard("Plain", 2412000, -68), Heard("Nobody's", 5180000, -70)}));
    EXPECT_THAT(Ranking(), ElementsAre("Boosted", "Plain"));
    EXPECT_EQ("\"Nobody's\"/8", call("WlanGetNetworkBssList")["ssid"]);
}

// A candidate is its entry of the network list: what one candidate earns, the other has.
TEST_F(BestApTest, TwoProfilesOfOneNameShareTheScoreOfTheirNetwork)
{
    UseScenario(ScenarioOf({Profile("Twice"), Profile("Again"), Profile("Once")},
                           {Heard("Once", 2412000, -62), Heard("Twice", 5180000, -70)}));
    EditedAnswers edited;
    edited.service.profiles = [](WLAN_PROFILE_INFO_LIST& list)
    {
        WLAN_PROFILE_INFO* const profiles = list.ProfileInfo;
        std::copy_n(L"Twice", 6, profiles[1].strProfileName);
    };
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        WLAN_AVAILABLE_NETWORK* const networks = list.Network;
        EXPECT_EQ(60u, networks[1].wlanSignalQuality);
        networks[0].wlanSignalQuality = 75;
    };
    const std::vector<std::string> order = {"Once", "Twice", "Twice"};
    EXPECT_EQ(order, Ranking()) << "60 and a bonus for each of the two is 80, more than 75";

    ClearCalls();
    FailOn("WlanConnect");
    EXPECT_EQ(-12, manager().AutoConnectEx(&kAdapterA));
    EXPECT_EQ(order, RequestedProfiles(*this));
}

TEST_F(BestApTest, MoreThanThirtyTwoCandidatesAreAllTriedInOrder)
{
    std::vector<simulation::StoredProfile> profiles;
    std::vector<simulation::AccessPoint> heard;
    std::vector<std::string> expected;
    for (int i = 0; i < 40; ++i)
    {
        const std::string name = "Net" + std::to_string(i);
        profiles.push_back(Profile(name));
        heard.push_back(Heard(name, 2412000, -100 + i * 17 % 40));
        expected.push_back("Net" + std::to_string(i * 33 % 40)); // 17 x 33 leaves 1
    }
    UseScenario(ScenarioOf(profiles, heard));
    EXPECT_EQ(expected, Ranking());
}

} // namespace calvix::test::best_ap_test
