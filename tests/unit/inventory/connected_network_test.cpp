#include "support/contract_table.h"
#include "support/library_test.h"
#include "unit/inventory/trace_texts.h"

#include <algorithm>

namespace calvix::test::connected_network_test
{

using ::testing::ElementsAre;

namespace
{

const std::string kConnectionQuery =
    "WlanQueryInterface(client=1, interface=" + std::string(kAdapterAText) +
    ", opcode=current_connection, reserved=null, dataSize=sizeof(WLAN_CONNECTION_ATTRIBUTES), data=non-null, "
    "valueType=null)";
const std::string kHomeNetBssList = "WlanGetNetworkBssList(client=1, interface=" + std::string(kAdapterAText) +
                                    ", ssid=\"HomeNet\"/7, bssType=infrastructure, securityEnabled=true, "
                                    "reserved=null, list=non-null)";

class ConnectedNetworkTest : public LibraryTest
{
};

long long IsGone(CWirelessManage& manager)
{
    return manager.IsWiFiDisappear(&kAdapterA);
}

long long CurrentBss(CWirelessManage& manager)
{
    return manager.GetCurrentBSS();
}

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

void UseNoConnection(LibraryTest& test)
{
    test.UseWorld(DisconnectedWorld());
}

void UseNoAdapter(LibraryTest& test)
{
    test.UseWorld(NoAdapterWorld());
}

} // namespace

// --- IsWiFiDisappear ---

TEST_F(ConnectedNetworkTest, ANetworkInViewHasNotDisappeared)
{
    EXPECT_EQ(0, manager().IsWiFiDisappear(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(kConnectionQuery, kHomeNetBssList, kRelease, kRelease));
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

TEST_F(ConnectedNetworkTest, ANetworkWithoutBssHasDisappeared)
{
    CheckFailure(*this, {.method = "IsWiFiDisappear, out of view",
                         .call = IsGone,
                         .expected = 1,
                         .traced = {kNoBss, kConnectionReleased, kBssReleased},
                         .buffer = TraceBuffer::local,
                         .prepare = LoseHomeNet});
}

// Deliberate: a failure answers like a network that is still in view.
TEST_F(ConnectedNetworkTest, EveryFailureReadsAsStillInView)
{
    const auto local = TraceBuffer::local;
    CheckFailures(*this,
                  {
                      {"IsWiFiDisappear", IsGone, "WlanOpenHandle", 0, {kOpenFailed}, local},
                      {"IsWiFiDisappear", IsGone, "WlanQueryInterface", 0, {kQueryFailed}, local},
                      {"IsWiFiDisappear", IsGone, "WlanGetNetworkBssList", 0, {kBssFailed, kConnectionReleased}, local},
                      {.method = "IsWiFiDisappear, not connected",
                       .call = IsGone,
                       .expected = 0,
                       .traced = {kNotConnected},
                       .buffer = local,
                       .prepare = UseNoConnection},
                      {.method = "IsWiFiDisappear, null interface",
                       .call = [](auto& m) { return m.IsWiFiDisappear(nullptr); },
                       .expected = 0,
                       .traced = {"WlanQueryInterface failed with error: 87"},
                       .buffer = local},
                  });
}

// --- GetCurrentBSS ---

TEST_F(ConnectedNetworkTest, TheFirstAdaptersNetworkIsInView)
{
    EXPECT_EQ(0, manager().GetCurrentBSS());
    EXPECT_THAT(callLines(), ElementsAre("WlanEnumInterfaces(client=1, reserved=null, list=non-null)", kConnectionQuery,
                                         kHomeNetBssList, kRelease, kRelease, kRelease));
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

TEST_F(ConnectedNetworkTest, EveryWayToFail)
{
    const auto local = TraceBuffer::local;
    CheckFailures(
        *this, {
                   {"GetCurrentBSS", CurrentBss, "WlanOpenHandle", -1, {kOpenFailed}, local},
                   {"GetCurrentBSS", CurrentBss, "WlanEnumInterfaces", -2, {kEnumFailed}, local},
                   {.method = "GetCurrentBSS, no adapter",
                    .call = CurrentBss,
                    .expected = -3,
                    .traced = {kInterfacesReleased},
                    .buffer = local,
                    .prepare = UseNoAdapter},
                   {"GetCurrentBSS", CurrentBss, "WlanQueryInterface", -4, {kQueryFailed, kInterfacesReleased}, local},
                   {.method = "GetCurrentBSS, not connected",
                    .call = CurrentBss,
                    .expected = -4,
                    .traced = {kNotConnected, kInterfacesReleased},
                    .buffer = local,
                    .prepare = UseNoConnection},
                   {"GetCurrentBSS",
                    CurrentBss,
                    "WlanGetNetworkBssList",
                    -5,
                    {kBssFailed, kConnectionReleased, kInterfacesReleased},
                    local},
                   {.method = "GetCurrentBSS, out of view",
                    .call = CurrentBss,
                    .expected = -6,
                    .traced = {kNoBss, kConnectionReleased, kBssReleased, kInterfacesReleased},
                    .buffer = local,
                    .prepare = LoseHomeNet},
               });
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

// --- Both ---

} // namespace calvix::test::connected_network_test
