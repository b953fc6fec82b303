#include "core/profile_network_match.h"

#include "core/fixed_text.h"
#include "core/out_of_memory.h"
#include "platform/records/error_numbers.h"

namespace calvix
{

ErrorNumber NetworksByProfile::Take(const WLAN_AVAILABLE_NETWORK_LIST& networks)
{
    const auto fill = [&]
    {
        Index& index = m_index.emplace();
        for (const WLAN_AVAILABLE_NETWORK& network : Items(networks))
            index[FixedText(network.strProfileName)].push_back(&network);
    };
    return OutOfMemoryIn(fill) ? ERROR_NOT_ENOUGH_MEMORY : 0;
}

NetworksByProfile::Matches NetworksByProfile::Of(const WLAN_PROFILE_INFO& profile) const
{
    const auto found = m_index->find(FixedText(profile.strProfileName));
    return found != m_index->end() ? Matches(found->second) : Matches();
}

} // namespace calvix
