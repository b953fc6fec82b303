// The samples of the guide for programs that call the WLAN API: without Calvix, on Windows only.

#include <windows.h>
#include <wlanapi.h>

#include <cstdio>
#include <string>

namespace guides::wlan_api
{

int CountNetworks(const GUID& adapter)
{
    HANDLE client = nullptr;
    DWORD version = 0;
    if (WlanOpenHandle(2, nullptr, &version, &client) != ERROR_SUCCESS)
        return -2;
    PWLAN_AVAILABLE_NETWORK_LIST networks = nullptr;
    int count = -5;
    if (WlanGetAvailableNetworkList(client, &adapter, 0, nullptr, &networks) == ERROR_SUCCESS)
        count = static_cast<int>(networks->dwNumberOfItems);
    if (networks != nullptr)
        WlanFreeMemory(networks);
    WlanCloseHandle(client, nullptr);
    return count;
}

void PrintSsid(HANDLE client, const GUID& adapter)
{
    void* data = nullptr;
    DWORD size = 0;
    if (WlanQueryInterface(client, &adapter, wlan_intf_opcode_current_connection, nullptr, &size, &data, nullptr) !=
        ERROR_SUCCESS)
        return;
    const auto* const connection = static_cast<const WLAN_CONNECTION_ATTRIBUTES*>(data);
    const DOT11_SSID& ssid = connection->wlanAssociationAttributes.dot11Ssid;
    const std::string bytes(reinterpret_cast<const char*>(ssid.ucSSID), ssid.uSSIDLength);
    wchar_t wide[128] = {};
    char narrow[64] = {};
    if (MultiByteToWideChar(CP_UTF8, 0, bytes.c_str(), -1, wide, 128) != 0 &&
        WideCharToMultiByte(CP_ACP, 0, wide, -1, narrow, 64, nullptr, nullptr) != 0)
        std::printf("%s\n", narrow);
    WlanFreeMemory(data);
}

bool SwitchOff(HANDLE client, const GUID& adapter)
{
    WLAN_PHY_RADIO_STATE radio = {};
    radio.dwPhyIndex = 0;
    radio.dot11SoftwareRadioState = dot11_radio_state_off;
    return WlanSetInterface(client, &adapter, wlan_intf_opcode_radio_state, sizeof(radio), &radio, nullptr) ==
           ERROR_SUCCESS;
}

} // namespace guides::wlan_api
