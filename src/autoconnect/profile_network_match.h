#pragma once

#include "core/service_steps.h"

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

/// What most automatic methods work on. The last declared is released first: the profiles, then the networks.
struct ProfilesAndNetworks
{
    NetworkList networks;
    ProfileList profiles;
    NetworksByProfile networksByProfile;
};

/// A method's codes for the ways in which it can be left without profiles to match with networks.
struct ProfileAndNetworkCodes
{
    int notOpened;
    int profilesFailed;
    int noProfile;
    int networksFailed;
    int noNetwork;
    const char* noProfileText = "No network profile: %u";
    const char* noNetworkText = "No available network: %u";
};

/// Opens the client handle when needed and lists the stored profiles, then the available networks; both hold at least
/// one when this returns 0, otherwise it returns the method's code. An empty list is traced with that code as its
/// number.
int ListProfilesAndNetworks(HANDLE& client,
                            const GUID* interfaceGuid,
                            ProfilesAndNetworks& lists,
                            Trace& trace,
                            const ProfileAndNetworkCodes& codes);

/// The same with the networks by profile, which cannot be had without memory: that ends as a list that failed.
int MatchProfilesAndNetworks(HANDLE& client,
                             const GUID* interfaceGuid,
                             ProfilesAndNetworks& lists,
                             Trace& trace,
                             const ProfileAndNetworkCodes& codes);

} // namespace calvix
