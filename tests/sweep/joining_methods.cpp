#include "support/test_worlds.h"
#include "sweep/method_call.h"

#include <algorithm>
#include <iterator>

namespace calvix::test::sweep
{

using Manager = CWirelessManage;

namespace
{

/// The connection that was.
WLAN_CONNECTION_ATTRIBUTES FormerConnection()
{
    WLAN_CONNECTION_ATTRIBUTES former{};
    former.isState = wlan_interface_state_connected;
    former.wlanConnectionMode = wlan_connection_mode_profile;
    std::copy_n(L"HomeNet", std::size(L"HomeNet"), former.strProfileName);
    former.wlanAssociationAttributes.dot11Ssid = MakeSsid("HomeNet");
    former.wlanAssociationAttributes.dot11BssType = dot11_BSS_type_infrastructure;
    std::copy(kHomeNet24.begin(), kHomeNet24.end(), former.wlanAssociationAttributes.dot11Bssid);
    former.wlanSecurityAttributes.bSecurityEnabled = TRUE;
    return former;
}

/// The same as the service tells it in a notification.
WLAN_CONNECTION_NOTIFICATION_DATA FormerNotification()
{
    WLAN_CONNECTION_NOTIFICATION_DATA former{};
    former.wlanConnectionMode = wlan_connection_mode_profile;
    std::copy_n(L"HomeNet", std::size(L"HomeNet"), former.strProfileName);
    former.dot11Ssid = MakeSsid("HomeNet");
    former.dot11BssType = dot11_BSS_type_infrastructure;
    former.bSecurityEnabled = TRUE;
    return former;
}

template <typename Method>
Outcome WithFormer(const Method& method)
{
    WLAN_CONNECTION_ATTRIBUTES former = FormerConnection();
    return Told(method(&former));
}

template <typename Method>
Outcome WithAttributes(const Method& method)
{
    Output<WLAN_CONNECTION_ATTRIBUTES> attributes;
    return Told(method(&attributes.value), attributes);
}

template <typename Method>
Outcome WithExcluded(const Method& method)
{
    OutputList<WLAN_BSS_ENTRY> excluded;
    return Told(method(&excluded.value), excluded);
}

Outcome ReadSsid(Manager& manager)
{
    TextOutput<33> ssid;
    return Told(manager.GetCurrentSSID(ssid.value.data(), sizeof(ssid.value)), ssid);
}

Outcome ReadSsidAndConnection(Manager& manager)
{
    TextOutput<33> ssid;
    Output<WLAN_CONNECTION_ATTRIBUTES> attributes;
    return Told(manager.GetCurrentSSID(ssid.value.data(), sizeof(ssid.value), &attributes.value), ssid, attributes);
}

Outcome ReadLink(Manager& manager)
{
    Output<int> state;
    Output<int> bssType;
    TextOutput<33> ssid;
    TextOutput<6> bssid;
    return Told(manager.GetCurrentLinkInfo(&kAdapterA, &state.value, &bssType.value, ssid.value.data(),
                                           sizeof(ssid.value), bssid.value.data()),
                state, bssType, ssid, bssid);
}

Outcome ReadStatistics(Manager& manager)
{
    Output<_WIFI_TXRX_COUNT> count;
    return Told(manager.GetWlanStatistics(&kAdapterA, &count.value), count);
}

Outcome Link(Manager& manager)
{
    char name[] = "OfficeNet";
    return Told(manager.LinkProfile(&kAdapterA, name));
}

Outcome ReconnectNotified(Manager& manager)
{
    WLAN_CONNECTION_NOTIFICATION_DATA former = FormerNotification();
    return Told(manager.Reconnect(&kAdapterA, &former, 0));
}

void SaveConnection(Manager& manager)
{
    manager.SaveCurrentConnectionAttributes(&kAdapterA);
}

void SaveNotification(Manager& manager)
{
    WLAN_CONNECTION_NOTIFICATION_DATA former = FormerNotification();
    manager.SaveConnNotificationData(&former);
}

Outcome JoinFirstMatch(Manager& manager)
{
    TextOutput<128> profileName;
    return Told(manager.SmartConnecting(&kAdapterA, profileName.value.data()), profileName);
}

std::vector<MethodCall> CurrentConnectionMethods()
{
    return {
        {"GetCurrentConnection(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
         [](Manager& m) { return WithAttributes([&](auto* to) { return m.GetCurrentConnection(&kAdapterA, to); }); }},
        {"GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES*)",
         [](Manager& m) { return WithAttributes([&](auto* to) { return m.GetCurrentConnection(to); }); }},
        {"GetCurrentSSID(char*, int)", ReadSsid},
        {"GetCurrentSSID(char*, int, WLAN_CONNECTION_ATTRIBUTES*)", ReadSsidAndConnection},
        {"GetCurrentLinkInfo(GUID const*, int*, int*, char*, int, char*)", ReadLink},
        {"GetCurrentWiFi(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
         [](Manager& m) { return WithFormer([&](auto* was) { return m.GetCurrentWiFi(&kAdapterA, was); }); }},
        {"WiFiIsConnected(GUID const*)", [](Manager& m) { return Told(m.WiFiIsConnected(&kAdapterA)); }},
        {"WiFiIsDisconnected(GUID const*)", [](Manager& m) { return Told(m.WiFiIsDisconnected(&kAdapterA)); }},
        {"GetWlanStatistics(GUID const*, _WIFI_TXRX_COUNT*)", ReadStatistics},
    };
}

std::vector<MethodCall> RequestMethods()
{
    return {
        {"LinkProfile(GUID const*, char*)", Link},
        {"Disconnect(GUID const*)", [](Manager& m) { return Told(m.Disconnect(&kAdapterA)); }},
        {"Reconnect(GUID const*, WLAN_CONNECTION_ATTRIBUTES*, unsigned long)",
         [](Manager& m) { return WithFormer([&](auto* was) { return m.Reconnect(&kAdapterA, was, 0); }); }},
        {"Reconnect(GUID const*, WLAN_CONNECTION_NOTIFICATION_DATA*, unsigned long)", ReconnectNotified},
        {"RecoverConnection(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
         [](Manager& m) { return WithFormer([&](auto* was) { return m.RecoverConnection(&kAdapterA, was); }); }},
        {"ResetConnection(GUID const*)", [](Manager& m) { return Told(m.ResetConnection(&kAdapterA)); }},
        {"SetCurrentWiFiToLast()", [](Manager& m) { return Told(m.SetCurrentWiFiToLast()); }},
        {"SaveCurrentConnectionAttributes(GUID const*)",
         [](Manager& m) { return Told(m.SaveCurrentConnectionAttributes(&kAdapterA)); }},
        {"RecoverConnetionAttributes(GUID const*)",
         [](Manager& m) { return Told(m.RecoverConnetionAttributes(&kAdapterA)); }, SaveConnection},
        {"SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA*)",
         [](Manager& m)
         {
             SaveNotification(m);
             return Nothing();
         }},
        {"RecoverConnNotificationData(GUID const*)",
         [](Manager& m) { return Told(m.RecoverConnNotificationData(&kAdapterA)); }, SaveNotification},
    };
}

std::vector<MethodCall> AutomaticMethods()
{
    return {
        {"ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*, wchar_t const*)", [](Manager& m)
         { return WithExcluded([&](auto* list) { return m.ConnectBestAP(&kAdapterA, list, L"HiddenNet"); }); }},
        {"ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*)",
         [](Manager& m) { return WithExcluded([&](auto* list) { return m.ConnectBestAP(&kAdapterA, list); }); }},
        {"ConnectBestAP(GUID const*, wchar_t const*)",
         [](Manager& m) { return Told(m.ConnectBestAP(&kAdapterA, L"HiddenNet")); }},
        {"ConnectBestAP(GUID const*)", [](Manager& m) { return Told(m.ConnectBestAP(&kAdapterA)); }},
        {"AutoConnect(GUID const*)", [](Manager& m) { return Told(m.AutoConnect(&kAdapterA)); }},
        {"AutoConnectEx(GUID const*)", [](Manager& m) { return Told(m.AutoConnectEx(&kAdapterA)); }},
        {"AutoSwitch(GUID const*)", [](Manager& m) { return Told(m.AutoSwitch(&kAdapterA)); }},
        {"SmartSwitch(GUID const*)", [](Manager& m) { return Told(m.SmartSwitch(&kAdapterA)); }},
        {"SmartConnecting(GUID const*, char*)", JoinFirstMatch},
        {"ConnectAutoMode(GUID const*)", [](Manager& m) { return Told(m.ConnectAutoMode(&kAdapterA)); }},
        {"PreRoaming(GUID const*)", [](Manager& m) { return Told(m.PreRoaming(&kAdapterA)); }},
        {"Roaming(GUID const*)", [](Manager& m) { return Told(m.Roaming(&kAdapterA)); }},
    };
}

} // namespace

std::vector<MethodCall> JoiningMethods()
{
    std::vector<MethodCall> methods = CurrentConnectionMethods();
    for (const std::vector<MethodCall>& more : {RequestMethods(), AutomaticMethods()})
        methods.insert(methods.end(), more.begin(), more.end());
    return methods;
}

} // namespace calvix::test::sweep
