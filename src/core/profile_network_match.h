#pragma once

#include "core/fixed_text.h"
#include "core/wlan_lists.h"

#include <string_view>
#include <unordered_map>
#include <vector>

namespace calvix
{

/// The available networks by the profile name that the service tagged them with. A profile and a network match when
/// the names are equal (exact, case-sensitive), whatever the SSIDs. Indexing the networks once keeps the cost of a
/// match to the sum of the two lists, not their product.
class NetworksByProfile
{
public:
    using Matches = std::vector<const WLAN_AVAILABLE_NETWORK*>;

    explicit NetworksByProfile(const WLAN_AVAILABLE_NETWORK_LIST& networks)
    {
        m_matches.reserve(networks.dwNumberOfItems);
        for (const WLAN_AVAILABLE_NETWORK& network : Items(networks))
            m_matches[FixedText(network.strProfileName)].push_back(&network);
    }

    /// The networks that match a profile, in list order.
    const Matches& Of(const WLAN_PROFILE_INFO& profile) const
    {
        const auto found = m_matches.find(FixedText(profile.strProfileName));
        return found != m_matches.end() ? found->second : m_none;
    }

private:
    std::unordered_map<std::wstring_view, Matches> m_matches;
    Matches m_none;
};

} // namespace calvix
