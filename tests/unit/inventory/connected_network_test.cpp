#include "support/library_test.h"
#include "unit/call_lines.h"
#include "unit/inventory/trace_texts.h"

namespace calvix::test::connected_network_test
{

using ::testing::ElementsAre;

namespace
{

class ConnectedNetworkTest : public LibraryTest
{
};

} // namespace

// --- IsWiFiDisappear ---

TEST_F(ConnectedNetworkTest, ANetworkInViewHasNotDisappeared)
{
    EXPECT_EQ(0, manager().IsWiFiDisappear(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(ConnectionQuery(), NetworkBssLine("HomeNet"), kRelease, kRelease));
    EXPECT_THAT(traced(), ElementsAre(kConnectionReleased, kBssReleased));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ConnectedNetworkTest, OneAccessPointOfTheNetworkIsEnough)
{
    std::erase_if(computer().air(),
                  [](const auto& point) { return point.bssid == kHomeNet24 || point.bssid == kHomeNet5; });
    EXPECT_EQ(0, manager().Rescan());
    Advance(std::chrono::seconds(4));
    EXPECT_EQ(0, manager().IsWiFiDisappear(&kAdapterA));
    EXPECT_EQ(0, manager().GetCurrentBSS());
}

TEST_F(ConnectedNetworkTest, AnOpenNetworkIsAskedForAsOne)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[1].connection = simulation::Connection{"CafeNet", kCafeNet};
    UseScenario(scenario);
    EXPECT_EQ(0, manager().IsWiFiDisappear(&kAdapterB));
    EXPECT_EQ("false", call("WlanGetNetworkBssList")["securityEnabled"]);
    EXPECT_EQ("\"CafeNet\"/7", call("WlanGetNetworkBssList")["ssid"]);
    EXPECT_EQ(kAdapterBText, call("WlanGetNetworkBssList")["interface"]);
}

// --- GetCurrentBSS ---

TEST_F(ConnectedNetworkTest, TheFirstAdaptersNetworkIsInView)
{
    EXPECT_EQ(0, manager().GetCurrentBSS());
    EXPECT_THAT(callLines(), ElementsAre(InterfacesLine(), ConnectionQuery(), NetworkBssLine("HomeNet"), kRelease,
                                         kRelease, kRelease));
    EXPECT_THAT(traced(), ElementsAre(kConnectionReleased, kBssReleased, kInterfacesReleased));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ConnectedNetworkTest, EachReleaseIsTracedJustBeforeIt)
{
    EXPECT_EQ(0, manager().GetCurrentBSS());
    std::string order;
    for (const std::string& line : timeline())
        if (line.starts_with("WlanFreeMemory"))
            order += "free ";
        else if (line.find("WlanFreeMemory(") != std::string::npos)
            order += "trace ";
    EXPECT_EQ("trace free trace free trace free ", order);
}

TEST_F(ConnectedNetworkTest, TheSecondAdapterIsNeverAsked)
{
    simulation::Scenario scenario = DisconnectedScenario();
    scenario.adapters[1].connection = simulation::Connection{"CafeNet", kCafeNet};
    UseScenario(scenario);
    EXPECT_EQ(-4, manager().GetCurrentBSS());
    EXPECT_EQ(1u, callCount("WlanQueryInterface"));
    EXPECT_EQ(kAdapterAText, call("WlanQueryInterface")["interface"]);
}

} // namespace calvix::test::connected_network_test
