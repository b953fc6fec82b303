#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/requests.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

#include <string>

namespace calvix::test::auto_switch_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// Connected by "Old"; "Other" is heard better, and preferred less.
simulation::Scenario SwitchScenario(std::vector<simulation::StoredProfile> profiles = {Profile("Old"),
                                                                                       Profile("Other")})
{
    simulation::Scenario scenario =
        ScenarioOf(std::move(profiles), {Heard("Old", 2412000, -65), Heard("Other", 2412000, -60)});
    scenario.adapters[0].connection = simulation::Connection{"Old", std::nullopt};
    return scenario;
}

long long Switch(CWirelessManage& manager)
{
    return manager.AutoSwitch(&kAdapterA);
}

class AutoSwitchTest : public LibraryTest
{
public:
    AutoSwitchTest() : LibraryTest(SwitchScenario()) {}
};

/// On a platform that converts SSIDs with the flags that SmartSwitch passes.
long long Smart(CWirelessManage& manager)
{
    EditedAnswers edited;
    edited.conversion.takesAllFlagsForUtf8 = true;
    return manager.SmartSwitch(&kAdapterA);
}

class SmartSwitchTest : public AutoSwitchTest
{
public:
    /// SmartSwitch with another current SSID and quality. Old's network has 70, Other's 80.
    int SwitchFrom(const DOT11_SSID& ssid, ULONG quality)
    {
        EditedAnswers edited;
        edited.service.currentConnection = [&ssid, quality](WLAN_CONNECTION_ATTRIBUTES& connection)
        {
            connection.wlanAssociationAttributes.dot11Ssid = ssid;
            connection.wlanAssociationAttributes.wlanSignalQuality = quality;
        };
        const auto code = static_cast<int>(Smart(manager()));
        Advance(std::chrono::seconds(5));
        return code;
    }
};

} // namespace

// --- AutoSwitch -------------------------------------------------------------------------------------------------

TEST_F(AutoSwitchTest, MovesTheCurrentProfileToTheLastPlaceThenWalks)
{
    FailOn("WlanConnect", 1234, 1, 1);
    EXPECT_EQ(0, Switch(manager()));
    EXPECT_THAT(callLines(),
                ElementsAre(ConnectionQuery(), ProfilesLine(),
                            CallForA("WlanSetProfilePosition", "name=\"Old\", position=1, reserved=null"),
                            NetworksLine(), ConnectLine("Old"), ConnectLine("Other"), kRelease, kRelease, kRelease));
    EXPECT_THAT(traced(), ElementsAre("WlanConnect failed with error: 1234"));
    EXPECT_TRUE(sharedTraceUntouched());
}

// Deliberate: the walk follows the order from before the move, and so may come back to the current profile.
TEST_F(AutoSwitchTest, TheWalkFollowsTheOldOrder)
{
    EXPECT_EQ(0, Switch(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Old"));
    EXPECT_EQ(1u, callCount("WlanGetProfileList")) << "the list is not fetched again";
    EXPECT_TRUE(traced().empty());

    Advance(std::chrono::seconds(5));
    ClearCalls();
    EXPECT_EQ(0, Switch(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Other")) << "by now the move is seen";
}

// No list is looked at for being empty: nothing matches, that is all.
TEST_F(AutoSwitchTest, WhereNothingMatchesItIsMinusSevenWithoutATrace)
{
    const auto expectNoMatch = [this](const char* what)
    {
        ClearCalls();
        EXPECT_EQ(-7, Switch(manager())) << what;
        EXPECT_EQ(1u, callCount("WlanGetAvailableNetworkList")) << what;
        EXPECT_THAT(RequestedProfiles(*this), IsEmpty()) << what;
        EXPECT_TRUE(traced().empty()) << what;
        EXPECT_TRUE(sharedTraceUntouched()) << what;
    };
    EditedAnswers edited;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list) { list.dwNumberOfItems = 0; };
    expectNoMatch("no network");
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    { list.Network[0].strProfileName[0] = list.Network[1].strProfileName[0] = L'X'; };
    expectNoMatch("no match");
    edited.service.profiles = [](WLAN_PROFILE_INFO_LIST& list) { list.dwNumberOfItems = 0; };
    expectNoMatch("no profile");
    EXPECT_EQ(0u, callCount("WlanSetProfilePosition"));
}

// --- SmartSwitch ------------------------------------------------------------------------------------------------

TEST_F(SmartSwitchTest, AsksForANetworkThatIsBetterThanTheCurrentOne)
{
    EXPECT_EQ(0, Smart(manager()));
    EXPECT_EQ((std::vector<std::string>{ConnectionQuery(), callLines()[1], ProfilesLine(), NetworksLine(),
                                        ConnectLine("Other"), kRelease, kRelease, kRelease}),
              callLines());
    EXPECT_EQ("65001", call("MultiByteToWideChar")["codePage"]);
    EXPECT_EQ("\"Old\"", call("MultiByteToWideChar")["source"]);
    EXPECT_EQ("-1", call("MultiByteToWideChar")["sourceLength"]);
    ExpectSilence();
}

// Deliberate: the flags are those for narrow code pages, which the platform refuses for UTF-8.
TEST_F(SmartSwitchTest, TheConversionIsAskedForWithFlagsThatThePlatformRefuses)
{
    EXPECT_EQ(1004, manager().SmartSwitch(&kAdapterA));
    EXPECT_EQ("9", call("MultiByteToWideChar")["flags"]);
    EXPECT_THAT(calls(), ElementsAre("WlanQueryInterface", "MultiByteToWideChar", "WlanFreeMemory"));
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 1004"));
    EXPECT_TRUE(sharedTraceUntouched());
}

// Deliberate: the current SSID is compared with the names of profiles.
TEST_F(SmartSwitchTest, ANetworkWhoseProfileIsNamedLikeTheCurrentSsidIsPassedOver)
{
    EXPECT_EQ(-2, SwitchFrom(MakeSsid("Other"), 75)) << "Other's would be better";
    EXPECT_EQ(0, SwitchFrom(MakeSsid("Elsewhere"), 75));
    EXPECT_EQ(0, SwitchFrom(MakeSsid("Other"), 65));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Other", "Old"));
}

TEST_F(SmartSwitchTest, AnSsidThatIsNotUtf8EndsIt)
{
    EXPECT_EQ(1113, SwitchFrom(MakeSsid("Caf\xE9"), 75));
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 1113"));
    EXPECT_EQ(0u, callCount("WlanGetProfileList"));
}

TEST_F(SmartSwitchTest, AFailedConversionIsTracedWithAnyLastError)
{
    FailOn("MultiByteToWideChar", 0);
    EXPECT_EQ(0, Smart(manager())) << "the last error is the result";
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 0"));
    EXPECT_EQ(0u, callCount("WlanGetProfileList"));
}

// An SSID that states more than 256 bytes is read as an empty one.
TEST_F(SmartSwitchTest, NoMoreThanTheSsidIsRead)
{
    for (const auto& [stated, read] : {std::pair(200u, 32u), std::pair(256u, 32u), std::pair(257u, 0u)})
    {
        ClearCalls();
        DOT11_SSID tooLong = MakeSsid(std::string(32, 's'));
        tooLong.uSSIDLength = stated;
        EXPECT_EQ(0, SwitchFrom(tooLong, 75));
        EXPECT_EQ('"' + std::string(read, 's') + '"', call("MultiByteToWideChar")["source"]) << stated;
    }
}

} // namespace calvix::test::auto_switch_test
