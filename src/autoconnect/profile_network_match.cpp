#include "autoconnect/profile_network_match.h"

#include "core/memory.h"
#include "core/wlan_records.h"
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

int ListProfilesAndNetworks(HANDLE& client,
                            const GUID* interfaceGuid,
                            ProfilesAndNetworks& lists,
                            Trace& trace,
                            const ProfileAndNetworkCodes& codes)
{
    if (OpenClient(client, trace) != 0)
        return codes.notOpened;
    if (ListProfiles(client, interfaceGuid, lists.profiles, trace) != 0)
        return codes.profilesFailed;
    if (lists.profiles->dwNumberOfItems == 0)
    {
        trace.Line(codes.noProfileText, codes.noProfile);
        return codes.noProfile;
    }
    if (ListAvailableNetworks(client, interfaceGuid, lists.networks, trace) != 0)
        return codes.networksFailed;
    if (lists.networks->dwNumberOfItems == 0)
    {
        trace.Line(codes.noNetworkText, codes.noNetwork);
        return codes.noNetwork;
    }
    return 0;
}

int MatchProfilesAndNetworks(HANDLE& client,
                             const GUID* interfaceGuid,
                             ProfilesAndNetworks& lists,
                             Trace& trace,
                             const ProfileAndNetworkCodes& codes)
{
    if (const int code = ListProfilesAndNetworks(client, interfaceGuid, lists, trace, codes))
        return code;
    return lists.networksByProfile.Take(*lists.networks) != 0 ? codes.networksFailed : 0;
}

} // namespace calvix
