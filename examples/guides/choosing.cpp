// The samples of the guide to the automatic methods.

#include <calvix/wireless_manage.h>

namespace guides::choosing
{

// A network whose profile connects automatically; where there is none, the first in the user's order.
int Join(CWirelessManage& manager, const GUID& adapter)
{
    const int code = manager.ConnectBestAP(&adapter);
    return code == -9 ? manager.AutoConnect(&adapter) : code;
}

// Leaves out the network that has just failed.
int JoinAnother(CWirelessManage& manager, const GUID& adapter, const DOT11_SSID& failed)
{
    std::vector<WLAN_BSS_ENTRY> excluded(1);
    excluded.front().dot11Ssid = failed;
    return manager.ConnectBestAP(&adapter, &excluded);
}

// To be called every few seconds: goes to a better access point of the network, or says why not.
int StayWell(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.WiFiIsDisconnected(&adapter) == 1)
        return Join(manager, adapter);
    return manager.Roaming(&adapter); // -5 good enough, -8 already there
}

} // namespace guides::choosing
