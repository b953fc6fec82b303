#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "support/result_code.h"
#include "unit/autoconnect/requests.h"
#include "unit/autoconnect/small_worlds.h"
#include "unit/inventory/trace_texts.h"

#include <string>

namespace calvix::test::auto_connect_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

const std::string kStart = std::string("(client=1, interface=") + kAdapterAText;
const std::string kProfiles = "WlanGetProfileList" + kStart + ", reserved=null, list=non-null)";
const std::string kNetworks = "WlanGetAvailableNetworkList" + kStart + ", flags=0, reserved=null, list=non-null)";

long long Auto(CWirelessManage& manager)
{
    return manager.AutoConnect(&kAdapterA);
}

long long AutoEx(CWirelessManage& manager)
{
    return manager.AutoConnectEx(&kAdapterA);
}

/// Two profiles in view, the preferred one listed last and heard worst.
simulation::Scenario TwoNetworks()
{
    return WorldOf({Profile("First", "manual"), Profile("GoneNet"), Profile("Second")},
                   {Heard("Second", 2412000, -55), Heard("Nobody's", 2412000, -60), Heard("First", 2412000, -80)});
}

class AutoConnectTest : public LibraryTest
{
public:
    AutoConnectTest() : LibraryTest(TwoNetworks()) {}
};

using AutoConnectExTest = AutoConnectTest;

} // namespace

// --- AutoConnect ------------------------------------------------------------------------------------------------

TEST_F(AutoConnectTest, AsksForTheMostPreferredProfileInView)
{
    EXPECT_EQ(0, Auto(manager()));
    EXPECT_THAT(callLines(), ElementsAre(kProfiles, kNetworks, StandardRequest("First"), kRelease, kRelease))
        << "neither modes nor signal matter";
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(AutoConnectTest, StartsTheConnectionAndDoesNotWaitForIt)
{
    EXPECT_EQ(0, Auto(manager()));
    EXPECT_EQ(0, manager().WiFiIsConnected(&kAdapterA));
    Advance(std::chrono::seconds(5));
    EXPECT_EQ(1, manager().WiFiIsConnected(&kAdapterA));
}

TEST_F(AutoConnectTest, ARefusedRequestIsFollowedByTheNextProfile)
{
    FailOn("WlanConnect", 1234, 1, 1);
    EXPECT_EQ(0, Auto(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("First", "Second"));
    EXPECT_THAT(traced(), ElementsAre("WlanConnect failed with error: 1234"));
    EXPECT_EQ("WlanConnect failed with error: 1234", sharedTrace());
}

// Each network entry that carries a profile's name is a request of its own, in list order.
TEST_F(AutoConnectTest, AProfileIsTriedWithEachOfItsNetworks)
{
    EditedAnswers edited;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        std::copy_n(L"First", 6, list.Network[1].strProfileName);
        list.Network[1].dot11BssType = dot11_BSS_type_independent;
    };
    FailOn("WlanConnect");
    EXPECT_EQ(0, Auto(manager()));
    EXPECT_EQ(3u, callCount("WlanConnect"));
    EXPECT_EQ(StandardRequest("First", "independent"), call("WlanConnect", 1).line);
    EXPECT_EQ(StandardRequest("First"), call("WlanConnect", 2).line);
    EXPECT_EQ(StandardRequest("Second"), call("WlanConnect", 3).line);
}

TEST_F(AutoConnectTest, ProfilesMatchByTheirNameNotBySsid)
{
    UseWorld(WorldOf({ProfileFor("Profile", "Net")}, {Heard("Profile", 2412000, -50), Heard("Net", 2412000, -50)}));
    EXPECT_EQ(0, Auto(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Profile"));

    EditedAnswers edited;
    edited.service.profiles = [](WLAN_PROFILE_INFO_LIST& list)
    { std::copy_n(L"profile", 8, list.ProfileInfo[0].strProfileName); };
    EXPECT_EQ(-9, Auto(manager())) << "names are compared exactly";
}

TEST_F(AutoConnectTest, Failures)
{
    CheckFailures(*this,
                  {{"AutoConnect", Auto, "WlanOpenHandle", -1, {kOpenFailed}},
                   {"AutoConnect", Auto, "WlanGetProfileList", -4, {kProfilesFailed}},
                   {"AutoConnect", Auto, "WlanGetAvailableNetworkList", -6, {kNetworksFailed}},
                   {.method = "AutoConnect, nothing matches", .call = Auto, .expected = -9, .prepare = [](auto& t) {
                        t.UseWorld(WorldOf({Profile("GoneNet")}, {Heard("Net", 2412000, -50)}));
                    }}});
}

// Deliberate: a walk on which every request was refused reports success.
TEST_F(AutoConnectTest, ARefusedOnlyWalkReportsSuccess)
{
    CheckFailures(*this, {{"AutoConnect", Auto, "WlanConnect", 0, {kConnectFailed, kConnectFailed}}});
}

// --- Both -------------------------------------------------------------------------------------------------------

// The codes are traced as unsigned numbers.
TEST_F(AutoConnectTest, NothingToMatch)
{
    for (const auto& [name, method] : {std::pair{"AutoConnect", &Auto}, std::pair{"AutoConnectEx", &AutoEx}})
    {
        CheckFailures(*this, {{.method = name,
                               .call = method,
                               .expected = -5,
                               .traced = {"No network profile: 4294967291"},
                               .prepare = [](auto& test) { test.UseWorld(NoProfileWorld()); }},
                              {.method = name,
                               .call = method,
                               .expected = -7,
                               .traced = {"No available network: 4294967289"},
                               .prepare = [](auto& test) { test.UseWorld(SilentWorld()); }}});
    }
    UseWorld(NoProfileWorld());
    EXPECT_EQ(-5, Auto(manager()));
    EXPECT_THAT(calls(), ElementsAre("WlanGetProfileList", "WlanFreeMemory")) << "networks are not asked for";
}

TEST_F(AutoConnectTest, ANullInterfaceIsTheServicesToRefuse)
{
    EXPECT_EQ(-4, manager().AutoConnect(nullptr));
    EXPECT_EQ(-4, manager().AutoConnectEx(nullptr));
}

// --- AutoConnectEx ----------------------------------------------------------------------------------------------

// Deliberate: from the weakest upward. Modes do not matter, so that no profile is read.
TEST_F(AutoConnectExTest, RanksAllMatchingNetworksBySignal)
{
    EXPECT_EQ(0, AutoEx(manager()));
    EXPECT_THAT(callLines(), ElementsAre(kProfiles, kNetworks,
                                         "WlanGetNetworkBssList" + kStart +
                                             ", ssid=\"First\"/5, bssType=infrastructure, securityEnabled=true, "
                                             "reserved=null, list=non-null)",
                                         StandardRequest("First"), kRelease, kRelease, kRelease));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(AutoConnectExTest, TheLowestScoreIsTriedFirst)
{
    FailOn("WlanConnect");
    EXPECT_EQ(-12, AutoEx(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("First", "Second"));

    UseWorld(WorldOf({Profile("First"), Profile("Second", "manual")},
                     {Heard("First", 2412000, -60), Heard("Second", 2412000, -70)}));
    FailOn("WlanConnect");
    EXPECT_EQ(-12, AutoEx(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("Second", "First")) << "not by preference";
}

TEST_F(AutoConnectExTest, FiveGigahertzCountsTenMore)
{
    for (const auto& [plain, first] : {std::pair{-68, "Plain"}, std::pair{-60, "Boosted"}})
    {
        UseWorld(WorldOf({Profile("Plain", "manual"), Profile("Boosted")},
                         {Heard("Plain", 2412000, plain), Heard("Boosted", 5180000, -70)}));
        EXPECT_EQ(0, AutoEx(manager()));
        EXPECT_THAT(RequestedProfiles(*this), ElementsAre(first)) << "60 + 10 against " << 2 * (plain + 100);
    }
}

TEST_F(AutoConnectExTest, ARefusedRequestIsFollowedByTheNext)
{
    FailOn("WlanConnect", 1234, 1, 1);
    EXPECT_EQ(0, AutoEx(manager()));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("First", "Second"));
    EXPECT_EQ("WlanConnect failed with error: 1234", sharedTrace());
}

TEST_F(AutoConnectExTest, Failures)
{
    const char* const name = "AutoConnectEx";
    CheckFailures(*this,
                  {{name, AutoEx, "WlanOpenHandle", -1, {kOpenFailed}},
                   {name, AutoEx, "WlanGetProfileList", -4, {kProfilesFailed}},
                   {name, AutoEx, "WlanGetAvailableNetworkList", -6, {kNetworksFailed}},
                   {name, AutoEx, "WlanGetNetworkBssList", CodeOf(name, host::Cause::bssListFailed), {kBssFailed}},
                   {name, AutoEx, "WlanConnect", -12, {kConnectFailed, kConnectFailed}},
                   {.method = name, .call = AutoEx, .expected = -9, .prepare = [](auto& test) {
                        test.UseWorld(WorldOf({Profile("GoneNet")}, {Heard("Net", 2412000, -50)}));
                    }}});
}

TEST_F(AutoConnectExTest, AnEmptyBssListEndsItWithoutATrace)
{
    EditedAnswers edited;
    edited.service.bss = [](WLAN_BSS_LIST& list) { list.dwNumberOfItems = 0; };
    EXPECT_EQ(-11, AutoEx(manager()));
    EXPECT_THAT(RequestedProfiles(*this), IsEmpty());
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

} // namespace calvix::test::auto_connect_test
