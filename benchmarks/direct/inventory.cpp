#include "direct/hand_written.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

namespace calvix::benchmarks
{

using platform::text;
using platform::wlan;

namespace
{

int DbmOf(unsigned long quality)
{
    return quality == 0 ? -100 : quality == 100 ? -50 : static_cast<int>(quality / 2) - 100;
}

DWORD ConnectionBss(HANDLE client,
                    const GUID* adapter,
                    const WLAN_CONNECTION_ATTRIBUTES& connection,
                    WLAN_BSS_LIST*& list)
{
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection.wlanAssociationAttributes;
    return wlan().WlanGetNetworkBssList(client, adapter, &association.dot11Ssid, association.dot11BssType,
                                        connection.wlanSecurityAttributes.bSecurityEnabled, nullptr, &list);
}

} // namespace

int HandWritten::Rescan(const GUID* adapter, unsigned long& error)
{
    if (!Ready())
        return -1;
    const DWORD refused = wlan().WlanScan(client, adapter, nullptr, nullptr, nullptr);
    if (refused == 0)
        return 0;
    error = refused;
    return -4;
}

int HandWritten::Rescan()
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -1;
    int result = -3;
    if (list->dwNumberOfItems != 0)
        result =
            wlan().WlanScan(client, &list->InterfaceInfo[0].InterfaceGuid, nullptr, nullptr, nullptr) == 0 ? 0 : -4;
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::GetAvailableNetworkCount(const GUID* adapter)
{
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    if (!Ready() || wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &list) != 0)
        return -5;
    const int count = static_cast<int>(list->dwNumberOfItems);
    wlan().WlanFreeMemory(list);
    return count;
}

int HandWritten::GetNetworkBssCount()
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -1;
    int count = -4;
    WLAN_BSS_LIST* entries = nullptr;
    if (list->dwNumberOfItems != 0 &&
        wlan().WlanGetNetworkBssList(client, &list->InterfaceInfo[0].InterfaceGuid, nullptr, dot11_BSS_type_any, FALSE,
                                     nullptr, &entries) == 0)
    {
        count = static_cast<int>(entries->dwNumberOfItems);
        wlan().WlanFreeMemory(entries);
    }
    wlan().WlanFreeMemory(list);
    return count;
}

int HandWritten::GetConnectableNetworkCount(const GUID* adapter)
{
    WLAN_PROFILE_INFO_LIST* profiles = nullptr;
    WLAN_AVAILABLE_NETWORK_LIST* networks = nullptr;
    if (!Ready() || wlan().WlanGetProfileList(client, adapter, nullptr, &profiles) != 0)
        return -5;
    if (wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &networks) != 0)
    {
        wlan().WlanFreeMemory(profiles);
        return -7;
    }
    int count = 0;
    for (DWORD profile = 0; profile < profiles->dwNumberOfItems; ++profile)
        for (DWORD network = 0; network < networks->dwNumberOfItems; ++network)
            if (std::wcscmp(profiles->ProfileInfo[profile].strProfileName, networks->Network[network].strProfileName) ==
                0)
                ++count;
    wlan().WlanFreeMemory(networks);
    wlan().WlanFreeMemory(profiles);
    return count;
}

int HandWritten::GetAP(const GUID* adapter, DOT11_SSID* ssid)
{
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    if (!Ready() || wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &list) != 0)
        return -3;
    int result = -4;
    for (DWORD index = 0; index < list->dwNumberOfItems && ssid->uSSIDLength != 0 && result != 0; ++index)
    {
        const DOT11_SSID& other = list->Network[index].dot11Ssid;
        if (other.uSSIDLength == ssid->uSSIDLength && std::memcmp(other.ucSSID, ssid->ucSSID, ssid->uSSIDLength) == 0)
            result = 0;
    }
    wlan().WlanFreeMemory(list);
    return result;
}

long HandWritten::GetNotConnectableReason(
    const GUID* adapter, DOT11_SSID* ssid, unsigned long bssType, int& connectable, unsigned long& reason)
{
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    if (!Ready() || wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &list) != 0)
        return -4;
    long result = -6;
    for (DWORD index = 0; index < list->dwNumberOfItems && result != 0; ++index)
    {
        const WLAN_AVAILABLE_NETWORK& network = list->Network[index];
        if (network.dot11BssType == static_cast<DOT11_BSS_TYPE>(bssType) &&
            network.dot11Ssid.uSSIDLength == ssid->uSSIDLength &&
            std::memcmp(network.dot11Ssid.ucSSID, ssid->ucSSID, ssid->uSSIDLength) == 0)
        {
            connectable = network.bNetworkConnectable;
            reason = network.wlanNotConnectableReason;
            result = 0;
        }
    }
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::IsWiFiDisappear(const GUID* adapter)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    WLAN_BSS_LIST* entries = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return 0;
    int result = 0;
    if (ConnectionBss(client, adapter, *connection, entries) == 0)
    {
        result = entries->dwNumberOfItems == 0;
        wlan().WlanFreeMemory(entries);
    }
    wlan().WlanFreeMemory(connection);
    return result;
}

long HandWritten::GetCurrentBSS()
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -2;
    const long result = list->dwNumberOfItems == 0                               ? -3
                        : IsWiFiDisappear(&list->InterfaceInfo[0].InterfaceGuid) ? -6
                                                                                 : 0;
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::GetRssi(const GUID* adapter, int& rssi)
{
    DWORD size = sizeof(std::int32_t);
    PVOID data = nullptr;
    if (!Ready() ||
        wlan().WlanQueryInterface(client, adapter, wlan_intf_opcode_rssi, nullptr, &size, &data, nullptr) != 0)
        return -4;
    rssi = *static_cast<std::int32_t*>(data);
    wlan().WlanFreeMemory(data);
    return 0;
}

int HandWritten::GetCurrentRSSI(const GUID* adapter, int& rssi)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    WLAN_BSS_LIST* entries = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return -4;
    int result = -5;
    if (ConnectionBss(client, adapter, *connection, entries) == 0)
    {
        result = entries->dwNumberOfItems == 0 ? -6 : -7;
        for (DWORD index = 0; index < entries->dwNumberOfItems && result != 0; ++index)
        {
            const WLAN_BSS_ENTRY& entry = entries->wlanBssEntries[index];
            if (std::memcmp(entry.dot11Bssid, connection->wlanAssociationAttributes.dot11Bssid,
                            sizeof(entry.dot11Bssid)) == 0)
            {
                rssi = static_cast<int>(entry.lRssi);
                result = 0;
            }
        }
        wlan().WlanFreeMemory(entries);
    }
    wlan().WlanFreeMemory(connection);
    return result;
}

int HandWritten::GetWiFiRSSI(const GUID* adapter, DOT11_SSID& ssid)
{
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    if (!Ready() || wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &list) != 0)
        return -100;
    int result = -100;
    for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
    {
        if (std::memcmp(list->Network[index].dot11Ssid.ucSSID, ssid.ucSSID, ssid.uSSIDLength) == 0)
        {
            result = DbmOf(list->Network[index].wlanSignalQuality);
            break;
        }
    }
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::GetSignalQuality(const GUID* adapter)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return -4;
    const int quality = static_cast<int>(connection->wlanAssociationAttributes.wlanSignalQuality);
    wlan().WlanFreeMemory(connection);
    return quality;
}

int HandWritten::GetSoftAPList(const GUID* adapter, std::vector<std::string>* result)
{
    constexpr DWORD flags = MB_PRECOMPOSED | MB_ERR_INVALID_CHARS;
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    if (!Ready())
        return -1;
    if (const DWORD error = wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &list))
        return static_cast<int>(error);
    result->clear();
    for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
    {
        const DOT11_SSID& ssid = list->Network[index].dot11Ssid;
        char bytes[sizeof(ssid.ucSSID) + 1] = {};
        wchar_t wide[256];
        char narrow[128];
        std::memcpy(bytes, ssid.ucSSID, sizeof(ssid.ucSSID));
        if (text().MultiByteToWideChar(CP_UTF8, flags, bytes, -1, wide, 256) != 0 &&
            text().WideCharToMultiByte(CP_ACP, flags, wide, -1, narrow, 128, nullptr, nullptr) != 0 &&
            std::strstr(narrow, "LC#") != nullptr)
            result->push_back(narrow);
    }
    wlan().WlanFreeMemory(list);
    return 0;
}

bool HandWritten::SpecialSoftAP()
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return false;
    bool result = false;
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    if (list->dwNumberOfItems != 0 && QueryConnection(&list->InterfaceInfo[0].InterfaceGuid, connection) == 0)
    {
        result = std::wcsstr(connection->strProfileName, L"LC#") != nullptr;
        wlan().WlanFreeMemory(connection);
    }
    wlan().WlanFreeMemory(list);
    return result;
}

} // namespace calvix::benchmarks
