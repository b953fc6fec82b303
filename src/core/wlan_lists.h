#pragma once

#include <calvix/platform_records.h>

#include <span>

namespace calvix
{

/// The entries of a list record, whose array member only names the first of them.

inline std::span<const WLAN_INTERFACE_INFO> Items(const WLAN_INTERFACE_INFO_LIST& list)
{
    return {list.InterfaceInfo, list.dwNumberOfItems};
}

inline std::span<const WLAN_AVAILABLE_NETWORK> Items(const WLAN_AVAILABLE_NETWORK_LIST& list)
{
    return {list.Network, list.dwNumberOfItems};
}

inline std::span<const WLAN_PROFILE_INFO> Items(const WLAN_PROFILE_INFO_LIST& list)
{
    return {list.ProfileInfo, list.dwNumberOfItems};
}

inline std::span<const WLAN_BSS_ENTRY> Items(const WLAN_BSS_LIST& list)
{
    return {list.wlanBssEntries, list.dwNumberOfItems};
}

} // namespace calvix
