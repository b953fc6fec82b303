#include "forms/utf8.h"
#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

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

/// The profile that a request is about, or why there is none.
struct Requested
{
    std::shared_ptr<const Profile> profile;
    DWORD error = ERROR_SUCCESS;
};

Requested FindStored(const Adapter& adapter, const wchar_t* name)
{
    if (name == nullptr || !IsProfileName(name))
        return {nullptr, ERROR_INVALID_PARAMETER};
    const auto profile = adapter.Profiles().Find(name);
    if (profile == nullptr)
        return {nullptr, ERROR_NOT_FOUND}; // chosen
    return {profile};
}

Requested ReadTemporary(const wchar_t* xml)
{
    if (xml == nullptr)
        return {nullptr, ERROR_INVALID_PARAMETER};
    ProfileRefusal refusal{};
    auto profile = ReadProfile(xml, 0, refusal);
    if (!profile)
        return {nullptr, refusal.error}; // chosen, as for WlanSetProfile
    return {std::make_shared<const Profile>(std::move(*profile))};
}

// Chosen: as secure as the strongest access point of the network that was heard; where none was, as most are.
void DiscoverSecurity(const std::vector<HeardBss>& heard, ProfileSettings& settings)
{
    const AccessPoint* strongest = nullptr;
    for (const HeardBss& bss : heard)
    {
        const bool isMeant = bss.accessPoint.ssid == settings.ssid && IsSecured(bss.security);
        if (isMeant && (strongest == nullptr || bss.accessPoint.rssi > strongest->rssi))
            strongest = &bss.accessPoint;
    }
    if (strongest != nullptr)
    {
        settings.authentication = strongest->authentication;
        settings.encryption = strongest->encryption;
    }
}

Requested Discover(Adapter& adapter, const WLAN_CONNECTION_PARAMETERS& parameters)
{
    const DOT11_SSID* const ssid = parameters.pDot11Ssid;
    const bool isSsid = ssid != nullptr && ssid->uSSIDLength > 0 && ssid->uSSIDLength <= DOT11_SSID_MAX_LENGTH;
    if (parameters.strProfile != nullptr || !isSsid)
        return {nullptr, ERROR_INVALID_PARAMETER};
    ProfileSettings settings;
    settings.ssid = SsidBytes(*ssid);
    settings.name = ProfileNameFor(settings.ssid);
    settings.mode = "manual";
    settings.bssType = static_cast<std::uint32_t>(parameters.dot11BssType);
    settings.authentication = "open";
    settings.encryption = "none";
    if (parameters.wlanConnectionMode == wlan_connection_mode_discovery_secure)
    {
        settings.authentication = "WPA2PSK";
        settings.encryption = "AES";
        DiscoverSecurity(adapter.Heard(), settings);
    }
    return ReadTemporary(forms::WideFromUtf8(MakeProfileXml(settings)).c_str());
}

Requested FindRequested(Adapter& adapter, const WLAN_CONNECTION_PARAMETERS& parameters)
{
    switch (parameters.wlanConnectionMode)
    {
    case wlan_connection_mode_profile:
        return FindStored(adapter, parameters.strProfile);
    case wlan_connection_mode_temporary_profile:
        return ReadTemporary(parameters.strProfile);
    case wlan_connection_mode_discovery_secure:
    case wlan_connection_mode_discovery_unsecure:
        return Discover(adapter, parameters);
    default:
        return {nullptr, ERROR_INVALID_PARAMETER};
    }
}

} // namespace

// Accepting says nothing about the outcome: that shows in the interface's state when time has passed.
DWORD SimulatedWlanService::WlanConnect(HANDLE client,
                                        const GUID* interfaceGuid,
                                        const WLAN_CONNECTION_PARAMETERS* parameters,
                                        PVOID reserved)
{
    const Request request(m_machine, "WlanConnect", client, interfaceGuid, {parameters}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const auto [profile, refusal] = FindRequested(*request.adapter, *parameters);
    if (refusal != ERROR_SUCCESS)
        return refusal;
    if (profile->document.bssType != parameters->dot11BssType || !IsSsidOf(profile->document, parameters->pDot11Ssid))
        return ERROR_INVALID_PARAMETER;
    if (!request.adapter->IsRadioOn())
        return ERROR_NDIS_DOT11_POWER_STATE_INVALID; // chosen, as for the lists
    request.adapter->Connect({profile, DesiredBssids(parameters->pDesiredBssidList),
                              (parameters->dwFlags & WLAN_CONNECTION_HIDDEN_NETWORK) != 0,
                              parameters->wlanConnectionMode});
    return ERROR_SUCCESS;
}

// Chosen: it succeeds without a connection, too.
DWORD SimulatedWlanService::WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved)
{
    const Request request(m_machine, "WlanDisconnect", client, interfaceGuid, {}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    request.adapter->Disconnect();
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
