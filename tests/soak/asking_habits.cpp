// Questions, which change nothing.

#include "soak/host.h"

namespace calvix::test::soak
{

namespace
{

void AskDescription(Host& host)
{
    GUID guid{};
    host.Manager().GetWlanInterfaceGuid(L"Soaked Adapter 02", guid);
}

void ListAdapters(Host& host)
{
    std::vector<WLAN_INTERFACE_INFO> list;
    if (host.Manager().GetWlanInterface(&list) != 0)
        return;
    host.adapters.clear();
    for (const WLAN_INTERFACE_INFO& info : list)
        host.adapters.push_back(info.InterfaceGuid);
}

void AskSwitches(Host& host)
{
    unsigned software = 0;
    unsigned hardware = 0;
    host.Manager().PhyRadioIsOn2(host.Adapter(), software, hardware);
}

void AskPowerSetting(Host& host)
{
    unsigned long level = 0;
    host.Manager().GetPowerSetting(level);
    host.Manager().GetPowerSettingStr(level);
}

void AskDriver(Host& host)
{
    unsigned char buffer[64] = {};
    unsigned long returned = 0;
    host.Manager().IhvControl(host.Adapter(), buffer, sizeof(buffer), returned);
}

void LookFor(Host& host)
{
    DOT11_SSID ssid = host.Ssid();
    host.Manager().GetAP(host.Adapter(), &ssid);
}

void AskWhyNot(Host& host)
{
    DOT11_SSID ssid = host.Ssid();
    int connectable = 0;
    unsigned long reason = 0;
    host.Manager().GetNotConnectableReason(host.Adapter(), &ssid, 1, connectable, reason);
    char text[256];
    host.Manager().ReasonCode2String(reason, text, sizeof(text));
}

void AskStrength(Host& host)
{
    int rssi = 0;
    DOT11_SSID ssid = host.Ssid();
    host.Manager().GetRssi(host.Adapter(), rssi);
    host.Manager().GetCurrentRSSI(host.Adapter(), rssi);
    host.Manager().GetWiFiRSSI(host.Adapter(), ssid);
    host.Manager().GetSignalStrength(rssi);
}

void ListSoftAccessPoints(Host& host)
{
    std::vector<std::string> names;
    host.Manager().GetSoftAPList(host.Adapter(), &names);
}

void ReadProfiles(Host& host)
{
    wchar_t wide[4096];
    char narrow[8192];
    const std::wstring name = host.Name();
    host.Manager().GetProfile(host.Adapter(), name.c_str(), wide, 4096);
    host.Manager().GetProfile(host.Adapter(), name.c_str(), narrow, sizeof(narrow));
    host.Manager().GetProfile(host.Adapter(), name.c_str());
    host.Manager().IsAutoConnMode2(host.Adapter(), name.c_str());
    host.Manager().GetWlanProfile(host.Adapter(), host.NarrowName().c_str());
}

void ReadDocument(Host& host)
{
    std::wstring name = host.Name();
    const std::wstring document = ProfileText(host.Name(), host.Below(2) == 0);
    host.Manager().IsThisSSID(document.c_str(), name.data());
    host.Manager().IsAutoConnMode(document.c_str());
}

void ReadConnection(Host& host)
{
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    if (host.Manager().GetCurrentConnection(&attributes) == 0)
        host.connection = attributes;
    host.Manager().GetCurrentConnection(host.Adapter(), &attributes);
    host.Manager().GetCurrentWiFi(host.Adapter(), &host.connection);
}

void ReadLink(Host& host)
{
    char ssid[64];
    char bssid[6];
    int state = 0;
    int type = 0;
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    host.Manager().GetCurrentSSID(ssid, sizeof(ssid));
    host.Manager().GetCurrentSSID(ssid, sizeof(ssid), &attributes);
    host.Manager().GetCurrentLinkInfo(host.Adapter(), &state, &type, ssid, sizeof(ssid), bssid);
}

void CountFrames(Host& host)
{
    _WIFI_TXRX_COUNT count{};
    host.Manager().GetWlanStatistics(host.Adapter(), &count);
}

void ListAccessPoints(Host& host)
{
    std::vector<WLAN_BSS_ENTRY> entries;
    std::vector<std::wstring> names;
    std::wstring name = host.Name();
    host.Manager().GetMatchAPList(host.Adapter(), &entries);
    host.Manager().GetConnectableAPList(host.Adapter(), name.data(), &entries);
    host.Manager().GetConnectableAPList(name.data(), &entries);
    host.Manager().GetMatchAPCount(host.Adapter(), &names, static_cast<int>(host.Below(2)));
    host.Manager().GetMatchAPCount(host.Adapter(), &names, name.c_str(), 1);
}

void ConvertTexts(Host& host)
{
    char narrow[1024];
    wchar_t wide[64];
    unsigned char bytes[32];
    const std::wstring name = host.Name();
    const DOT11_SSID ssid = host.Ssid();
    CWirelessManage& manager = host.Manager();
    manager.UnicodeToAnsi(name.c_str(), narrow);
    manager.WideCharToChar(name.c_str(), narrow, sizeof(narrow));
    manager.GetSSID(&ssid, narrow, 64);
    manager.GetSSID(&ssid, wide, 64);
    manager.StringToHex("0A1B2C", 6, bytes, 3, true);
    manager.HexToString(ssid.ucSSID, 4, narrow, 16, true);
    manager.StringToHexString("soak", 4, bytes, 16);
    manager.FormMAC(ssid.ucSSID, narrow);
    manager.GetBSSID(ssid.ucSSID, narrow, 18);
    manager.GUID2String(*host.Adapter());
    manager.GetWlanInterfaceState(host.Below(9));
    manager.GetChannel(5'180'000);
}

} // namespace

std::vector<Habit> AskingHabits()
{
    return {
        {"GetWlanStatus", 2, [](Host& h) { h.Manager().GetWlanStatus(h.Adapter()); }},
        {"GetWlanIsLink", 2, [](Host& h) { h.Manager().GetWlanIsLink(h.Adapter()); }},
        {"GetWlanInterfaceGuid", 1, AskDescription},
        {"GetWlanInterfaceDesc", 1, [](Host& h) { h.Manager().GetWlanInterfaceDesc(h.Adapter()); }},
        {"GetWiFiAdapterCount", 1, [](Host& h) { h.Manager().GetWiFiAdapterCount(); }},
        {"GetWlanInterface", 1, ListAdapters},
        {"PhyRadioIsOn", 1, [](Host& h) { h.Manager().PhyRadioIsOn(h.Adapter()); }},
        {"PhyRadioIsOn2", 1, [](Host& h) { h.Manager().PhyRadioIsOn2(h.Adapter()); }},
        {"PhyRadioIsOn2 with both switches", 1, AskSwitches},
        {"PhyRadioTurnedOff", 1, [](Host& h) { h.Manager().PhyRadioTurnedOff(h.Adapter()); }},
        {"PhyRadioTurnedOff2", 1, [](Host& h) { h.Manager().PhyRadioTurnedOff2(h.Adapter()); }},
        {"SupportedSafeMode", 1, [](Host& h) { h.Manager().SupportedSafeMode(h.Adapter()); }},
        {"GetPowerSetting", 1, AskPowerSetting},
        {"IhvControl", 1, AskDriver},
        {"GetAvailableNetworkCount", 3, [](Host& h) { h.Manager().GetAvailableNetworkCount(h.Adapter()); }},
        {"GetNetworkBssCount", 2, [](Host& h) { h.Manager().GetNetworkBssCount(); }},
        {"GetConnectableNetworkCount", 2, [](Host& h) { h.Manager().GetConnectableNetworkCount(h.Adapter()); }},
        {"GetAP", 2, LookFor},
        {"GetNotConnectableReason", 2, AskWhyNot},
        {"IsWiFiDisappear", 2, [](Host& h) { h.Manager().IsWiFiDisappear(h.Adapter()); }},
        {"GetCurrentBSS", 1, [](Host& h) { h.Manager().GetCurrentBSS(); }},
        {"GetRssi, GetCurrentRSSI, GetWiFiRSSI", 3, AskStrength},
        {"GetSignalQuality", 2, [](Host& h) { h.Manager().GetSignalQuality(h.Adapter()); }},
        {"GetSoftAPList", 1, ListSoftAccessPoints},
        {"SpecialSoftAP", 1, [](Host& h) { h.Manager().SpecialSoftAP(); }},
        {"GetAvailableNetwork", 1, [](Host& h) { h.Manager().GetAvailableNetwork(); }},
        {"GetNetworkBss", 1, [](Host& h) { h.Manager().GetNetworkBss(); }},
        {"GetProfileCount", 1, [](Host& h) { h.Manager().GetProfileCount(h.Adapter()); }},
        {"GetProfile", 3, ReadProfiles},
        {"IsThisSSID, IsAutoConnMode", 1, ReadDocument},
        {"GetCurrentConnection", 4, ReadConnection},
        {"GetCurrentSSID, GetCurrentLinkInfo", 2, ReadLink},
        {"WiFiIsConnected", 1, [](Host& h) { h.Manager().WiFiIsConnected(h.Adapter()); }},
        {"WiFiIsDisconnected", 1, [](Host& h) { h.Manager().WiFiIsDisconnected(h.Adapter()); }},
        {"GetWlanStatistics", 1, CountFrames},
        {"GetMatchAPList and the like", 3, ListAccessPoints},
        {"GetMatchBSSID", 1, [](Host& h) { h.Manager().GetMatchBSSID(h.Adapter()); }, Needs::patience},
        {"PreRoaming", 2, [](Host& h) { h.Manager().PreRoaming(h.Adapter()); }},
        {"conversions", 2, ConvertTexts},
    };
}

} // namespace calvix::test::soak
