// Everything that joins networks by itself, one after the other, each from where the one before has led.
// scenarios/automatic.json, whose examples docs/automatic-connection.md explains.

#include "end_to_end/host.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace calvix::test::end_to_end_automatic_test
{
namespace
{

const Place weakHarbour{"Harbour", L"Harbour", "02:A7:00:02:00:01"};
const Place thirdHarbour{"Harbour", L"Harbour", "02:A7:00:02:00:03"};
const Place market{"Market", L"Market", "02:A7:00:01:00:01"};
const Place guesthouse{"Guesthouse", L"Guesthouse", "02:A7:00:03:00:01"};
const Place ferry{"Ferry", L"Ferry", "02:A7:00:04:00:01"};

TEST(Automatic, WalkAlongTheHarbour)
{
    const GUID adapter = FirstAdapter();
    const LibraryNews news;
    ASSERT_EQ(WhereConnected(adapter), weakHarbour);
    EXPECT_EQ(Manager().GetSignalQuality(&adapter), 50);

    std::size_t before = news.Count();
    EXPECT_EQ(Manager().PreRoaming(&adapter), 0);
    EXPECT_EQ(Manager().Roaming(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, before, adapter), thirdHarbour);
    EXPECT_EQ(Manager().PreRoaming(&adapter), -8);
    EXPECT_EQ(Manager().SaveCurrentConnectionAttributes(&adapter), 0);

    before = news.Count();
    EXPECT_EQ(Manager().ConnectBestAP(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, before, adapter), market);

    before = news.Count();
    EXPECT_EQ(Manager().AutoSwitch(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, before, adapter), guesthouse);

    before = news.Count();
    EXPECT_EQ(Manager().AutoConnectEx(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, before, adapter), ferry);

    before = news.Count();
    char name[128] = "";
    EXPECT_EQ(Manager().SmartConnecting(&adapter, name), 0);
    EXPECT_STREQ(name, "Guesthouse");
    EXPECT_EQ(ConnectedAfter(news, before, adapter), guesthouse);

    before = news.Count();
    EXPECT_EQ(Manager().RecoverConnetionAttributes(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, before, adapter).ssid, "Harbour");
}

// Both have names converted with flags that Windows refuses, and get no further there. Wine takes the flags.
TEST(Automatic, SomeAreStoppedByWindows)
{
    const GUID adapter = FirstAdapter();
    const LibraryNews news;
    wchar_t wide[2] = L"";
    if (::MultiByteToWideChar(CP_UTF8, MB_PRECOMPOSED | MB_ERR_INVALID_CHARS, "a", -1, wide, 2) == 0)
    {
        EXPECT_EQ(Manager().SmartSwitch(&adapter), ERROR_INVALID_FLAGS);
        EXPECT_EQ(Manager().ConnectAutoMode(&adapter), -9);
        return;
    }
    EXPECT_EQ(Manager().SmartSwitch(&adapter), -2);
    EXPECT_EQ(Manager().ConnectAutoMode(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, 0, adapter).ssid, "Harbour") << "AutoSwitch put Market last";
}

TEST(Automatic, ReconnectsToWhatItRemembers)
{
    const GUID adapter = FirstAdapter();
    const LibraryNews news;
    char profile[] = "Harbour";
    ASSERT_EQ(Manager().LinkProfile(&adapter, profile), 0);
    ASSERT_EQ(ConnectedAfter(news, 0, adapter).ssid, "Harbour");
    WLAN_CONNECTION_ATTRIBUTES connection{};
    ASSERT_EQ(Manager().GetCurrentConnection(&adapter, &connection), 0);
    EXPECT_EQ(Manager().Disconnect(&adapter), 0);
    ASSERT_TRUE(news.Await(wlan_notification_acm_disconnected, 0));

    std::size_t before = news.Count();
    EXPECT_EQ(Manager().Reconnect(&adapter, &connection, 0), 0);
    EXPECT_EQ(ConnectedAfter(news, before, adapter), thirdHarbour);

    before = news.Count();
    EXPECT_EQ(Manager().ResetConnection(&adapter), 0);
    EXPECT_EQ(ConnectedAfter(news, before, adapter).ssid, "Harbour");
}

TEST(Automatic, NewConnectionTakesTheOldOneDownFirst)
{
    const GUID adapter = FirstAdapter();
    const LibraryNews news;
    ASSERT_NE(WhereConnected(adapter), Place{});
    char profile[] = "Pier";
    ASSERT_EQ(Manager().LinkProfile(&adapter, profile), 0);
    const auto complete = news.Await(wlan_notification_acm_connection_complete, 0);
    ASSERT_TRUE(complete);
    EXPECT_EQ(complete->profile, L"Pier");
    EXPECT_NE(complete->thread, std::this_thread::get_id());
    std::vector<DWORD> codes = news.Codes();
    constexpr DWORD scanListRefresh = 26; // some SDKs lack it
    std::erase(codes, scanListRefresh);
    std::erase(codes, static_cast<DWORD>(wlan_notification_acm_scan_complete)); // the service scans when it likes
    EXPECT_EQ(codes,
              (std::vector<DWORD>{wlan_notification_acm_disconnecting, wlan_notification_acm_disconnected,
                                  wlan_notification_acm_connection_start, wlan_notification_acm_connection_complete}));
}

TEST(Automatic, NothingIsDeliveredAfterTheEndOfARegistration)
{
    const GUID adapter = FirstAdapter();
    std::optional<LibraryNews> first;
    first.emplace();
    first.reset();
    const LibraryNews second;
    EXPECT_EQ(Manager().Rescan(), 0);
    EXPECT_TRUE(second.Await(wlan_notification_acm_scan_complete, 0));
    EXPECT_EQ(Manager().WiFiIsConnected(&adapter), 1);
}

} // namespace
} // namespace calvix::test::end_to_end_automatic_test
