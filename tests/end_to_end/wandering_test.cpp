// Connections that change without being asked to, and those that are better changed.

#include "end_to_end/host.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calvix::test::end_to_end_wandering_test
{
namespace
{

// scenarios/office.json: connected through a distant access point.
TEST(Office, RoamsToANearAccessPoint)
{
    const GUID adapter = FirstAdapter();
    const LibraryNews news;
    ASSERT_EQ(WhereConnected(adapter), (Place{"Brightwater Staff", L"Brightwater Staff", "02:B8:00:03:00:02"}));
    EXPECT_EQ(Manager().GetSignalQuality(&adapter), 42);
    EXPECT_EQ(Manager().Roaming(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, 0, adapter),
              (Place{"Brightwater Staff", L"Brightwater Staff", "02:B8:00:01:00:02"}));
    EXPECT_EQ(Manager().Roaming(&adapter), -5) << "it is good enough";
}

// There is one in view, but Windows does not convert names in the way in which the method asks for it, so that the list
// stays empty.
TEST(Office, ListsNoSoftwareAccessPoints)
{
    const GUID adapter = FirstAdapter();
    DOT11_SSID workshop = Ssid("Brightwater LC#2");
    EXPECT_EQ(Manager().GetAP(&adapter, &workshop), 0);
    std::vector<std::string> names;
    EXPECT_EQ(Manager().GetSoftAPList(&adapter, &names), 0);
    EXPECT_TRUE(names.empty());
    EXPECT_FALSE(Manager().SpecialSoftAP());
}

TEST(Office, CountsFrames)
{
    const GUID adapter = FirstAdapter();
    _WIFI_TXRX_COUNT count{};
    EXPECT_EQ(Manager().GetWlanStatistics(&adapter, &count), 0);
    EXPECT_EQ(count.ullTransmitted, 48211u);
    EXPECT_EQ(count.ullReceived, 190467u);
}

// tests/end_to_end/scenarios/tunnel.json: the network goes and comes back, by the clock.
TEST(Tunnel, LostNetworkIsJoinedAgainByTheService)
{
    const GUID adapter = FirstAdapter();
    const LibraryNews news;
    ASSERT_EQ(WhereConnected(adapter).profile, L"Mountain Line");
    const auto lost = news.Await(wlan_notification_acm_disconnected, 0);
    ASSERT_TRUE(lost);
    EXPECT_EQ(lost->profile, L"Mountain Line");
    EXPECT_EQ(ConnectedAfter(news, 0, adapter).profile, L"Mountain Line");
}

} // namespace
} // namespace calvix::test::end_to_end_wandering_test
