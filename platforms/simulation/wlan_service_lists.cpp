#include "simulation/bss_list.h"
#include "simulation/network_list.h"
#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <vector>

namespace calvix::simulation
{

namespace
{

struct BssFilter
{
    const DOT11_SSID* ssid; ///< null: all, and the other two have no effect
    DOT11_BSS_TYPE bssType;
    bool secured;
};

// Type and security count only together with an SSID, and an SSID together with "any" type finds nothing, as
// documented.
bool Passes(const HeardBss& bss, const BssFilter& filter)
{
    if (filter.ssid == nullptr)
        return true;
    return bss.Ssid() == SsidBytes(*filter.ssid) &&
           bss.accessPoint.bssType == static_cast<std::uint32_t>(filter.bssType) &&
           IsSecured(bss.security) == filter.secured && filter.bssType != dot11_BSS_type_any;
}

std::vector<const HeardBss*> Choose(const std::vector<HeardBss>& heard, const BssFilter& filter)
{
    std::vector<const HeardBss*> chosen;
    for (const HeardBss& bss : heard)
        if (Passes(bss, filter))
            chosen.push_back(&bss);
    return chosen;
}

} // namespace

DWORD SimulatedWlanService::WlanGetAvailableNetworkList(
    HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    const Request request(m_machine, "WlanGetAvailableNetworkList", client, interfaceGuid, {list}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if (!m_machine.present.locationConsent)
        return ERROR_ACCESS_DENIED;
    if (!request.adapter->IsRadioOn())
        return ERROR_NDIS_DOT11_POWER_STATE_INVALID;
    const NetworkListInput input{request.adapter->Heard(), request.adapter->Profiles(), request.adapter->CurrentLink(),
                                 (flags & WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_ADHOC_PROFILES) != 0,
                                 (flags & WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_MANUAL_HIDDEN_PROFILES) != 0};
    *list = MakeNetworkList(m_machine.wlanBlocks, input);
    return ERROR_SUCCESS;
}

DWORD SimulatedWlanService::WlanGetNetworkBssList(HANDLE client,
                                                  const GUID* interfaceGuid,
                                                  const DOT11_SSID* ssid,
                                                  DOT11_BSS_TYPE bssType,
                                                  BOOL securityEnabled,
                                                  PVOID reserved,
                                                  WLAN_BSS_LIST** list)
{
    const Request request(m_machine, "WlanGetNetworkBssList", client, {interfaceGuid, list}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if (ssid != nullptr && ssid->uSSIDLength > DOT11_SSID_MAX_LENGTH)
        return ERROR_INVALID_PARAMETER;
    // Alone among the operations this one says "not found" when there is no such interface.
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr)
        return ERROR_NOT_FOUND;
    if (!m_machine.present.locationConsent)
        return ERROR_ACCESS_DENIED;
    if (!adapter->IsRadioOn())
        return ERROR_NDIS_DOT11_POWER_STATE_INVALID;
    const auto chosen = Choose(adapter->Heard(), {ssid, bssType, securityEnabled != FALSE});
    *list = MakeBssList(m_machine.wlanBlocks, chosen, adapter->Phys());
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
