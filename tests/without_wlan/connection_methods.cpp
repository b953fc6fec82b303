#include "without_wlan/method_case.h"

namespace calvix::test::every_method
{

namespace
{

std::string ReadConnection(CWirelessManage& manager)
{
    Untouched<WLAN_CONNECTION_ATTRIBUTES> attributes;
    return Said(manager.GetCurrentConnection(&kAdapter, &*attributes));
}

std::string ReadFirstConnection(CWirelessManage& manager)
{
    Untouched<WLAN_CONNECTION_ATTRIBUTES> attributes;
    return Said(manager.GetCurrentConnection(&*attributes));
}

std::string ReadSsid(CWirelessManage& manager)
{
    Untouched<char[33]> ssid;
    return Said(manager.GetCurrentSSID(*ssid, sizeof(*ssid)));
}

std::string ReadSsidAndConnection(CWirelessManage& manager)
{
    Untouched<char[33]> ssid;
    Untouched<WLAN_CONNECTION_ATTRIBUTES> attributes;
    return Said(manager.GetCurrentSSID(*ssid, sizeof(*ssid), &*attributes));
}

std::string ReadLink(CWirelessManage& manager)
{
    Untouched<int> state;
    Untouched<int> bssType;
    Untouched<char[33]> ssid;
    Untouched<char[6]> bssid;
    return Said(manager.GetCurrentLinkInfo(&kAdapter, &*state, &*bssType, *ssid, sizeof(*ssid), *bssid));
}

std::string ReadStatistics(CWirelessManage& manager)
{
    Untouched<_WIFI_TXRX_COUNT> count;
    return Said(manager.GetWlanStatistics(&kAdapter, &*count));
}

std::string Link(CWirelessManage& manager)
{
    char name[] = "Home";
    return Said(manager.LinkProfile(&kAdapter, name));
}

/// Calls a method with a record of a connection that was.
template <typename Record, typename Method>
std::string WithFormer(const Method& method)
{
    Record former{};
    return Said(method(&former));
}

} // namespace

std::vector<MethodCase> ConnectionMethods()
{
    using Manager = CWirelessManage;
    using Attributes = WLAN_CONNECTION_ATTRIBUTES;
    using Notification = WLAN_CONNECTION_NOTIFICATION_DATA;
    return {
        {"GetCurrentConnection(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)", ReadConnection, Is(-1), Is(-4)},
        {"GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES*)", ReadFirstConnection, Is(-1), Is(-3)},
        {"GetCurrentSSID(char*, int)", ReadSsid, Is(-1), Is(-3)},
        {"GetCurrentSSID(char*, int, WLAN_CONNECTION_ATTRIBUTES*)", ReadSsidAndConnection, Is(-1), Is(-3)},
        {"GetCurrentLinkInfo(GUID const*, int*, int*, char*, int, char*)", ReadLink, Is(kNoLibrary), AnErrorNumber()},
        {"GetCurrentWiFi(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
         [](Manager& m) { return WithFormer<Attributes>([&](auto* was) { return m.GetCurrentWiFi(&kAdapter, was); }); },
         Is(-1), Is(-4)},
        {"WiFiIsConnected(GUID const*)", [](Manager& m) { return Said(m.WiFiIsConnected(&kAdapter)); }, Is(0), Is(0)},
        {"WiFiIsDisconnected(GUID const*)", [](Manager& m) { return Said(m.WiFiIsDisconnected(&kAdapter)); }, Is(0),
         Is(0)},
        {"GetWlanStatistics(GUID const*, _WIFI_TXRX_COUNT*)", ReadStatistics, Is(-1), Is(-4)},
        {"LinkProfile(GUID const*, char*)", Link, Is(-1), AnErrorNumber()},
        {"Disconnect(GUID const*)", [](Manager& m) { return Said(m.Disconnect(&kAdapter)); }, Is(kNoLibrary),
         AnErrorNumber()},
        {"Reconnect(GUID const*, WLAN_CONNECTION_ATTRIBUTES*, unsigned long)",
         [](Manager& m) { return WithFormer<Attributes>([&](auto* was) { return m.Reconnect(&kAdapter, was, 0); }); },
         Is(-1), Is(-4)},
        {"Reconnect(GUID const*, WLAN_CONNECTION_NOTIFICATION_DATA*, unsigned long)",
         [](Manager& m) { return WithFormer<Notification>([&](auto* was) { return m.Reconnect(&kAdapter, was, 0); }); },
         Is(-1), Is(-4)},
        {"RecoverConnection(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
         [](Manager& m)
         { return WithFormer<Attributes>([&](auto* was) { return m.RecoverConnection(&kAdapter, was); }); },
         Is(-1), Is(-4)},
        {"ResetConnection(GUID const*)", [](Manager& m) { return Said(m.ResetConnection(&kAdapter)); }, Is(-1), Is(-4)},
        {"SetCurrentWiFiToLast()", [](Manager& m) { return Said(m.SetCurrentWiFiToLast()); }, Is(-1), Is(0)},
        {"SaveCurrentConnectionAttributes(GUID const*)",
         [](Manager& m) { return Said(m.SaveCurrentConnectionAttributes(&kAdapter)); }, Is(-1), Is(-4)},
        {"RecoverConnetionAttributes(GUID const*)",
         [](Manager& m) { return Said(m.RecoverConnetionAttributes(&kAdapter)); }, Is(-1), Is(-4)},
        {"SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA*)",
         [](Manager& m)
         {
             return WithFormer<Notification>(
                 [&](auto* was)
                 {
                     m.SaveConnNotificationData(was);
                     return kReturned;
                 });
         },
         testing::StrEq(kReturned), testing::StrEq(kReturned)},
        {"RecoverConnNotificationData(GUID const*)",
         [](Manager& m) { return Said(m.RecoverConnNotificationData(&kAdapter)); }, Is(-1), Is(-4)},
    };
}

} // namespace calvix::test::every_method
