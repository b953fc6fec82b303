#include "support/library_test.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"
#include "unit/profiles/profile_names.h"

#include <string>
#include <vector>

namespace calvix::test::preference_order_test
{

using ::testing::ElementsAre;

namespace
{

class PreferenceOrderTest : public LibraryTest
{
public:
    std::vector<std::wstring> Order() { return ProfileNames(*this); }
};

simulation::Scenario ConnectedScenario(std::vector<simulation::StoredProfile> profiles, const std::string& connected)
{
    simulation::Scenario scenario = ScenarioOf(std::move(profiles), {Heard("Net", 2412000, -50)});
    scenario.adapters[0].connection = simulation::Connection{connected, std::nullopt};
    return scenario;
}

} // namespace

TEST_F(PreferenceOrderTest, TheConnectedNetworksProfileGoesToTheLastPlace)
{
    EXPECT_EQ(0, manager().SetCurrentWiFiToLast());
    EXPECT_THAT(callLines(),
                ElementsAre(InterfacesLine(), ProfilesLine(), ConnectionQuery(),
                            CallForA("WlanSetProfilePosition", "name=\"HomeNet\", position=4, reserved=null"), kRelease,
                            kRelease, kRelease));
    ExpectSilence();
    EXPECT_THAT(Order(), ElementsAre(L"OfficeNet", L"HiddenNet", L"AdHocNet", L"GoneNet", L"HomeNet"));
}

TEST_F(PreferenceOrderTest, WhatIsLastStaysLast)
{
    EXPECT_EQ(0, manager().SetCurrentWiFiToLast());
    EXPECT_EQ(0, manager().SetCurrentWiFiToLast());
    EXPECT_THAT(Order(), ElementsAre(L"OfficeNet", L"HiddenNet", L"AdHocNet", L"GoneNet", L"HomeNet"));
}

TEST_F(PreferenceOrderTest, TheProfileIsMovedNotTheSsid)
{
    UseScenario(ConnectedScenario({ProfileFor("First", "Net"), Profile("Net")}, "First"));
    EXPECT_EQ(0, manager().SetCurrentWiFiToLast());
    EXPECT_EQ("\"First\"", call("WlanSetProfilePosition")["name"]);
    EXPECT_EQ("1", call("WlanSetProfilePosition")["position"]);
    EXPECT_THAT(Order(), ElementsAre(L"Net", L"First"));
}

TEST_F(PreferenceOrderTest, ASingleProfileIsNotMoved)
{
    UseScenario(ConnectedScenario({Profile("Net")}, "Net"));
    EXPECT_EQ(0, manager().SetCurrentWiFiToLast());
    EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WlanGetProfileList", "WlanQueryInterface", "WlanFreeMemory",
                                     "WlanFreeMemory", "WlanFreeMemory"));
    EXPECT_TRUE(traced().empty());
}

// The connection is asked for before the profiles are counted.
TEST_F(PreferenceOrderTest, WithoutAConnectionTheCountOfProfilesDoesNotMatter)
{
    UseScenario(ScenarioOf({Profile("Net")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(5023, manager().SetCurrentWiFiToLast());
    UseScenario(NoProfileScenario());
    EXPECT_EQ(5023, manager().SetCurrentWiFiToLast());
}

TEST_F(PreferenceOrderTest, OnlyTheFirstInterfaceIsLookedAt)
{
    simulation::Scenario scenario = DisconnectedScenario();
    scenario.adapters[1].connection = simulation::Connection{"CafeNet", kCafeNet};
    UseScenario(scenario);
    EXPECT_EQ(5023, manager().SetCurrentWiFiToLast());
    EXPECT_EQ(1u, callCount("WlanQueryInterface"));
    EXPECT_EQ(kAdapterAText, call("WlanQueryInterface")["interface"]);
}

} // namespace calvix::test::preference_order_test
