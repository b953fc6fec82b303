// A program that uses the class, and the WLAN API beside it: both look at the same computer.

#include "check.h"

#include <calvix/wireless_manage.h>
#include <calvix/wlan_functions.h>

#include <string>
#include <vector>

namespace
{

std::vector<std::string> ListNetworks(HANDLE client, const GUID& adapter)
{
    PWLAN_AVAILABLE_NETWORK_LIST list = nullptr;
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetAvailableNetworkList(client, &adapter, 0, nullptr, &list));
    std::vector<std::string> names;
    for (DWORD index = 0; list != nullptr && index < list->dwNumberOfItems; ++index)
    {
        const DOT11_SSID& ssid = list->Network[index].dot11Ssid;
        names.emplace_back(reinterpret_cast<const char*>(ssid.ucSSID), ssid.uSSIDLength);
    }
    WlanFreeMemory(list);
    return names;
}

void CheckBoth(HANDLE client, CWirelessManage& manager)
{
    std::vector<WLAN_INTERFACE_INFO> adapters;
    CHECK(manager.GetWlanInterface(&adapters) == 0);
    CHECK(adapters.size() == 1);
    if (adapters.empty())
        return;
    const GUID& adapter = adapters[0].InterfaceGuid;
    CHECK(ListNetworks(client, adapter).size() == 4);
    CHECK(manager.GetAvailableNetworkCount(&adapter) == 4);

    // What one of them changes, the other one sees.
    CHECK(manager.GetProfileCount(&adapter) == 4);
    CHECK_ANSWER(ERROR_SUCCESS, WlanRenameProfile(client, &adapter, L"Lindenhof", L"Linden", nullptr));
    CHECK(manager.GetProfile(&adapter, L"Linden") == 0);
    CHECK(manager.DeleteProfile(&adapter, L"Linden") == 0);
    LPWSTR xml = nullptr;
    CHECK_ANSWER(ERROR_NOT_FOUND, WlanGetProfile(client, &adapter, L"Linden", nullptr, &xml, nullptr, nullptr));
    CHECK(manager.GetProfileCount(&adapter) == 3);
}

} // namespace

int main()
{
    HANDLE client = nullptr;
    DWORD version = 0;
    CHECK_ANSWER(ERROR_SUCCESS, WlanOpenHandle(2, nullptr, &version, &client));
    CheckBoth(client, *CWirelessManage::Get());
    CWirelessManage::Delete();
    CHECK_ANSWER(ERROR_SUCCESS, WlanCloseHandle(client, nullptr));
    return CheckedExitCode();
}
