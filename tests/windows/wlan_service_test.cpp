// What the WLAN service answers depends on the computer: none at all (no wlanapi.dll), the service stopped, no
// adapter, or adapters. So the tests ask for what holds on all of them: an error number, or a result that is complete
// and can be released. Only calls that change nothing are made.

#include "platform/platform.h"

#include <gtest/gtest.h>

namespace
{

using calvix::platform::wlan;

bool HasWlanLibrary()
{
    return ::LoadLibraryW(L"wlanapi.dll") != nullptr;
}

TEST(WindowsWlanService, OpensAClientOrSaysWhyNot)
{
    constexpr DWORD kClientVersion = 2;
    DWORD negotiated = 0;
    HANDLE client = nullptr;
    const DWORD error = wlan().WlanOpenHandle(kClientVersion, nullptr, &negotiated, &client);
    if (!HasWlanLibrary())
    {
        EXPECT_EQ(error, static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
    }
    if (error != ERROR_SUCCESS)
    {
        EXPECT_EQ(client, nullptr);
        return;
    }
    EXPECT_NE(client, nullptr);
    EXPECT_EQ(negotiated, kClientVersion);

    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (wlan().WlanEnumInterfaces(client, nullptr, &list) == ERROR_SUCCESS)
    {
        ASSERT_NE(list, nullptr);
        for (DWORD i = 0; i < list->dwNumberOfItems; ++i)
            EXPECT_LE(list->InterfaceInfo[i].isState, wlan_interface_state_authenticating);
        wlan().WlanFreeMemory(list);
    }
    EXPECT_EQ(wlan().WlanCloseHandle(client, nullptr), static_cast<DWORD>(ERROR_SUCCESS));
}

TEST(WindowsWlanService, RefusesAClientThatIsNone)
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    EXPECT_NE(wlan().WlanEnumInterfaces(nullptr, nullptr, &list), static_cast<DWORD>(ERROR_SUCCESS));
    EXPECT_NE(wlan().WlanCloseHandle(nullptr, nullptr), static_cast<DWORD>(ERROR_SUCCESS));
}

TEST(WindowsWlanService, RefusesAScanWithoutAnInterface)
{
    const DOT11_SSID ssid{4, {'h', 'o', 'm', 'e'}};
    EXPECT_NE(wlan().WlanScan(nullptr, nullptr, &ssid, nullptr, nullptr), static_cast<DWORD>(ERROR_SUCCESS));
}

} // namespace
