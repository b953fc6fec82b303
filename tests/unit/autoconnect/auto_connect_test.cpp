#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/requests.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

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
    return ScenarioOf({Profile("First", "manual"), Profile("GoneNet"), Profile("Second")},
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
    EXPECT_THAT(callLines(), ElementsAre(ProfilesLine(), NetworksLine(), ConnectLine("First"), kRelease, kRelease))
        << "neither modes nor signal matter";
    ExpectSilence();
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

// --- AutoConnectEx ----------------------------------------------------------------------------------------------

// Deliberate: from the weakest upward. Modes do not matter, so that no profile is read.
TEST_F(AutoConnectExTest, RanksAllMatchingNetworksBySignal)
{
    EXPECT_EQ(0, AutoEx(manager()));
    EXPECT_THAT(callLines(), ElementsAre(ProfilesLine(), NetworksLine(), NetworkBssLine("First"), ConnectLine("First"),
                                         kRelease, kRelease, kRelease));
    ExpectSilence();
}

} // namespace calvix::test::auto_connect_test
