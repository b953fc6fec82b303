// The reference's examples: the connection.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void GetCurrentConnection(CWirelessManage& manager, const GUID& adapter)
{
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentConnection(&adapter, &connection) == 0)
        std::printf("connected by %ls\n", connection.strProfileName);
}

void GetCurrentConnectionOfFirst(CWirelessManage& manager)
{
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentConnection(&connection) == 0)
        std::printf("quality %lu%%\n", connection.wlanAssociationAttributes.wlanSignalQuality);
}

void GetCurrentSSID(CWirelessManage& manager)
{
    char ssid[64] = "";
    if (manager.GetCurrentSSID(ssid, sizeof(ssid)) == 0)
        std::printf("%s\n", ssid);
}

void GetCurrentSSIDAndRecord(CWirelessManage& manager)
{
    char ssid[64] = "";
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentSSID(ssid, sizeof(ssid), &connection) == 0)
        std::printf("%s by %ls\n", ssid, connection.strProfileName);
}

void GetCurrentLinkInfo(CWirelessManage& manager, const GUID& adapter)
{
    int state = 0;
    char ssid[64] = "";
    unsigned char bssid[6] = {};
    if (manager.GetCurrentLinkInfo(&adapter, &state, nullptr, ssid, sizeof(ssid), reinterpret_cast<char*>(bssid)) == 0)
        std::printf("%s, state %d\n", ssid, state);
}

void GetCurrentWiFi(CWirelessManage& manager, const GUID& adapter)
{
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentConnection(&adapter, &connection) == 0)
        std::printf("%ld access points\n", manager.GetCurrentWiFi(&adapter, &connection));
}

void WiFiIsConnected(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.WiFiIsConnected(&adapter) == 1)
        std::printf("connected\n");
}

void WiFiIsDisconnected(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.WiFiIsDisconnected(&adapter) == 1)
        std::printf("neither connected nor connecting\n");
}

void GetWlanStatistics(CWirelessManage& manager, const GUID& adapter)
{
    _WIFI_TXRX_COUNT frames{};
    if (manager.GetWlanStatistics(&adapter, &frames) == 0)
        std::printf("%llu sent, %llu received\n", frames.ullTransmitted, frames.ullReceived);
}

void LinkProfile(CWirelessManage& manager, const GUID& adapter)
{
    char profile[] = "Office";
    if (manager.LinkProfile(&adapter, profile) == -2)
        std::printf("out of view: scan first\n");
}

void Disconnect(CWirelessManage& manager, const GUID& adapter)
{
    if (const int error = manager.Disconnect(&adapter); error != 0)
        std::printf("not disconnected: error %d\n", error);
}

void Reconnect(CWirelessManage& manager, const GUID& adapter)
{
    WLAN_CONNECTION_ATTRIBUTES connection{};
    if (manager.GetCurrentConnection(&adapter, &connection) == 0 && manager.Disconnect(&adapter) == 0)
        manager.Reconnect(&adapter, &connection, 0);
}

void ReconnectFromNotification(CWirelessManage& manager, const GUID& adapter, WLAN_CONNECTION_NOTIFICATION_DATA& news)
{
    if (const int code = manager.Reconnect(&adapter, &news, 0); code != 0)
        std::printf("not asked for (Reconnect: %d)\n", code);
}

void RecoverConnection(CWirelessManage& manager, const GUID& adapter, WLAN_CONNECTION_ATTRIBUTES& connection)
{
    if (manager.RecoverConnection(&adapter, &connection) != 0)
        std::printf("refused\n");
}

void ResetConnection(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.ResetConnection(&adapter) == -4)
        std::printf("nothing is connected\n");
}

void SetCurrentWiFiToLast(CWirelessManage& manager)
{
    if (const int error = manager.SetCurrentWiFiToLast(); error != 0)
        std::printf("not moved: %d\n", error);
}

void SaveCurrentConnectionAttributes(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.SaveCurrentConnectionAttributes(&adapter) == -4)
        std::printf("nothing to remember\n");
}

void RecoverConnetionAttributes(CWirelessManage& manager, const GUID& adapter)
{
    if (const long code = manager.RecoverConnetionAttributes(&adapter); code == -99)
        std::printf("that profile is manual: connect by its name\n");
}

void SaveConnNotificationData(CWirelessManage& manager, WLAN_NOTIFICATION_DATA& notification)
{
    if (notification.NotificationCode == wlan_notification_acm_connection_complete)
        manager.SaveConnNotificationData(static_cast<WLAN_CONNECTION_NOTIFICATION_DATA*>(notification.pData));
}

void RecoverConnNotificationData(CWirelessManage& manager, const GUID& adapter)
{
    if (const long code = manager.RecoverConnNotificationData(&adapter); code != 0)
        std::printf("not asked for (RecoverConnNotificationData: %ld)\n", code);
}

} // namespace reference
