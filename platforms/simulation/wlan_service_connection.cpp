#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <algorithm>
#include <cwchar>

namespace calvix::simulation
{

namespace
{

bool IsProfileName(const wchar_t* name)
{
    return name != nullptr && name[0] != L'\0' && std::wcslen(name) < WLAN_MAX_NAME_LENGTH;
}

bool IsSsidOf(const ProfileDocument& profile, const DOT11_SSID* ssid)
{
    return ssid == nullptr || (ssid->uSSIDLength <= DOT11_SSID_MAX_LENGTH && SsidBytes(*ssid) == profile.ssid);
}

// The list's own counts say how long it is; its header is not looked at (chosen).
std::vector<MacAddress> DesiredBssids(const DOT11_BSSID_LIST* list)
{
    std::vector<MacAddress> bssids;
    for (ULONG index = 0; list != nullptr && index < list->uNumOfEntries; ++index)
    {
        const DOT11_MAC_ADDRESS* const entry = list->BSSIDs + index;
        MacAddress& bssid = bssids.emplace_back();
        std::copy(std::begin(*entry), std::end(*entry), bssid.begin());
    }
    return bssids;
}

} // namespace

// Accepting says nothing about the outcome: that shows in the interface's state when time has passed.
DWORD SimulatedWlanService::WlanConnect(HANDLE client,
                                        const GUID* interfaceGuid,
                                        const WLAN_CONNECTION_PARAMETERS* parameters,
                                        PVOID reserved)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanConnect", client, {interfaceGuid, parameters}, reserved))
        return error;
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    const WLAN_CONNECTION_MODE mode = parameters->wlanConnectionMode;
    if (adapter == nullptr || mode >= wlan_connection_mode_auto)
        return ERROR_INVALID_PARAMETER;
    if (mode != wlan_connection_mode_profile)
        return ERROR_CALL_NOT_IMPLEMENTED; // temporary profiles and discovery cannot be used yet
    if (!IsProfileName(parameters->strProfile))
        return ERROR_INVALID_PARAMETER;
    const auto profile = adapter->Profiles().Find(parameters->strProfile);
    if (profile == nullptr)
        return ERROR_NOT_FOUND; // chosen
    if (profile->document.bssType != parameters->dot11BssType || !IsSsidOf(profile->document, parameters->pDot11Ssid))
        return ERROR_INVALID_PARAMETER;
    if (!adapter->IsRadioOn())
        return ERROR_NDIS_DOT11_POWER_STATE_INVALID; // chosen, as for the lists
    adapter->Connect({profile, DesiredBssids(parameters->pDesiredBssidList),
                      (parameters->dwFlags & WLAN_CONNECTION_HIDDEN_NETWORK) != 0, mode});
    return ERROR_SUCCESS;
}

// Chosen: it succeeds without a connection, too.
DWORD SimulatedWlanService::WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanDisconnect", client, {interfaceGuid}, reserved))
        return error;
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr)
        return ERROR_INVALID_PARAMETER;
    adapter->Disconnect();
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
