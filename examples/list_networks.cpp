// Prints every adapter, and the access points in view that belong to a stored network.

#include <calvix/explain.h>
#include <calvix/wireless_manage.h>

#include <cstdio>

namespace
{

void PrintAccessPoint(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    char ssid[64];
    char address[18];
    manager.GetSSID(&entry.dot11Ssid, ssid, sizeof(ssid));
    manager.FormMAC(entry.dot11Bssid, address);
    const int rssi = static_cast<int>(entry.lRssi);
    std::printf("  %-24s %s  %4d dBm  %3d%%  %lu MHz\n", ssid, address, rssi, manager.GetSignalStrength(rssi),
                entry.ulChCenterFrequency / 1000);
}

void PrintAdapter(CWirelessManage& manager, const WLAN_INTERFACE_INFO& adapter)
{
    char description[1024];
    manager.UnicodeToAnsi(adapter.strInterfaceDescription, description);
    std::printf("%s: %s\n", description, manager.GetWlanInterfaceState(static_cast<unsigned long>(adapter.isState)));
    const int networks = manager.GetAvailableNetworkCount(&adapter.InterfaceGuid);
    if (networks < 0)
    {
        const calvix::Explanation failure = calvix::Explain("GetAvailableNetworkCount", networks);
        std::printf("  %s: %s\n", failure.meaning.c_str(), failure.advice.c_str());
        return;
    }
    std::vector<WLAN_BSS_ENTRY> entries;
    const int found = manager.GetMatchAPList(&adapter.InterfaceGuid, &entries);
    std::printf("  %d networks in view, %d access points of stored ones\n", networks, found < 0 ? 0 : found);
    for (const WLAN_BSS_ENTRY& entry : entries)
        PrintAccessPoint(manager, entry);
}

} // namespace

int main()
{
    CWirelessManage& manager = *CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    const long code = manager.GetWlanInterface(&adapters);
    if (code != 0)
        std::printf("%s\n", calvix::Explain("GetWlanInterface", code).meaning.c_str());
    for (const WLAN_INTERFACE_INFO& adapter : adapters)
        PrintAdapter(manager, adapter);
    CWirelessManage::Delete();
    return code == 0 ? 0 : 1;
}
