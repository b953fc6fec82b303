// The reference's examples: the connection.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::connection_examples
{

void Current(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetCurrentConnection]
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentConnection(&adapter, &connection) == 0)
        std::printf("connected by %ls\n", connection.strProfileName);
    //! [GetCurrentConnection]
}

void CurrentOfFirst(CWirelessManage& manager)
{
    //! [GetCurrentConnection, first adapter]
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentConnection(&connection) == 0)
        std::printf("quality %lu%%\n", connection.wlanAssociationAttributes.wlanSignalQuality);
    //! [GetCurrentConnection, first adapter]
}

void Ssid(CWirelessManage& manager)
{
    //! [GetCurrentSSID]
    char ssid[64] = "";
    if (manager.GetCurrentSSID(ssid, sizeof(ssid)) == 0)
        std::printf("%s\n", ssid);
    //! [GetCurrentSSID]
}

void SsidAndRecord(CWirelessManage& manager)
{
    //! [GetCurrentSSID, with record]
    char ssid[64] = "";
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentSSID(ssid, sizeof(ssid), &connection) == 0)
        std::printf("%s by %ls\n", ssid, connection.strProfileName);
    //! [GetCurrentSSID, with record]
}

void LinkInfo(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetCurrentLinkInfo]
    int state = 0;
    char ssid[64] = "";
    unsigned char bssid[6] = {};
    if (manager.GetCurrentLinkInfo(&adapter, &state, nullptr, ssid, sizeof(ssid), reinterpret_cast<char*>(bssid)) == 0)
        std::printf("%s, state %d\n", ssid, state);
    //! [GetCurrentLinkInfo]
}

void CountAccessPoints(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetCurrentWiFi]
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentConnection(&adapter, &connection) == 0)
        std::printf("%ld access points\n", manager.GetCurrentWiFi(&adapter, &connection));
    //! [GetCurrentWiFi]
}

void Connected(CWirelessManage& manager, const GUID& adapter)
{
    //! [WiFiIsConnected]
    if (manager.WiFiIsConnected(&adapter) == 1)
        std::printf("connected\n");
    //! [WiFiIsConnected]
}

void Disconnected(CWirelessManage& manager, const GUID& adapter)
{
    //! [WiFiIsDisconnected]
    if (manager.WiFiIsDisconnected(&adapter) == 1)
        std::printf("neither connected nor connecting\n");
    //! [WiFiIsDisconnected]
}

void Statistics(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetWlanStatistics]
    _WIFI_TXRX_COUNT frames{};
    if (manager.GetWlanStatistics(&adapter, &frames) == 0)
        std::printf("%llu sent, %llu received\n", frames.ullTransmitted, frames.ullReceived);
    //! [GetWlanStatistics]
}

void Join(CWirelessManage& manager, const GUID& adapter)
{
    //! [LinkProfile]
    char profile[] = "Office";
    if (manager.LinkProfile(&adapter, profile) == -2)
        std::printf("out of view: scan first\n");
    //! [LinkProfile]
}

void Leave(CWirelessManage& manager, const GUID& adapter)
{
    //! [Disconnect]
    if (const int error = manager.Disconnect(&adapter); error != 0)
        std::printf("not disconnected: error %d\n", error);
    //! [Disconnect]
}

void GoBack(CWirelessManage& manager, const GUID& adapter)
{
    //! [Reconnect]
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentConnection(&adapter, &connection) == 0 && manager.Disconnect(&adapter) == 0)
        manager.Reconnect(&adapter, &connection, 0);
    //! [Reconnect]
}

void GoBackTo(CWirelessManage& manager, const GUID& adapter, WLAN_CONNECTION_NOTIFICATION_DATA& news)
{
    //! [Reconnect, from a notification]
    if (const int code = manager.Reconnect(&adapter, &news, 0); code != 0)
        std::printf("not asked for (Reconnect: %d)\n", code);
    //! [Reconnect, from a notification]
}

void Recover(CWirelessManage& manager, const GUID& adapter, WLAN_CONNECTION_ATTRIBUTES& connection)
{
    //! [RecoverConnection]
    if (manager.RecoverConnection(&adapter, &connection) != 0)
        std::printf("refused\n");
    //! [RecoverConnection]
}

void Renew(CWirelessManage& manager, const GUID& adapter)
{
    //! [ResetConnection]
    if (manager.ResetConnection(&adapter) == -4)
        std::printf("nothing is connected\n");
    //! [ResetConnection]
}

void PreferOthers(CWirelessManage& manager)
{
    //! [SetCurrentWiFiToLast]
    if (const int error = manager.SetCurrentWiFiToLast(); error != 0)
        std::printf("not moved: %d\n", error);
    //! [SetCurrentWiFiToLast]
}

void Remember(CWirelessManage& manager, const GUID& adapter)
{
    //! [SaveCurrentConnectionAttributes]
    if (manager.SaveCurrentConnectionAttributes(&adapter) == -4)
        std::printf("nothing to remember\n");
    //! [SaveCurrentConnectionAttributes]
}

void Restore(CWirelessManage& manager, const GUID& adapter)
{
    //! [RecoverConnetionAttributes]
    if (const long code = manager.RecoverConnetionAttributes(&adapter); code == -99)
        std::printf("that profile is manual: connect by its name\n");
    //! [RecoverConnetionAttributes]
}

void RememberNews(CWirelessManage& manager, WLAN_NOTIFICATION_DATA& notification)
{
    //! [SaveConnNotificationData]
    if (notification.NotificationCode == wlan_notification_acm_connection_complete)
        manager.SaveConnNotificationData(static_cast<WLAN_CONNECTION_NOTIFICATION_DATA*>(notification.pData));
    //! [SaveConnNotificationData]
}

void RestoreNews(CWirelessManage& manager, const GUID& adapter)
{
    //! [RecoverConnNotificationData]
    if (const long code = manager.RecoverConnNotificationData(&adapter); code != 0)
        std::printf("not asked for (RecoverConnNotificationData: %ld)\n", code);
    //! [RecoverConnNotificationData]
}

} // namespace reference::connection_examples
