// A first visit at home: what is there, what is stored, joining and leaving. scenarios/home.json.

#include "end_to_end/host.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calvix::test::end_to_end_home_test
{
namespace
{

constexpr wchar_t summerHouse[] =
    LR"(<?xml version="1.0"?><WLANProfile xmlns="http://www.microsoft.com/networking/WLAN/profile/v1">)"
    LR"(<name>Summer house</name><SSIDConfig><SSID><name>Summer house</name></SSID></SSIDConfig>)"
    LR"(<connectionType>ESS</connectionType><connectionMode>manual</connectionMode><MSM><security><authEncryption>)"
    LR"(<authentication>open</authentication><encryption>none</encryption><useOneX>false</useOneX>)"
    LR"(</authEncryption></security></MSM></WLANProfile>)";

class Home : public testing::Test
{
protected:
    std::vector<std::wstring> ProfileNames()
    {
        std::vector<std::wstring> names;
        EXPECT_GE(Manager().GetMatchAPCount(&adapter, &names, 0), 0);
        return names;
    }

    const GUID adapter = FirstAdapter();
};

TEST_F(Home, HasOneAdapter)
{
    EXPECT_EQ(Manager().GetWiFiAdapterCount(), 1);
    EXPECT_STREQ(Manager().GUID2String(adapter), "{5CA1AB1E-0001-4000-8000-00CA1F1C0001}");
    EXPECT_STREQ(Manager().GetWlanInterfaceDesc(&adapter), "Calvix Simulated Wi-Fi 6E Adapter");
    EXPECT_EQ(Manager().GetWlanStatus(&adapter), wlan_interface_state_disconnected);
    GUID found{};
    EXPECT_EQ(Manager().GetWlanInterfaceGuid(L"Calvix Simulated Wi-Fi 6E Adapter", found), 0);
    EXPECT_EQ(found, adapter);
}

TEST_F(Home, HearsItsNetworks)
{
    EXPECT_EQ(Manager().GetAvailableNetworkCount(&adapter), 4);
    EXPECT_EQ(Manager().GetNetworkBssCount(), 7);
    EXPECT_EQ(Manager().GetConnectableNetworkCount(&adapter), 2);
    DOT11_SSID lindenhof = Ssid("Lindenhof");
    DOT11_SSID nobody = Ssid("Nobody");
    EXPECT_EQ(Manager().GetAP(&adapter, &lindenhof), 0);
    EXPECT_EQ(Manager().GetAP(&adapter, &nobody), -4);
    EXPECT_EQ(Manager().GetWiFiRSSI(&adapter, lindenhof), -50) << "the estimate ends there";
}

TEST_F(Home, PairsProfilesWithWhatIsInView)
{
    std::vector<WLAN_BSS_ENTRY> points;
    EXPECT_EQ(Manager().GetMatchAPList(&adapter, &points), 4);
    EXPECT_EQ(points.size(), 4u);
    EXPECT_EQ(ProfileNames(), (std::vector<std::wstring>{L"Lindenhof", L"Lindenhof Garden"}));
}

TEST_F(Home, KeepsProfiles)
{
    EXPECT_EQ(Manager().GetProfileCount(&adapter), 4);
    EXPECT_EQ(Manager().GetWlanProfile(&adapter, "Summer house"), -1);
    EXPECT_EQ(Manager().SetProfile(&adapter, L"<nonsense/>"), -4);
    EXPECT_EQ(Manager().SetProfile(&adapter, summerHouse), 0);
    EXPECT_EQ(Manager().GetProfileCount(&adapter), 5);
    EXPECT_EQ(Manager().GetWlanProfile(&adapter, "Summer house"), 0);
    EXPECT_EQ(Manager().IsAutoConnMode2(&adapter, L"Summer house"), 0);
    EXPECT_EQ(Manager().IsAutoConnMode2(&adapter, L"Lindenhof"), 1);
    std::vector<wchar_t> xml(4096);
    EXPECT_EQ(Manager().GetProfile(&adapter, L"Summer house", xml.data(), static_cast<int>(xml.size())), 0);
    EXPECT_NE(std::wstring(xml.data()).find(L"<name>Summer house</name>"), std::wstring::npos);
    EXPECT_EQ(Manager().DeleteProfile(&adapter, "Summer house"), 0);
    EXPECT_EQ(Manager().DeleteProfile(&adapter, L"Summer house"), -4);
    EXPECT_EQ(Manager().GetProfileCount(&adapter), 4);
}

TEST_F(Home, MovesProfiles)
{
    EXPECT_EQ(Manager().SetProfilePosition(&adapter, L"Lindenhof"), 0);
    EXPECT_EQ(ProfileNames(), (std::vector<std::wstring>{L"Lindenhof Garden", L"Lindenhof"}));
    EXPECT_EQ(Manager().ResetProfilePosition(&adapter, "Lindenhof"), 0);
    EXPECT_EQ(Manager().ResetProfilePosition(&adapter, "Lindenhof Garden"), 0);
    EXPECT_EQ(ProfileNames(), (std::vector<std::wstring>{L"Lindenhof", L"Lindenhof Garden"}));
}

TEST_F(Home, ScansWhenAsked)
{
    const LibraryNews news;
    EXPECT_EQ(Manager().Rescan(), 0);
    EXPECT_TRUE(news.Await(wlan_notification_acm_scan_complete, 0));
}

TEST_F(Home, IsJoinedAndLeft)
{
    const LibraryNews news;
    char profile[] = "Lindenhof";
    ASSERT_EQ(Manager().LinkProfile(&adapter, profile), 0);
    EXPECT_EQ(ConnectedAfter(news, 0, adapter), (Place{"Lindenhof", L"Lindenhof", "02:1A:50:10:00:01"}));
    EXPECT_EQ(Manager().GetWlanStatus(&adapter), wlan_interface_state_connected);
    EXPECT_EQ(Manager().WiFiIsConnected(&adapter), 1);
    EXPECT_EQ(Manager().GetSignalQuality(&adapter), 100);
    int rssi = 0;
    EXPECT_EQ(Manager().GetRssi(&adapter, rssi), 0);
    EXPECT_EQ(rssi, -48);
    EXPECT_EQ(Manager().GetCurrentBSS(), 0);

    EXPECT_EQ(Manager().Disconnect(&adapter), 0);
    EXPECT_TRUE(news.Await(wlan_notification_acm_disconnected, 0));
    EXPECT_EQ(Manager().WiFiIsDisconnected(&adapter), 1);
    EXPECT_EQ(WhereConnected(adapter), Place{});
}

TEST_F(Home, RefusesWhatIsNotInView)
{
    char outOfView[] = "Phone of Mara";
    EXPECT_EQ(Manager().LinkProfile(&adapter, outOfView), -2);
}

TEST_F(Home, ShowsReasonsInWords)
{
    char text[256] = "";
    EXPECT_TRUE(Manager().ReasonCode2String(0, text, sizeof(text)));
    EXPECT_STRNE(text, "");
}

} // namespace
} // namespace calvix::test::end_to_end_home_test
