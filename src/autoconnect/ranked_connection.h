#pragma once

#include "autoconnect/candidate_ranking.h"
#include "core/out_of_memory.h"
#include "core/profile_network_match.h"
#include "core/service_steps.h"

namespace calvix
{

/// Ranks the candidates and asks for a connection to one after the other, from the lowest score upward, until a request
/// is accepted: 0. Otherwise the code of ConnectBestAP.
int ConnectCandidates(HANDLE client,
                      const GUID* interfaceGuid,
                      const WLAN_AVAILABLE_NETWORK_LIST& networks,
                      Candidates& candidates,
                      Trace& trace);

/// The same from the start: opens the client handle, lists profiles and networks, and takes as candidates the networks
/// of the profiles that `usesProfile(profile)` lets through, in profile order, then network order, as far as
/// `accepts(network)` does.
template <typename UsesProfile, typename Accepts>
int ConnectRanked(HANDLE& client, const GUID* interfaceGuid, Trace& trace, UsesProfile usesProfile, Accepts accepts)
{
    ProfilesAndNetworks lists;
    if (const int code = ListProfilesAndNetworks(
            client, interfaceGuid, lists, trace,
            {.notOpened = -1, .profilesFailed = -4, .noProfile = -5, .networksFailed = -6, .noNetwork = -7}))
        return code;

    NetworksByProfile networksByProfile;
    if (networksByProfile.Take(*lists.networks) != 0)
        return -6;
    Candidates candidates;
    const auto gather = [&]
    {
        for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
        {
            if (!usesProfile(profile))
                continue;
            for (const WLAN_AVAILABLE_NETWORK* network : networksByProfile.Of(profile))
            {
                if (accepts(*network))
                    candidates.push_back(lists.networks->Network + (network - lists.networks->Network));
            }
        }
    };
    if (OutOfMemoryIn(gather))
        return -6;
    return ConnectCandidates(client, interfaceGuid, *lists.networks, candidates, trace);
}

} // namespace calvix
