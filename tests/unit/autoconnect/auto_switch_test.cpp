#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/requests.h"
#include "unit/autoconnect/small_worlds.h"
#include "unit/inventory/trace_texts.h"

#include <string>

namespace calvix::test::auto_switch_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr const char* kNameError = "Profile Name error: %u";

const std::string kStart = std::string("(client=1, interface=") + kAdapterAText;
const std::string kConnectionQuery = "WlanQueryInterface" + kStart +
                                     ", opcode=current_connection, reserved=null, "
                                     "dataSize=sizeof(WLAN_CONNECTION_ATTRIBUTES), data=non-null, valueType=null)";
const std::string kProfiles = "WlanGetProfileList" + kStart + ", reserved=null, list=non-null)";
const std::string kNetworks = "WlanGetAvailableNetworkList" + kStart + ", flags=0, reserved=null, list=non-null)";

/// Connected by "Old"; "Other" is heard better, and preferred less.
simulation::Scenario SwitchWorld(std::vector<simulation::StoredProfile> profiles = {Profile("Old"), Profile("Other")})
{
    simulation::Scenario world =
        WorldOf(std::move(profiles), {Heard("Old", 2412000, -65), Heard("Other", 2412000, -60)});
    world.adapters[0].connection = simulation::Connection{"Old", std::nullopt};
    return world;
}

long long Switch(CWirelessManage& manager)
{
    return manager.AutoSwitch(&kAdapterA);
}

class AutoSwitchTest : public LibraryTest
{
public:
    AutoSwitchTest() : LibraryTest(SwitchWorld()) {}
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
    /// SmartSwitch with a current link of quality 70 and Other's network at `quality`.
    int SwitchTo(ULONG quality)
    {
        EditedAnswers edited;
        edited.conversion.takesAllFlagsForUtf8 = true;
        edited.service.networks = [quality](WLAN_AVAILABLE_NETWORK_LIST& list)
        { list.Network[1].wlanSignalQuality = quality; };
        const int code = manager().SmartSwitch(&kAdapterA);
        Advance(std::chrono::seconds(5)); // what was requested is connected to then
        return code;
    }

    /// SmartSwitch with another current SSID and quality. Old's network has 70, Other's 80.
    int SwitchFrom(const DOT11_SSID& ssid, ULONG quality)
    {
        EditedAnswers edited;
        edited.conversion.takesAllFlagsForUtf8 = true;
        edited.service.currentConnection = [&ssid, quality](WLAN_CONNECTION_ATTRIBUTES& connection)
        {
            connection.wlanAssociationAttributes.dot11Ssid = ssid;
            connection.wlanAssociationAttributes.wlanSignalQuality = quality;
        };
        const int code = manager().SmartSwitch(&kAdapterA);
        Advance(std::chrono::seconds(5)); // what was requested is connected to then
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
                ElementsAre(kConnectionQuery, kProfiles,
                            "WlanSetProfilePosition" + kStart + ", name=\"Old\", position=1, reserved=null)", kNetworks,
                            StandardRequest("Old"), StandardRequest("Other"), kRelease, kRelease, kRelease));
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

TEST_F(AutoSwitchTest, TheProfileIsMovedNotTheSsid)
{
    simulation::Scenario scenario = SwitchWorld();
    scenario.adapters[0].profiles = {Profile("Other"), ProfileFor("Named", "Old"), Profile("Third")};
    scenario.adapters[0].connection = simulation::Connection{"Named", std::nullopt};
    UseWorld(scenario);
    EXPECT_EQ(0, Switch(manager()));
    EXPECT_EQ("\"Named\"", call("WlanSetProfilePosition")["name"]);
    EXPECT_EQ("2", call("WlanSetProfilePosition")["position"]);
}

TEST_F(AutoSwitchTest, ASingleProfileIsNotMovedAndMayBeConnectedAgain)
{
    UseWorld(SwitchWorld({Profile("Old")}));
    EXPECT_EQ(0, Switch(manager()));
    EXPECT_THAT(calls(), ElementsAre("WlanQueryInterface", "WlanGetProfileList", "WlanGetAvailableNetworkList",
                                     "WlanConnect", "WlanFreeMemory", "WlanFreeMemory", "WlanFreeMemory"));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Old"));
}

TEST_F(AutoSwitchTest, Failures)
{
    const char* const name = "AutoSwitch";
    const auto local = TraceBuffer::local;
    CheckFailures(*this, {{name, Switch, "WlanOpenHandle", -1, {kOpenFailed}, local},
                          {name, Switch, "WlanQueryInterface", -3, {kQueryFailed}, local},
                          {name, Switch, "WlanGetProfileList", -4, {kProfilesFailed}, local},
                          {name, Switch, "WlanSetProfilePosition", -5, {kMoveFailed}, local},
                          {name, Switch, "WlanGetAvailableNetworkList", -6, {kNetworksFailed}, local},
                          {.method = "AutoSwitch, not connected",
                           .call = Switch,
                           .expected = -3,
                           .traced = {kNotConnected},
                           .buffer = local,
                           .prepare = [](auto& test) { test.UseWorld(DisconnectedWorld()); }}});
}

// Deliberate: a walk on which every request was refused reports success.
TEST_F(AutoSwitchTest, ARefusedOnlyWalkReportsSuccess)
{
    CheckFailures(*this,
                  {{"AutoSwitch", Switch, "WlanConnect", 0, {kConnectFailed, kConnectFailed}, TraceBuffer::local}});
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
    EXPECT_EQ((std::vector<std::string>{kConnectionQuery, callLines()[1], kProfiles, kNetworks,
                                        StandardRequest("Other"), kRelease, kRelease, kRelease}),
              callLines());
    EXPECT_EQ("65001", call("MultiByteToWideChar")["codePage"]);
    EXPECT_EQ("\"Old\"", call("MultiByteToWideChar")["source"]);
    EXPECT_EQ("-1", call("MultiByteToWideChar")["sourceLength"]);
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
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

TEST_F(SmartSwitchTest, OnePointBetterIsEnoughAndAsGoodIsNot)
{
    EXPECT_EQ(-2, SwitchTo(70));
    EXPECT_EQ(-2, SwitchTo(69));
    EXPECT_EQ(-2, SwitchTo(0));
    EXPECT_THAT(RequestedProfiles(*this), IsEmpty());
    EXPECT_TRUE(traced().empty());
    EXPECT_EQ(0, SwitchTo(71));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Other"));
}

TEST_F(SmartSwitchTest, TheFirstInProfileOrderIsTakenNotTheBest)
{
    simulation::Scenario scenario =
        WorldOf({Profile("Old"), Profile("Good"), Profile("Better")},
                {Heard("Better", 2412000, -50), Heard("Good", 2412000, -60), Heard("Old", 2412000, -80)});
    scenario.adapters[0].connection = simulation::Connection{"Old", std::nullopt};
    UseWorld(scenario);
    EXPECT_EQ(0, Smart(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Good"));
}

TEST_F(SmartSwitchTest, ARefusedRequestIsTheEnd)
{
    UseWorld(SwitchWorld({Profile("Old"), Profile("Other"), ProfileFor("Again", "Other")}));
    FailOn("WlanConnect", 1234);
    EXPECT_EQ(1234, Smart(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Other")) << "no second candidate is tried";
    ClearFailures();
    FailOn("WlanConnect", 0x80342002);
    EXPECT_EQ(static_cast<int>(0x80342002u), Smart(manager()));
}

// Deliberate: the current SSID is compared with the names of profiles.
TEST_F(SmartSwitchTest, ANetworkWhoseProfileIsNamedLikeTheCurrentSsidIsPassedOver)
{
    EXPECT_EQ(-2, SwitchFrom(MakeSsid("Other"), 75)) << "Other's would be better";
    EXPECT_EQ(0, SwitchFrom(MakeSsid("Elsewhere"), 75));
    EXPECT_EQ(0, SwitchFrom(MakeSsid("Other"), 65));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Other", "Old"));
}

TEST_F(SmartSwitchTest, TheCurrentSsidIsTakenAsUtf8AndComparedExactly)
{
    for (const char* ssid : {"other", "OTHER", "Othe", "Other ", ""})
        EXPECT_EQ(0, SwitchFrom(MakeSsid(ssid), 75)) << ssid;

    UseWorld(SwitchWorld({Profile("Old"), ProfileFor("Caf\xC3\xA9", "Other")}));
    EXPECT_EQ(-2, SwitchFrom(MakeSsid("Caf\xC3\xA9"), 75));
    EXPECT_EQ(0, SwitchFrom(MakeSsid("Cafe"), 75));
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

TEST_F(SmartSwitchTest, NoMoreThanTheSsidIsRead)
{
    DOT11_SSID tooLong = MakeSsid(std::string(32, 's'));
    tooLong.uSSIDLength = 200;
    EXPECT_EQ(0, SwitchFrom(tooLong, 75));
    EXPECT_EQ('"' + std::string(32, 's') + '"', call("MultiByteToWideChar")["source"]);
}

TEST_F(SmartSwitchTest, NothingToSwitchTo)
{
    EditedAnswers edited;
    edited.conversion.takesAllFlagsForUtf8 = true;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list) { list.dwNumberOfItems = 0; };
    EXPECT_EQ(-2, manager().SmartSwitch(&kAdapterA));
    edited.service.networks = {};
    edited.service.profiles = [](WLAN_PROFILE_INFO_LIST& list) { list.dwNumberOfItems = 0; };
    EXPECT_EQ(-2, manager().SmartSwitch(&kAdapterA));
    EXPECT_EQ(2u, callCount("WlanGetAvailableNetworkList"));
    EXPECT_TRUE(traced().empty());
}

TEST_F(SmartSwitchTest, Failures)
{
    const char* const name = "SmartSwitch";
    const auto local = TraceBuffer::local;
    CheckFailures(*this, {{name, Smart, "WlanOpenHandle", -1, {kOpenFailed}, local},
                          {name, Smart, "WlanQueryInterface", 5, {kQueryFailed}, local},
                          {name, Smart, "MultiByteToWideChar", 5, {kNameError}, local},
                          {name, Smart, "WlanGetProfileList", 5, {kProfilesFailed}, local},
                          {name, Smart, "WlanGetAvailableNetworkList", 5, {kNetworksFailed}, local},
                          {name, Smart, "WlanConnect", 5, {kConnectFailed}, local},
                          {.method = "SmartSwitch, not connected",
                           .call = Smart,
                           .expected = 5023,
                           .traced = {kNotConnected},
                           .buffer = local,
                           .prepare = [](auto& test) { test.UseWorld(DisconnectedWorld()); }}});
}

} // namespace calvix::test::auto_switch_test
