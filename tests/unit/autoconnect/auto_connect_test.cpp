#include "support/edited_answers.h"
#include "support/library_test.h"
#include "support/result_code.h"
#include "unit/autoconnect/requests.h"
#include "unit/autoconnect/small_worlds.h"
#include "unit/inventory/failures.h"

#include <string>

namespace calvix::test::auto_connect_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

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

simulation::Scenario WithoutMatch()
{
    return WorldOf({Profile("GoneNet")}, {Heard("Net", 2412000, -50)});
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
    EXPECT_THAT(callLines(), ElementsAre(ProfilesLine(), NetworksLine(), ConnectLine("First"), kRelease, kRelease))
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
    EXPECT_EQ(ConnectLine("First", "null", "independent"), call("WlanConnect", 1).line);
    EXPECT_EQ(ConnectLine("First"), call("WlanConnect", 2).line);
    EXPECT_EQ(ConnectLine("Second"), call("WlanConnect", 3).line);
}

TEST_F(AutoConnectTest, Failures)
{
    const Failures connect(*this, "AutoConnect", Auto);
    connect.When("WlanOpenHandle", -1);
    connect.When("WlanGetProfileList", -4);
    connect.When("WlanGetAvailableNetworkList", -6);
    connect.In(WithoutMatch(), -9);
    // Deliberate: a walk on which every request was refused reports success.
    connect.When("WlanConnect", 0, {kConnectFailed});
}

// --- Both -------------------------------------------------------------------------------------------------------

// The codes are traced as unsigned numbers.
TEST_F(AutoConnectTest, NothingToMatch)
{
    for (const Failures& connect : {Failures(*this, "AutoConnect", Auto), Failures(*this, "AutoConnectEx", AutoEx)})
    {
        connect.In(NoProfileWorld(), -5, {"No network profile: 4294967291"});
        connect.In(SilentWorld(), -7, {"No available network: 4294967289"});
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
    EXPECT_THAT(callLines(), ElementsAre(ProfilesLine(), NetworksLine(), NetworkBssLine("First"), ConnectLine("First"),
                                         kRelease, kRelease, kRelease));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
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
    const Failures connect(*this, "AutoConnectEx", AutoEx);
    connect.When("WlanOpenHandle", -1);
    connect.When("WlanGetProfileList", -4);
    connect.When("WlanGetAvailableNetworkList", -6);
    connect.When("WlanGetNetworkBssList", CodeOf("AutoConnectEx", host::Cause::bssListFailed));
    connect.When("WlanConnect", -12, {kConnectFailed});
    connect.In(WithoutMatch(), -9);
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
