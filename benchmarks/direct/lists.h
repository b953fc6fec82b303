#pragma once

#include "platform/platform.h"

#include <cwchar>

namespace calvix::benchmarks
{

/// The stored profiles and the available networks of an adapter, fetched and released together.
struct Lists
{
    Lists(HANDLE client, const GUID* adapter)
        : complete(platform::wlan().WlanGetProfileList(client, adapter, nullptr, &profiles) == 0 &&
                   platform::wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, &networks) == 0)
    {
    }
    Lists(const Lists&) = delete;
    Lists& operator=(const Lists&) = delete;
    ~Lists()
    {
        if (networks != nullptr)
            platform::wlan().WlanFreeMemory(networks);
        if (profiles != nullptr)
            platform::wlan().WlanFreeMemory(profiles);
    }

    WLAN_PROFILE_INFO_LIST* profiles = nullptr;
    WLAN_AVAILABLE_NETWORK_LIST* networks = nullptr;
    bool complete;
};

/// Hands every network that carries a profile's name to `visit(profile, network)`, until that returns true.
template <typename Visit>
void VisitMatches(const Lists& lists, Visit visit)
{
    for (DWORD profile = 0; profile < lists.profiles->dwNumberOfItems; ++profile)
    {
        const wchar_t* const name = lists.profiles->ProfileInfo[profile].strProfileName;
        for (DWORD network = 0; network < lists.networks->dwNumberOfItems; ++network)
        {
            WLAN_AVAILABLE_NETWORK& candidate = lists.networks->Network[network];
            if (std::wcscmp(name, candidate.strProfileName) == 0 && visit(name, candidate))
                return;
        }
    }
}

inline WLAN_BSS_LIST* ReadEntries(HANDLE client, const GUID* adapter, const WLAN_AVAILABLE_NETWORK& network)
{
    WLAN_BSS_LIST* entries = nullptr;
    const DWORD error = platform::wlan().WlanGetNetworkBssList(
        client, adapter, &network.dot11Ssid, network.dot11BssType, network.bSecurityEnabled, nullptr, &entries);
    return error == 0 ? entries : nullptr;
}

} // namespace calvix::benchmarks
