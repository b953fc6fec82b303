// The reference's examples: scans, networks and signal.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void Rescan(CWirelessManage& manager, const GUID& adapter)
{
    unsigned long error = 0;
    if (const int code = manager.Rescan(&adapter, error); code != 0)
        std::printf("no scan (Rescan: %d, error %lu)\n", code, error);
}

void RescanFirst(CWirelessManage& manager)
{
    if (const int code = manager.Rescan(); code != 0)
        std::printf("no scan (Rescan: %d)\n", code);
}

void GetAvailableNetworkCount(CWirelessManage& manager, const GUID& adapter)
{
    const int networks = manager.GetAvailableNetworkCount(&adapter);
    std::printf("%d networks\n", networks < 0 ? 0 : networks);
}

void GetNetworkBssCount(CWirelessManage& manager)
{
    const int accessPoints = manager.GetNetworkBssCount();
    std::printf("%d access points\n", accessPoints < 0 ? 0 : accessPoints);
}

void GetConnectableNetworkCount(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.GetConnectableNetworkCount(&adapter) <= 0)
        std::printf("no network with a stored profile is in view\n");
}

void GetAP(CWirelessManage& manager, const GUID& adapter)
{
    DOT11_SSID ssid = {4, {'H', 'o', 'm', 'e'}};
    if (manager.GetAP(&adapter, &ssid) == 0)
        std::printf("in view\n");
}

void GetNotConnectableReason(CWirelessManage& manager, const GUID& adapter, DOT11_SSID& ssid)
{
    int connectable = 0;
    unsigned long reason = 0;
    char words[256];
    if (manager.GetNotConnectableReason(&adapter, &ssid, dot11_BSS_type_infrastructure, connectable, reason) == 0 &&
        connectable == 0 && manager.ReasonCode2String(reason, words, sizeof(words)))
        std::printf("%s\n", words);
}

void IsWiFiDisappear(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.IsWiFiDisappear(&adapter) == 1)
        std::printf("the connected network has left the air\n");
}

void GetCurrentBSS(CWirelessManage& manager)
{
    const long code = manager.GetCurrentBSS();
    std::printf("%s\n", code == 0 ? "in view" : code == -6 ? "out of view" : "not known");
}

void GetChannel(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    const unsigned long mhz = entry.ulChCenterFrequency / 1000;
    const unsigned long channel = manager.GetChannel(entry.ulChCenterFrequency);
    std::printf("channel %lu\n", mhz <= 2484 ? channel + 1 : channel); // the customary number
}

void GetSignalStrength(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    std::printf("%d%%\n", manager.GetSignalStrength(static_cast<int>(entry.lRssi))); // -70 dBm: 60%
}

void GetRssi(CWirelessManage& manager, const GUID& adapter)
{
    int rssi = 0;
    if (manager.GetRssi(&adapter, rssi) == 0)
        std::printf("%d dBm\n", rssi);
}

void GetCurrentRSSI(CWirelessManage& manager, const GUID& adapter)
{
    int rssi = 0;
    if (manager.GetCurrentRSSI(&adapter, rssi) == 0)
        std::printf("%d dBm at the last scan\n", rssi);
}

void GetWiFiRSSI(CWirelessManage& manager, const GUID& adapter, DOT11_SSID& ssid)
{
    if (const int rssi = manager.GetWiFiRSSI(&adapter, ssid); rssi > -100 && rssi != -1)
        std::printf("about %d dBm\n", rssi);
}

void GetSignalQuality(CWirelessManage& manager, const GUID& adapter)
{
    if (const int quality = manager.GetSignalQuality(&adapter); quality >= 0)
        std::printf("%d%%\n", quality);
}

void GetSoftAPList(CWirelessManage& manager, const GUID& adapter)
{
    std::vector<std::string> names;
    if (manager.GetSoftAPList(&adapter, &names) == 0)
        std::printf("%zu software access points\n", names.size());
}

void SpecialSoftAP(CWirelessManage& manager)
{
    if (manager.SpecialSoftAP())
        std::printf("connected to a software access point\n");
}

void GetAvailableNetwork(CWirelessManage& manager)
{
    if (manager.GetAvailableNetwork() == 1)
        std::printf("an adapter is missing in the listing\n");
}

void GetNetworkBss(CWirelessManage& manager)
{
    if (manager.GetNetworkBss() == 1)
        std::printf("an adapter is missing in the listing\n");
}

void ReasonCode2String(CWirelessManage& manager, const WLAN_CONNECTION_NOTIFICATION_DATA& news)
{
    char words[256];
    if (manager.ReasonCode2String(news.wlanReasonCode, words, sizeof(words)))
        std::printf("%s\n", words);
}

} // namespace reference
