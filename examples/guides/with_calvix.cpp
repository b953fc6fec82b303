// The samples of the guide for programs that call the WLAN API: with Calvix.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace guides::with_calvix
{

int CountNetworks(CWirelessManage& manager, const GUID& adapter)
{
    return manager.GetAvailableNetworkCount(&adapter); // or a code: -2, -5
}

void PrintSsid(CWirelessManage& manager, const GUID& adapter)
{
    char ssid[64];
    unsigned char bssid[6];
    if (manager.GetCurrentLinkInfo(&adapter, nullptr, nullptr, ssid, sizeof(ssid), reinterpret_cast<char*>(bssid)) == 0)
        std::printf("%s\n", ssid);
}

bool SwitchOff(CWirelessManage& manager, const GUID& adapter)
{
    return manager.RadioTurnOff(&adapter) == 0;
}

} // namespace guides::with_calvix
