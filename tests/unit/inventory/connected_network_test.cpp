#include "support/library_test.h"
#include "unit/call_lines.h"
#include "unit/inventory/failures.h"
#include "unit/inventory/trace_texts.h"

#include <algorithm>

namespace calvix::test::connected_network_test
{

using ::testing::ElementsAre;

namespace
{

class ConnectedNetworkTest : public LibraryTest
{
};

/// Adapter A still connected to HomeNet, but these access points the last scan did not hear.
void Lose(LibraryTest& test, const std::vector<simulation::MacAddress>& lost)
{
    std::erase_if(test.computer().air(),
                  [&](const auto& point) { return std::find(lost.begin(), lost.end(), point.bssid) != lost.end(); });
    test.manager().Rescan();
    test.Advance(std::chrono::seconds(4));
    test.ClearCalls();
}

void LoseHomeNet(LibraryTest& test)
{
    Lose(test, {kHomeNet24, kHomeNet5, kHomeNet6});
}

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
    Lose(*this, {kHomeNet24, kHomeNet5});
    EXPECT_EQ(0, manager().IsWiFiDisappear(&kAdapterA));
    EXPECT_EQ(0, manager().GetCurrentBSS());
}

TEST_F(ConnectedNetworkTest, AnOpenNetworkIsAskedForAsOne)
{
    simulation::Scenario world = RichWorld();
    world.adapters[1].connection = simulation::Connection{"CafeNet", kCafeNet};
    UseWorld(world);
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

TEST_F(ConnectedNetworkTest, ANetworkWithoutBssHasDisappeared)
{
    const auto local = TraceBuffer::local;
    Failures(
        *this, "IsWiFiDisappear", [](auto& m) { return m.IsWiFiDisappear(&kAdapterA); }, local)
        .After(LoseHomeNet, 1, {kNoBss, kConnectionReleased, kBssReleased});
    Failures(
        *this, "GetCurrentBSS", [](auto& m) { return m.GetCurrentBSS(); }, local)
        .After(LoseHomeNet, -6, {kNoBss, kConnectionReleased, kBssReleased, kInterfacesReleased});
}

TEST_F(ConnectedNetworkTest, TheSecondAdapterIsNeverAsked)
{
    simulation::Scenario world = DisconnectedWorld();
    world.adapters[1].connection = simulation::Connection{"CafeNet", kCafeNet};
    UseWorld(world);
    EXPECT_EQ(-4, manager().GetCurrentBSS());
    EXPECT_EQ(1u, callCount("WlanQueryInterface"));
    EXPECT_EQ(kAdapterAText, call("WlanQueryInterface")["interface"]);
}

} // namespace calvix::test::connected_network_test
