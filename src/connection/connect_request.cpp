#include "connection/connect_request.h"

#include "core/wlan_records.h"

#include <cstring>

namespace calvix
{

ErrorNumber RequestConnection(HANDLE client,
                              const GUID* interfaceGuid,
                              const wchar_t* profileName,
                              DOT11_BSS_TYPE bssType,
                              DOT11_BSSID_LIST* desired,
                              Trace& trace)
{
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = profileName;
    parameters.pDesiredBssidList = desired;
    parameters.dot11BssType = bssType;
    const DWORD error = platform::wlan().WlanConnect(client, interfaceGuid, &parameters, nullptr);
    trace.Failed(error, "WlanConnect failed with error: %u");
    return static_cast<ErrorNumber>(error);
}

ErrorNumber
RequestNetwork(HANDLE client, const GUID* interfaceGuid, const WLAN_AVAILABLE_NETWORK& network, Trace& trace)
{
    return RequestConnection(client, interfaceGuid, TerminatedName(network.strProfileName), network.dot11BssType,
                             nullptr, trace);
}

const WLAN_BSS_ENTRY& PickAccessPoint(const WLAN_BSS_LIST& entries)
{
    const auto items = Items(entries);
    const WLAN_BSS_ENTRY* pick = &items.front();
    for (const WLAN_BSS_ENTRY& entry : items)
        if (entry.uLinkQuality > items.front().uLinkQuality)
            pick = &entry;
    return *pick;
}

DOT11_BSSID_LIST DesireOnly(const WLAN_BSS_ENTRY& accessPoint)
{
    DOT11_BSSID_LIST list{};
    list.Header.Type = NDIS_OBJECT_TYPE_DEFAULT;
    list.Header.Revision = DOT11_BSSID_LIST_REVISION_1;
    list.Header.Size = sizeof(DOT11_BSSID_LIST);
    list.uNumOfEntries = 1;
    list.uTotalNumOfEntries = 1;
    std::memcpy(list.BSSIDs[0], accessPoint.dot11Bssid, sizeof(accessPoint.dot11Bssid));
    return list;
}

} // namespace calvix
