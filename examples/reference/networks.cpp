// The reference's examples: scans, networks and signal.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::network_examples
{

void Scan(CWirelessManage& manager, const GUID& adapter)
{
    //! [Rescan]
    unsigned long error = 0;
    if (const int code = manager.Rescan(&adapter, error); code != 0)
        std::printf("no scan (Rescan: %d, error %lu)\n", code, error);
    //! [Rescan]
}

void ScanFirst(CWirelessManage& manager)
{
    //! [Rescan, first adapter]
    if (const int code = manager.Rescan(); code != 0)
        std::printf("no scan (Rescan: %d)\n", code);
    //! [Rescan, first adapter]
}

void CountNetworks(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetAvailableNetworkCount]
    const int networks = manager.GetAvailableNetworkCount(&adapter);
    std::printf("%d networks\n", networks < 0 ? 0 : networks);
    //! [GetAvailableNetworkCount]
}

void CountAccessPoints(CWirelessManage& manager)
{
    //! [GetNetworkBssCount]
    const int accessPoints = manager.GetNetworkBssCount();
    std::printf("%d access points\n", accessPoints < 0 ? 0 : accessPoints);
    //! [GetNetworkBssCount]
}

void CountConnectable(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetConnectableNetworkCount]
    if (manager.GetConnectableNetworkCount(&adapter) <= 0)
        std::printf("no network with a stored profile is in view\n");
    //! [GetConnectableNetworkCount]
}

void LookFor(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetAP]
    DOT11_SSID ssid = {4, {'H', 'o', 'm', 'e'}};
    if (manager.GetAP(&adapter, &ssid) == 0)
        std::printf("in view\n");
    //! [GetAP]
}

void AskReason(CWirelessManage& manager, const GUID& adapter, DOT11_SSID& ssid)
{
    //! [GetNotConnectableReason]
    int connectable = 0;
    unsigned long reason = 0;
    char words[256];
    if (manager.GetNotConnectableReason(&adapter, &ssid, dot11_BSS_type_infrastructure, connectable, reason) == 0 &&
        connectable == 0 && manager.ReasonCode2String(reason, words, sizeof(words)))
        std::printf("%s\n", words);
    //! [GetNotConnectableReason]
}

void Vanished(CWirelessManage& manager, const GUID& adapter)
{
    //! [IsWiFiDisappear]
    if (manager.IsWiFiDisappear(&adapter) == 1)
        std::printf("the connected network has left the air\n");
    //! [IsWiFiDisappear]
}

void StillThere(CWirelessManage& manager)
{
    //! [GetCurrentBSS]
    const long code = manager.GetCurrentBSS();
    std::printf("%s\n", code == 0 ? "in view" : code == -6 ? "out of view" : "not known");
    //! [GetCurrentBSS]
}

void Channel(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    //! [GetChannel]
    const unsigned long mhz = entry.ulChCenterFrequency / 1000;
    const unsigned long channel = manager.GetChannel(entry.ulChCenterFrequency);
    std::printf("channel %lu\n", mhz <= 2484 ? channel + 1 : channel); // the customary number
    //! [GetChannel]
}

void Strength(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    //! [GetSignalStrength]
    std::printf("%d%%\n", manager.GetSignalStrength(static_cast<int>(entry.lRssi))); // -70 dBm: 60%
    //! [GetSignalStrength]
}

void LinkRssi(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetRssi]
    int rssi = 0;
    if (manager.GetRssi(&adapter, rssi) == 0)
        std::printf("%d dBm\n", rssi);
    //! [GetRssi]
}

void ListedRssi(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetCurrentRSSI]
    int rssi = 0;
    if (manager.GetCurrentRSSI(&adapter, rssi) == 0)
        std::printf("%d dBm at the last scan\n", rssi);
    //! [GetCurrentRSSI]
}

void EstimatedRssi(CWirelessManage& manager, const GUID& adapter, DOT11_SSID& ssid)
{
    //! [GetWiFiRSSI]
    if (const int rssi = manager.GetWiFiRSSI(&adapter, ssid); rssi > -100 && rssi != -1)
        std::printf("about %d dBm\n", rssi);
    //! [GetWiFiRSSI]
}

void Quality(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetSignalQuality]
    if (const int quality = manager.GetSignalQuality(&adapter); quality >= 0)
        std::printf("%d%%\n", quality);
    //! [GetSignalQuality]
}

void SoftAccessPoints(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetSoftAPList]
    std::vector<std::string> names;
    if (manager.GetSoftAPList(&adapter, &names) == 0)
        std::printf("%zu software access points\n", names.size());
    //! [GetSoftAPList]
}

void OnSoftAccessPoint(CWirelessManage& manager)
{
    //! [SpecialSoftAP]
    if (manager.SpecialSoftAP())
        std::printf("connected to a software access point\n");
    //! [SpecialSoftAP]
}

void ListNetworks(CWirelessManage& manager)
{
    //! [GetAvailableNetwork]
    if (manager.GetAvailableNetwork() == 1)
        std::printf("an adapter is missing in the listing\n");
    //! [GetAvailableNetwork]
}

void ListAccessPoints(CWirelessManage& manager)
{
    //! [GetNetworkBss]
    if (manager.GetNetworkBss() == 1)
        std::printf("an adapter is missing in the listing\n");
    //! [GetNetworkBss]
}

void ReasonText(CWirelessManage& manager, const WLAN_CONNECTION_NOTIFICATION_DATA& news)
{
    //! [ReasonCode2String]
    char words[256];
    if (manager.ReasonCode2String(news.wlanReasonCode, words, sizeof(words)))
        std::printf("%s\n", words);
    //! [ReasonCode2String]
}

} // namespace reference::network_examples
