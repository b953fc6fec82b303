// Radio switches, settings and the driver's control channel. tests/end_to_end/scenarios/cabin.json.

#include "end_to_end/host.h"

#include <gtest/gtest.h>

namespace calvix::test::end_to_end_radio_test
{
namespace
{

TEST(Cabin, RadioTakesTheConnectionWithItAndTheServiceBringsItBack)
{
    const GUID adapter = FirstAdapter();
    const LibraryNews news;
    ASSERT_EQ(WhereConnected(adapter).profile, L"Cabin");
    EXPECT_EQ(Manager().PhyRadioIsOn(&adapter), 1);

    EXPECT_EQ(Manager().RadioTurnOff(&adapter), 0);
    EXPECT_TRUE(news.Await(wlan_notification_acm_disconnected, 0));
    EXPECT_EQ(Manager().PhyRadioTurnedOff2(&adapter), 1);
    EXPECT_EQ(Manager().GetAvailableNetworkCount(&adapter), -5);
    unsigned long error = 0;
    EXPECT_EQ(Manager().Rescan(&adapter, error), -4);
    EXPECT_EQ(error, 0x80342002ul);

    const std::size_t before = news.Count();
    EXPECT_EQ(Manager().RadioTurnOn(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, before, adapter).profile, L"Cabin");
    EXPECT_EQ(Manager().GetAvailableNetworkCount(&adapter), 1);
}

// The half second between off and on is real time.
TEST(Cabin, RadioIsReset)
{
    const GUID adapter = FirstAdapter();
    const LibraryNews news;
    ASSERT_EQ(Manager().WiFiIsConnected(&adapter), 1);
    EXPECT_EQ(Manager().ResetWiFiRadio(&adapter), 0);
    EXPECT_EQ(Manager().PhyRadioIsOn(&adapter), 1);
    EXPECT_TRUE(news.Await(wlan_notification_acm_disconnected, 0));
    EXPECT_EQ(ConnectedAfter(news, 0, adapter).profile, L"Cabin");
}

TEST(Cabin, SettingsAreReadAndSet)
{
    const GUID adapter = FirstAdapter();
    unsigned long level = 99;
    EXPECT_EQ(Manager().GetPowerSetting(level), 0);
    EXPECT_EQ(level, static_cast<unsigned long>(wlan_power_setting_medium_saving));
    EXPECT_EQ(Manager().EnableAutoCfg(&adapter), 0);
    EXPECT_EQ(Manager().EnableBackgroundScan(&adapter), 0);
    EXPECT_EQ(Manager().SupportedSafeMode(&adapter), 1);
    EXPECT_EQ(Manager().SetIhvSecuritySettings(), 0u);
}

TEST(Cabin, DriverAnswers)
{
    const GUID adapter = FirstAdapter();
    unsigned char buffer[] = {0x0a, 0x0b, 0x0c};
    unsigned long returned = 0;
    EXPECT_EQ(Manager().IhvControl(&adapter, buffer, 3, returned), 0u);
    EXPECT_EQ(returned, 2u);
    EXPECT_EQ(buffer[0], 0xc0);
    EXPECT_EQ(buffer[1], 0xff);
    unsigned char tooSmall[] = {0x0a, 0x0b};
    EXPECT_EQ(Manager().IhvControl(&adapter, tooSmall, 2, returned),
              static_cast<unsigned long>(ERROR_INSUFFICIENT_BUFFER));
    unsigned char unknown[] = {0x01};
    EXPECT_EQ(Manager().IhvControl(&adapter, unknown, 1, returned), static_cast<unsigned long>(ERROR_NOT_SUPPORTED));
}

} // namespace
} // namespace calvix::test::end_to_end_radio_test
