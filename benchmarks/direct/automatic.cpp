#include "direct/hand_written.h"
#include "direct/lists.h"

#include <cstdio>
#include <cstring>

namespace calvix::benchmarks
{

using platform::text;
using platform::wlan;

namespace
{

bool ToText(const DOT11_SSID& ssid, wchar_t (&wide)[128])
{
    char bytes[sizeof(ssid.ucSSID) + 1] = {};
    std::memcpy(bytes, ssid.ucSSID, ssid.uSSIDLength);
    return text().MultiByteToWideChar(CP_UTF8, MB_PRECOMPOSED | MB_ERR_INVALID_CHARS, bytes, -1, wide, 128) != 0;
}

} // namespace

int HandWritten::AutoConnect(const GUID* adapter)
{
    if (!Ready())
        return -1;
    const Lists lists(client, adapter);
    if (!lists.complete)
        return -4;
    int result = -9;
    VisitMatches(lists,
                 [&](const wchar_t*, const WLAN_AVAILABLE_NETWORK& network)
                 {
                     result = 0;
                     return Connect(adapter, network.strProfileName, network.dot11BssType, nullptr) == 0;
                 });
    return result;
}

int HandWritten::AutoSwitch(const GUID* adapter)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    WLAN_PROFILE_INFO_LIST* profiles = nullptr;
    WLAN_AVAILABLE_NETWORK_LIST* networks = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return -3;
    int result = -4;
    if (wlan().WlanGetProfileList(client, adapter, nullptr, &profiles) == 0)
    {
        result = -5;
        if (profiles->dwNumberOfItems < 2 || wlan().WlanSetProfilePosition(client, adapter, connection->strProfileName,
                                                                           profiles->dwNumberOfItems - 1, nullptr) == 0)
        {
            result = -6;
            if (wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &networks) == 0)
            {
                result = -7;
                bool accepted = false;
                for (DWORD profile = 0; profile < profiles->dwNumberOfItems && !accepted; ++profile)
                {
                    const wchar_t* const name = profiles->ProfileInfo[profile].strProfileName;
                    for (DWORD index = 0; index < networks->dwNumberOfItems && !accepted; ++index)
                    {
                        const WLAN_AVAILABLE_NETWORK& network = networks->Network[index];
                        if (std::wcscmp(name, network.strProfileName) != 0)
                            continue;
                        result = 0;
                        accepted = Connect(adapter, network.strProfileName, network.dot11BssType, nullptr) == 0;
                    }
                }
                wlan().WlanFreeMemory(networks);
            }
        }
        wlan().WlanFreeMemory(profiles);
    }
    wlan().WlanFreeMemory(connection);
    return result;
}

int HandWritten::SmartSwitch(const GUID* adapter)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    wchar_t current[128];
    if (!Ready())
        return -1;
    if (const DWORD error = QueryConnection(adapter, connection))
        return static_cast<int>(error);
    int result = -2;
    if (!ToText(connection->wlanAssociationAttributes.dot11Ssid, current))
        result = static_cast<int>(platform::errors().GetLastError());
    else if (const Lists lists(client, adapter); lists.complete)
        VisitMatches(lists,
                     [&](const wchar_t* profile, const WLAN_AVAILABLE_NETWORK& network)
                     {
                         if (std::wcscmp(profile, current) == 0 ||
                             network.wlanSignalQuality <= connection->wlanAssociationAttributes.wlanSignalQuality)
                             return false;
                         result =
                             static_cast<int>(Connect(adapter, network.strProfileName, network.dot11BssType, nullptr));
                         return true;
                     });
    wlan().WlanFreeMemory(connection);
    return result;
}

int HandWritten::SmartConnecting(const GUID*, char* profileName)
{
    WLAN_INTERFACE_INFO_LIST* adapters = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &adapters) != 0)
        return -1;
    int result = 0;
    if (adapters->dwNumberOfItems != 0)
    {
        const GUID* const adapter = &adapters->InterfaceInfo[0].InterfaceGuid;
        result = -2;
        if (const Lists lists(client, adapter); lists.complete)
            VisitMatches(lists,
                         [&](const wchar_t*, const WLAN_AVAILABLE_NETWORK& network)
                         {
                             result = static_cast<int>(
                                 Connect(adapter, network.strProfileName, network.dot11BssType, nullptr));
                             if (result == 0)
                                 std::snprintf(profileName, 128, "%ls", network.strProfileName);
                             return true;
                         });
    }
    wlan().WlanFreeMemory(adapters);
    return result;
}

int HandWritten::ConnectAutoMode(const GUID* adapter)
{
    if (!Ready())
        return -1;
    const Lists lists(client, adapter);
    if (!lists.complete)
        return -4;
    int result = -9;
    for (DWORD profile = 0; profile < lists.profiles->dwNumberOfItems; ++profile)
    {
        const wchar_t* const name = lists.profiles->ProfileInfo[profile].strProfileName;
        if (IsAutoConnMode2(adapter, name) != 1)
            continue;
        for (DWORD index = 0; index < lists.networks->dwNumberOfItems; ++index)
        {
            const WLAN_AVAILABLE_NETWORK& network = lists.networks->Network[index];
            wchar_t ssid[128];
            if (!ToText(network.dot11Ssid, ssid) ||
                (std::wcscmp(name, network.strProfileName) != 0 && std::wcscmp(name, ssid) != 0))
                continue;
            result = 0;
            if (Connect(adapter, network.strProfileName, network.dot11BssType, nullptr) == 0)
                return 0;
        }
    }
    return result;
}

int HandWritten::PreRoaming(const GUID* adapter)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    WLAN_BSS_LIST* entries = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return -4;
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection->wlanAssociationAttributes;
    int result = -5;
    if (association.wlanSignalQuality < 80)
    {
        result = -6;
        if (wlan().WlanGetNetworkBssList(client, adapter, &association.dot11Ssid, association.dot11BssType,
                                         connection->wlanSecurityAttributes.bSecurityEnabled, nullptr, &entries) == 0)
        {
            const WLAN_BSS_ENTRY* pick = &entries->wlanBssEntries[0];
            for (DWORD index = 1; index < entries->dwNumberOfItems; ++index)
                if (entries->wlanBssEntries[index].uLinkQuality > entries->wlanBssEntries[0].uLinkQuality)
                    pick = &entries->wlanBssEntries[index];
            const bool moves = entries->dwNumberOfItems != 0 &&
                               std::memcmp(pick->dot11Bssid, association.dot11Bssid, sizeof(pick->dot11Bssid)) != 0;
            result = entries->dwNumberOfItems == 0 ? -7 : moves ? 0 : -8;
            wlan().WlanFreeMemory(entries);
        }
    }
    wlan().WlanFreeMemory(connection);
    return result;
}

int HandWritten::Roaming(const GUID* adapter)
{
    WLAN_CONNECTION_ATTRIBUTES* connection = nullptr;
    WLAN_BSS_LIST* entries = nullptr;
    if (!Ready() || QueryConnection(adapter, connection) != 0)
        return -4;
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection->wlanAssociationAttributes;
    int result = -5;
    if (association.wlanSignalQuality < 80)
    {
        result = -6;
        if (wlan().WlanGetNetworkBssList(client, adapter, &association.dot11Ssid, association.dot11BssType,
                                         connection->wlanSecurityAttributes.bSecurityEnabled, nullptr, &entries) == 0)
        {
            const WLAN_BSS_ENTRY* pick = &entries->wlanBssEntries[0];
            for (DWORD index = 1; index < entries->dwNumberOfItems; ++index)
                if (entries->wlanBssEntries[index].uLinkQuality > entries->wlanBssEntries[0].uLinkQuality)
                    pick = &entries->wlanBssEntries[index];
            result = entries->dwNumberOfItems == 0 ? -7 : -8;
            if (result == -8 && std::memcmp(pick->dot11Bssid, association.dot11Bssid, sizeof(pick->dot11Bssid)) != 0)
            {
                DOT11_BSSID_LIST desired{};
                desired.Header = {NDIS_OBJECT_TYPE_DEFAULT, DOT11_BSSID_LIST_REVISION_1, sizeof(desired)};
                desired.uNumOfEntries = 1;
                desired.uTotalNumOfEntries = 1;
                std::memcpy(desired.BSSIDs[0], pick->dot11Bssid, sizeof(pick->dot11Bssid));
                result = Connect(adapter, connection->strProfileName, association.dot11BssType, &desired) == 0 ? 0 : -9;
            }
            wlan().WlanFreeMemory(entries);
        }
    }
    wlan().WlanFreeMemory(connection);
    return result;
}

} // namespace calvix::benchmarks
