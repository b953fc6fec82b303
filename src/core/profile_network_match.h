#pragma once

#include "core/trace.h"
#include "core/wlan_lists.h"

#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace calvix
{

/// The available networks by the profile name that the service tagged them with. A profile and a network match when
/// the names are equal (exact, case-sensitive), whatever the SSIDs.
class NetworksByProfile
{
public:
    using Matches = std::span<const WLAN_AVAILABLE_NETWORK* const>;

    /// Takes the networks of a list that outlives this object. 0, or the platform's error number for want of memory.
    ErrorNumber Take(const WLAN_AVAILABLE_NETWORK_LIST& networks);

    /// The networks that match a profile, in list order.
    Matches Of(const WLAN_PROFILE_INFO& profile) const;

private:
    using Index = std::unordered_map<std::wstring_view, std::vector<const WLAN_AVAILABLE_NETWORK*>>;

    std::optional<Index> m_index; ///< none before it is filled: some runtimes take memory for an empty one
};

} // namespace calvix
