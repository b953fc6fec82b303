#include "direct/hand_written.h"

#include <cstring>
#include <cwchar>

namespace calvix::benchmarks
{

using platform::wlan;

DWORD HandWritten::QueryConnection(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES*& connection)
{
    DWORD size = sizeof(WLAN_CONNECTION_ATTRIBUTES);
    PVOID data = nullptr;
    const DWORD error =
        wlan().WlanQueryInterface(client, adapter, wlan_intf_opcode_current_connection, nullptr, &size, &data, nullptr);
    connection = static_cast<WLAN_CONNECTION_ATTRIBUTES*>(data);
    return error;
}

DWORD
HandWritten::Connect(const GUID* adapter, const wchar_t* profile, DOT11_BSS_TYPE type, DOT11_BSSID_LIST* desired)
{
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = profile;
    parameters.pDesiredBssidList = desired;
    parameters.dot11BssType = type;
    return wlan().WlanConnect(client, adapter, &parameters, nullptr);
}

int HandWritten::ConnectTo(
    const GUID* adapter, const DOT11_SSID& ssid, DOT11_BSS_TYPE type, BOOL secured, const wchar_t* profile)
{
    WLAN_BSS_LIST* entries = nullptr;
    if (!Ready() || wlan().WlanGetNetworkBssList(client, adapter, &ssid, type, secured, nullptr, &entries) != 0)
        return -4;
    int result = -6;
    if (entries->dwNumberOfItems != 0)
    {
        const WLAN_BSS_ENTRY* pick = &entries->wlanBssEntries[0];
        for (DWORD index = 1; index < entries->dwNumberOfItems; ++index)
            if (entries->wlanBssEntries[index].uLinkQuality > entries->wlanBssEntries[0].uLinkQuality)
                pick = &entries->wlanBssEntries[index];
        DOT11_BSSID_LIST desired{};
        desired.Header = {NDIS_OBJECT_TYPE_DEFAULT, DOT11_BSSID_LIST_REVISION_1, sizeof(desired)};
        desired.uNumOfEntries = 1;
        desired.uTotalNumOfEntries = 1;
        std::memcpy(desired.BSSIDs[0], pick->dot11Bssid, sizeof(pick->dot11Bssid));
        result = Connect(adapter, profile, type, &desired) == 0 ? 0 : -6;
    }
    wlan().WlanFreeMemory(entries);
    return result;
}

int HandWritten::GetCurrentConnection(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return -4;
    *attributes = *connection;
    wlan().WlanFreeMemory(connection);
    return 0;
}

int HandWritten::GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES* attributes)
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -2;
    const int result =
        list->dwNumberOfItems != 0 ? GetCurrentConnection(&list->InterfaceInfo[0].InterfaceGuid, attributes) : -3;
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::GetCurrentSSID(char* ssid, int capacity)
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -2;
    int result = -4;
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    if (list->dwNumberOfItems != 0 && QueryConnection(&list->InterfaceInfo[0].InterfaceGuid, connection) == 0)
    {
        GetSSID(&connection->wlanAssociationAttributes.dot11Ssid, ssid, capacity);
        wlan().WlanFreeMemory(connection);
        result = 0;
    }
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::GetCurrentSSID(char* ssid, int capacity, WLAN_CONNECTION_ATTRIBUTES* attributes)
{
    const int result = GetCurrentConnection(attributes);
    if (result == 0)
        GetSSID(&attributes->wlanAssociationAttributes.dot11Ssid, ssid, capacity);
    return result;
}

int HandWritten::GetCurrentLinkInfo(
    const GUID* adapter, int* state, int* bssType, char* ssid, int capacity, char* bssid)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    if (!Ready())
        return -1;
    if (const DWORD error = QueryConnection(adapter, connection))
        return static_cast<int>(error);
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection->wlanAssociationAttributes;
    *state = static_cast<int>(connection->isState);
    *bssType = static_cast<int>(association.dot11BssType);
    GetSSID(&association.dot11Ssid, ssid, capacity);
    std::memcpy(bssid, association.dot11Bssid, sizeof(association.dot11Bssid));
    wlan().WlanFreeMemory(connection);
    return 0;
}

long HandWritten::GetCurrentWiFi(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes)
{
    const WLAN_ASSOCIATION_ATTRIBUTES& association = attributes->wlanAssociationAttributes;
    WLAN_BSS_LIST* entries = nullptr;
    if (!Ready() ||
        wlan().WlanGetNetworkBssList(client, adapter, &association.dot11Ssid, association.dot11BssType,
                                     attributes->wlanSecurityAttributes.bSecurityEnabled, nullptr, &entries) != 0)
        return -4;
    const long count = static_cast<long>(entries->dwNumberOfItems);
    wlan().WlanFreeMemory(entries);
    return count;
}

int HandWritten::GetWlanStatistics(const GUID* adapter, _WIFI_TXRX_COUNT* count)
{
    DWORD size = sizeof(WLAN_STATISTICS);
    PVOID data = nullptr;
    if (!Ready() ||
        wlan().WlanQueryInterface(client, adapter, wlan_intf_opcode_statistics, nullptr, &size, &data, nullptr) != 0)
        return -4;
    const WLAN_MAC_FRAME_STATISTICS& frames = static_cast<WLAN_STATISTICS*>(data)->MacUcastCounters;
    count->ullTransmitted = frames.ullTransmittedFrameCount;
    count->ullReceived = frames.ullReceivedFrameCount;
    wlan().WlanFreeMemory(data);
    return 0;
}

int HandWritten::LinkProfile(const GUID* adapter, char* name)
{
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    if (!Ready() || wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &list) != 0)
        return -1;
    int result = -2;
    wchar_t wide[256];
    if (platform::text().MultiByteToWideChar(CP_ACP, MB_PRECOMPOSED | MB_ERR_INVALID_CHARS, name, -1, wide, 256) != 0)
    {
        for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
        {
            const WLAN_AVAILABLE_NETWORK& network = list->Network[index];
            if (std::wcscmp(network.strProfileName, wide) == 0)
            {
                result = static_cast<int>(Connect(adapter, network.strProfileName, network.dot11BssType, nullptr));
                break;
            }
        }
    }
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::Disconnect(const GUID* adapter)
{
    return Ready() ? static_cast<int>(wlan().WlanDisconnect(client, adapter, nullptr)) : -1;
}

int HandWritten::Reconnect(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes, unsigned long)
{
    const WLAN_ASSOCIATION_ATTRIBUTES& association = attributes->wlanAssociationAttributes;
    return ConnectTo(adapter, association.dot11Ssid, association.dot11BssType,
                     attributes->wlanSecurityAttributes.bSecurityEnabled, attributes->strProfileName);
}

int HandWritten::Reconnect(const GUID* adapter, WLAN_CONNECTION_NOTIFICATION_DATA* data, unsigned long)
{
    return ConnectTo(adapter, data->dot11Ssid, data->dot11BssType, data->bSecurityEnabled, data->strProfileName);
}

int HandWritten::RecoverConnection(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes)
{
    const bool accepted = Ready() && Connect(adapter, attributes->strProfileName,
                                             attributes->wlanAssociationAttributes.dot11BssType, nullptr) == 0;
    return accepted ? 0 : -4;
}

int HandWritten::ResetConnection(const GUID* adapter)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return -4;
    const DWORD error =
        Connect(adapter, connection->strProfileName, connection->wlanAssociationAttributes.dot11BssType, nullptr);
    wlan().WlanFreeMemory(connection);
    return error == 0 ? 0 : -5;
}

int HandWritten::SetCurrentWiFiToLast()
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    WLAN_PROFILE_INFO_LIST* profiles = nullptr;
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -1;
    DWORD result = 0;
    const GUID* const adapter = &list->InterfaceInfo[0].InterfaceGuid;
    if (list->dwNumberOfItems != 0 && (result = wlan().WlanGetProfileList(client, adapter, nullptr, &profiles)) == 0)
    {
        if ((result = QueryConnection(adapter, connection)) == 0)
        {
            if (profiles->dwNumberOfItems > 1)
                result = wlan().WlanSetProfilePosition(client, adapter, connection->strProfileName,
                                                       profiles->dwNumberOfItems - 1, nullptr);
            wlan().WlanFreeMemory(connection);
        }
        wlan().WlanFreeMemory(profiles);
    }
    wlan().WlanFreeMemory(list);
    return static_cast<int>(result);
}

int HandWritten::SaveCurrentConnectionAttributes(const GUID* adapter)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return -4;
    m_connection = *connection;
    const int automatic = IsAutoConnMode2(adapter, connection->strProfileName);
    wlan().WlanFreeMemory(connection);
    if (automatic < 0)
        return -5;
    m_automatic = automatic;
    return 0;
}

long HandWritten::RecoverConnetionAttributes(const GUID* adapter)
{
    if (m_automatic == 0)
        return -99;
    const long inView = GetCurrentWiFi(adapter, &m_connection);
    if (inView <= 0)
        return inView == 0 ? -5 : inView;
    return RecoverConnection(adapter, &m_connection) == 0 ? 0 : -6;
}

void HandWritten::SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA* data)
{
    std::memcpy(&m_notification, data, sizeof(m_notification));
}

long HandWritten::RecoverConnNotificationData(const GUID* adapter)
{
    return Reconnect(adapter, &m_notification, 20);
}

} // namespace calvix::benchmarks
