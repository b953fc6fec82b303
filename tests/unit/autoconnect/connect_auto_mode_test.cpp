#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/requests.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

#include <string>

namespace calvix::test::connect_auto_mode_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// On a platform that converts SSIDs with the flags that the method passes.
long long AutoMode(CWirelessManage& manager)
{
    EditedAnswers edited;
    edited.conversion.takesAllFlagsForUtf8 = true;
    return manager.ConnectAutoMode(&kAdapterA);
}

class ConnectAutoModeTest : public LibraryTest
{
public:
    ConnectAutoModeTest()
        : LibraryTest(
              ScenarioOf({Profile("Manual", "manual"), Profile("First"), Profile("Second")},
                         {Heard("Second", 2412000, -55), Heard("First", 2412000, -80), Heard("Manual", 2412000, -50)}))
    {
    }
};

} // namespace

TEST_F(ConnectAutoModeTest, AsksForTheFirstAutomaticProfileInView)
{
    EXPECT_EQ(0, AutoMode(manager()));
    const auto convert = [](const char* ssid)
    {
        // The flags are 9; the platform of this test has dropped the one that it refuses.
        return "MultiByteToWideChar(codePage=65001, flags=8, source=\"" + std::string(ssid) +
               "\", sourceLength=-1, destination=non-null, destinationLength=128)";
    };
    EXPECT_THAT(callLines(), ElementsAre(ProfilesLine(), NetworksLine(), ReadProfileLine("Manual"), kRelease,
                                         ReadProfileLine("First"), kRelease, convert("Second"), convert("First"),
                                         ConnectLine("First"), kRelease, kRelease));
    ExpectSilence();
}

// Deliberate: the flags are those for narrow code pages, which the platform refuses for UTF-8. A network whose SSID is
// not converted is passed over, also when it carries the profile's name.
TEST_F(ConnectAutoModeTest, WhereThePlatformRefusesTheFlagsNoNetworkIsATarget)
{
    EXPECT_EQ(-9, manager().ConnectAutoMode(&kAdapterA));
    EXPECT_EQ(6u, callCount("MultiByteToWideChar")) << "two automatic profiles, three networks";
    EXPECT_EQ("9", call("MultiByteToWideChar")["flags"]);
    EXPECT_EQ(0u, callCount("WlanConnect"));
    EXPECT_TRUE(traced().empty());
}

TEST_F(ConnectAutoModeTest, ANetworkWhoseSsidIsNotUtf8IsPassedOver)
{
    EditedAnswers edited;
    edited.conversion.takesAllFlagsForUtf8 = true;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    { list.Network[1].dot11Ssid = MakeSsid("First\xE9"); };
    EXPECT_EQ(0, manager().ConnectAutoMode(&kAdapterA));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Second")) << "First's has its name and is passed over";
    EXPECT_TRUE(traced().empty());
}

// Deliberate: the request goes by the network's own profile name, which is empty where only the SSID matched.
TEST_F(ConnectAutoModeTest, ANetworkMatchesByItsSsidToo)
{
    simulation::AccessPoint open = Heard("First", 2412000, -50);
    open.authentication = "open";
    open.encryption = "none";
    UseScenario(ScenarioOf({Profile("First")}, {open})); // the profile is for the same SSID with WPA2
    EXPECT_EQ(0, AutoMode(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre(""));
    EXPECT_THAT(traced(), ElementsAre("WlanConnect failed with error: 87"));
}

TEST_F(ConnectAutoModeTest, AnSsidThatReadsLikeAnotherProfileIsRequestedByItsOwnName)
{
    UseScenario(ScenarioOf({Profile("Net"), ProfileFor("Alias", "Net", "manual")}, {Heard("Net", 2412000, -50)}));
    FailOn("WlanConnect");
    EXPECT_EQ(0, AutoMode(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Net", "Alias")) << "the manual one, for its SSID";
}

TEST_F(ConnectAutoModeTest, AnSsidThatStatesMoreThan64BytesReadsAsEmpty)
{
    EditedAnswers edited;
    edited.conversion.takesAllFlagsForUtf8 = true;
    ULONG stated = 65;
    edited.service.networks = [&stated](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        list.dwNumberOfItems = 1;
        list.Network[0].dot11Ssid = MakeSsid(std::string(32, 's'));
        list.Network[0].dot11Ssid.uSSIDLength = stated;
    };
    EXPECT_EQ(0, manager().ConnectAutoMode(&kAdapterA)) << "it still matches by its profile, Second";
    EXPECT_EQ("\"\"", call("MultiByteToWideChar")["source"]);
    stated = 64;
    EXPECT_EQ(0, manager().ConnectAutoMode(&kAdapterA));
    EXPECT_EQ('"' + std::string(32, 's') + '"', call("MultiByteToWideChar", 3)["source"]) << "no more than there is";
}

// --- Profiles ---------------------------------------------------------------------------------------------------

TEST_F(ConnectAutoModeTest, ProfilesThatAreNotAutomaticAreNotUsed)
{
    UseScenario(ScenarioOf({Profile("Net", "manual")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(-9, AutoMode(manager()));
    EXPECT_EQ(0u, callCount("MultiByteToWideChar"));
    UseScenario(ScenarioOf({Profile("GoneNet")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(-9, AutoMode(manager())) << "nor are those of networks out of view";
    EXPECT_TRUE(traced().empty());
    UseScenario(ScenarioOf({Profile("Net")}, {Heard("Net", 2412000, -50)}));
    for (const wchar_t* text : {L"", L"</connectionMode>", L"<connectionMode>Auto</connectionMode>"})
    {
        EditedAnswers edited;
        edited.service.SetProfileText(L"Net", text);
        EXPECT_EQ(-9, AutoMode(manager()));
    }
    EXPECT_THAT(RequestedProfiles(*this), IsEmpty());
}

// Deliberate: only the first 1023 characters of a profile are looked at.
TEST_F(ConnectAutoModeTest, AModeTooFarBackIsNotFound)
{
    const std::string end = "</connectionMode>";
    for (const auto& [room, expected] : {std::pair{1023u, 0}, std::pair{1022u, -9}})
    {
        std::string xml = Profile("Net").xml;
        const std::size_t seen = xml.find(end) + end.size();
        ASSERT_LT(seen, room);
        // White space before the mode pushes it back until it ends exactly, or one too late, for what is looked at.
        xml.insert(xml.find("<connectionMode>"), 1023 - seen + (1023 - room), ' ');
        ASSERT_EQ(1023 + (1023 - room), xml.find(end) + end.size());
        UseScenario(ScenarioOf({{xml}}, {Heard("Net", 2412000, -50)}));
        EXPECT_EQ(expected, AutoMode(manager())) << room;
    }
}

} // namespace calvix::test::connect_auto_mode_test
