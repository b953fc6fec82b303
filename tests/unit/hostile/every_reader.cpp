#include "unit/hostile/every_reader.h"

namespace calvix::test
{

namespace every_reader
{
namespace
{

using Manager = CWirelessManage;
using Record = WLAN_CONNECTION_ATTRIBUTES;

long long AskReason(Manager& manager)
{
    DOT11_SSID ssid = MakeSsid("HomeNet");
    int connectable = 0;
    unsigned long reason = 0;
    return manager.GetNotConnectableReason(&kAdapterA, &ssid, dot11_BSS_type_infrastructure, connectable, reason);
}

long long FindNetwork(Manager& manager)
{
    DOT11_SSID ssid = MakeSsid("HomeNet");
    return manager.GetAP(&kAdapterA, &ssid);
}

long long EstimateRssi(Manager& manager)
{
    DOT11_SSID ssid = MakeSsid("HomeNet");
    return manager.GetWiFiRSSI(&kAdapterA, ssid);
}

long long CurrentRssi(Manager& manager)
{
    int rssi = 0;
    return manager.GetCurrentRSSI(&kAdapterA, rssi);
}

long long LinkRssi(Manager& manager)
{
    int rssi = 0;
    return manager.GetRssi(&kAdapterA, rssi);
}

long long FindAdapter(Manager& manager)
{
    GUID guid{};
    return manager.GetWlanInterfaceGuid(kAdapterADescription, guid);
}

long long Describe(Manager& manager)
{
    return manager.GetWlanInterfaceDesc(&kAdapterA)[0];
}

long long ListAdapters(Manager& manager)
{
    std::vector<WLAN_INTERFACE_INFO> list;
    return manager.GetWlanInterface(&list);
}

long long ListSoftAccessPoints(Manager& manager)
{
    std::vector<std::string> names;
    return manager.GetSoftAPList(&kAdapterA, &names);
}

long long ListMatching(Manager& manager)
{
    std::vector<WLAN_BSS_ENTRY> list;
    return manager.GetMatchAPList(&kAdapterA, &list);
}

long long ListConnectable(Manager& manager)
{
    wchar_t name[] = L"HomeNet";
    std::vector<WLAN_BSS_ENTRY> list;
    return manager.GetConnectableAPList(name, &list);
}

long long CountMatching(Manager& manager)
{
    std::vector<std::wstring> names;
    return manager.GetMatchAPCount(&kAdapterA, &names, L"HomeNet", 1);
}

long long JoinBest(Manager& manager)
{
    std::vector<WLAN_BSS_ENTRY> excluded(1);
    return manager.ConnectBestAP(&kAdapterA, &excluded, L"OfficeNet");
}

long long JoinFirst(Manager& manager)
{
    char name[128] = {};
    return manager.SmartConnecting(&kAdapterA, name);
}

long long Link(Manager& manager)
{
    char name[] = "HomeNet";
    return manager.LinkProfile(&kAdapterA, name);
}

long long ReadProfile(Manager& manager)
{
    wchar_t xml[64] = {};
    return manager.GetProfile(&kAdapterA, L"HomeNet", xml, 64);
}

long long CurrentConnection(Manager& manager)
{
    Record record{};
    return manager.GetCurrentConnection(&record);
}

long long AccessPointsOfConnection(Manager& manager)
{
    Record record{};
    record.wlanAssociationAttributes.dot11BssType = dot11_BSS_type_infrastructure;
    record.wlanAssociationAttributes.dot11Ssid = MakeSsid("HomeNet");
    record.wlanSecurityAttributes.bSecurityEnabled = TRUE;
    return manager.Reconnect(&kAdapterA, &record, 0);
}

long long RadioSwitches(Manager& manager)
{
    unsigned int software = 0;
    unsigned int hardware = 0;
    return manager.PhyRadioIsOn2(&kAdapterA, software, hardware);
}

long long Statistics(Manager& manager)
{
    _WIFI_TXRX_COUNT count{};
    return manager.GetWlanStatistics(&kAdapterA, &count);
}

long long PowerSetting(Manager& manager)
{
    unsigned long level = 77;
    return manager.GetPowerSetting(level) + static_cast<long long>(level);
}

} // namespace
} // namespace every_reader

const std::vector<Reader>& EveryReader()
{
    using namespace every_reader;
    static const std::vector<Reader> readers = {
        {"GetWlanStatus", [](Manager& m) -> long long { return m.GetWlanStatus(&kAdapterA); }},
        {"GetWlanInterfaceGuid", FindAdapter},
        {"GetWlanInterfaceDesc", Describe},
        {"GetWlanInterface", ListAdapters},
        {"GetWiFiAdapterCount", [](Manager& m) -> long long { return m.GetWiFiAdapterCount(); }},
        {"WiFiIsConnected", [](Manager& m) -> long long { return m.WiFiIsConnected(&kAdapterA); }},
        {"Rescan", [](Manager& m) -> long long { return m.Rescan(); }},
        {"GetAvailableNetworkCount", [](Manager& m) -> long long { return m.GetAvailableNetworkCount(&kAdapterA); }},
        {"GetNetworkBssCount", [](Manager& m) -> long long { return m.GetNetworkBssCount(); }},
        {"GetConnectableNetworkCount",
         [](Manager& m) -> long long { return m.GetConnectableNetworkCount(&kAdapterA); }},
        {"GetAP", FindNetwork},
        {"GetNotConnectableReason", AskReason},
        {"IsWiFiDisappear", [](Manager& m) -> long long { return m.IsWiFiDisappear(&kAdapterA); }},
        {"GetCurrentBSS", [](Manager& m) -> long long { return m.GetCurrentBSS(); }},
        {"GetRssi", LinkRssi},
        {"GetCurrentRSSI", CurrentRssi},
        {"GetWiFiRSSI", EstimateRssi},
        {"GetSignalQuality", [](Manager& m) -> long long { return m.GetSignalQuality(&kAdapterA); }},
        {"GetSoftAPList", ListSoftAccessPoints},
        {"SpecialSoftAP", [](Manager& m) -> long long { return m.SpecialSoftAP() ? 1 : 0; }},
        {"GetAvailableNetwork", [](Manager& m) -> long long { return m.GetAvailableNetwork(); }},
        {"GetNetworkBss", [](Manager& m) -> long long { return m.GetNetworkBss(); }},
        {"GetWlanProfile", [](Manager& m) -> long long { return m.GetWlanProfile(&kAdapterA, "HomeNet"); }},
        {"GetProfileCount", [](Manager& m) -> long long { return m.GetProfileCount(&kAdapterA); }},
        {"SetProfilePosition", [](Manager& m) -> long long { return m.SetProfilePosition(&kAdapterA, L"HomeNet"); }},
        {"GetProfile", ReadProfile},
        {"IsAutoConnMode2", [](Manager& m) -> long long { return m.IsAutoConnMode2(&kAdapterA, L"HomeNet"); }},
        {"GetCurrentConnection", CurrentConnection},
        {"GetWlanStatistics", Statistics},
        {"PhyRadioIsOn2", RadioSwitches},
        {"SupportedSafeMode", [](Manager& m) -> long long { return m.SupportedSafeMode(&kAdapterA); }},
        {"GetPowerSetting", PowerSetting},
        {"LinkProfile", Link},
        {"Reconnect", AccessPointsOfConnection},
        {"ResetConnection", [](Manager& m) -> long long { return m.ResetConnection(&kAdapterA); }},
        {"SetCurrentWiFiToLast", [](Manager& m) -> long long { return m.SetCurrentWiFiToLast(); }},
        {"SaveCurrentConnectionAttributes",
         [](Manager& m) -> long long { return m.SaveCurrentConnectionAttributes(&kAdapterA); }},
        {"RecoverConnetionAttributes",
         [](Manager& m) -> long long { return m.RecoverConnetionAttributes(&kAdapterA); }},
        {"GetMatchAPList", ListMatching},
        {"GetConnectableAPList", ListConnectable},
        {"GetMatchAPCount", CountMatching},
        {"GetMatchBSSID", [](Manager& m) -> long long { return m.GetMatchBSSID(&kAdapterA); }},
        {"AutoConnect", [](Manager& m) -> long long { return m.AutoConnect(&kAdapterA); }},
        {"ConnectBestAP", JoinBest},
        {"AutoSwitch", [](Manager& m) -> long long { return m.AutoSwitch(&kAdapterA); }},
        {"SmartSwitch", [](Manager& m) -> long long { return m.SmartSwitch(&kAdapterA); }},
        {"SmartConnecting", JoinFirst},
        {"ConnectAutoMode", [](Manager& m) -> long long { return m.ConnectAutoMode(&kAdapterA); }},
        {"PreRoaming", [](Manager& m) -> long long { return m.PreRoaming(&kAdapterA); }},
        {"Roaming", [](Manager& m) -> long long { return m.Roaming(&kAdapterA); }},
    };
    return readers;
}

} // namespace calvix::test
