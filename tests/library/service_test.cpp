// What the computer has decides what these methods find; that they answer, and agree with each other, is asked for.
// Only methods that change nothing are called.

#include "any_of.h"

#include <calvix/wireless_manage.h>

#include <array>
#include <vector>

namespace
{

constexpr GUID kNobodysInterface = {0xcafe0001, 0x0002, 0x0003, {4, 5, 6, 7, 8, 9, 10, 11}};

TEST(LibraryService, AdapterMethodsAgree)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    const int count = manager->GetWiFiAdapterCount();
    const long listed = manager->GetWlanInterface(&adapters);
    switch (count)
    {
    case -2:
        EXPECT_EQ(listed, -1);
        break;
    case -3:
        EXPECT_EQ(listed, -2);
        break;
    case 0:
        EXPECT_EQ(listed, -3);
        break;
    default:
        EXPECT_EQ(listed, 0);
        break;
    }
    EXPECT_EQ(static_cast<int>(adapters.size()), count > 0 ? count : 0);
}

TEST(LibraryService, EveryAdapterIsFoundByItsGuidAndItsDescription)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    manager->GetWlanInterface(&adapters);
    for (const WLAN_INTERFACE_INFO& adapter : adapters)
    {
        EXPECT_EQ(manager->GetWlanStatus(&adapter.InterfaceGuid), static_cast<int>(adapter.isState));
        GUID found{};
        EXPECT_EQ(manager->GetWlanInterfaceGuid(adapter.strInterfaceDescription, found), 0);
    }
}

TEST(LibraryService, AnUnknownInterfaceIsNotFound)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    GUID found{};
    EXPECT_TRUE(GaveAnyOf(manager->GetWlanStatus(&kNobodysInterface), {-1, -2, -3, -4}));
    EXPECT_FALSE(manager->GetWlanIsLink(&kNobodysInterface));
    EXPECT_TRUE(GaveAnyOf(manager->GetWlanInterfaceGuid(L"calvix: no such adapter", found), {-1, -2, -3, -4}));
    EXPECT_EQ(manager->WiFiIsConnected(&kNobodysInterface), 0);
}

TEST(LibraryService, QueriesOfTheFirstInterfaceGiveTheirCodes)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    EXPECT_TRUE(GaveAnyOf(manager->GetCurrentBSS(), {0, -1, -2, -3, -4, -5, -6}));
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    EXPECT_TRUE(GaveAnyOf(manager->GetCurrentConnection(&attributes), {0, -1, -2, -3, -4}));
    std::array<char, 128> ssid{};
    EXPECT_TRUE(GaveAnyOf(manager->GetCurrentSSID(ssid.data(), static_cast<int>(ssid.size())), {0, -1, -2, -3, -4}));
    const int bssCount = manager->GetNetworkBssCount();
    EXPECT_TRUE(bssCount >= 0 || GaveAnyOf(bssCount, {-2, -3, -4, -5})) << bssCount;
}

} // namespace
