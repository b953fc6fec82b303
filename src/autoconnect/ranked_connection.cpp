#include "autoconnect/ranked_connection.h"

#include "autoconnect/connection_walk.h"

#include <span>

namespace calvix
{

int ConnectCandidates(HANDLE client,
                      const GUID* interfaceGuid,
                      const WLAN_AVAILABLE_NETWORK_LIST& networks,
                      std::vector<Candidate>& candidates,
                      Trace& trace)
{
    if (candidates.empty())
        return -9;

    // Deliberate: only the BSS entries of the last listed network, candidate or not, take part in the band bonus.
    BssList entries;
    if (ListNetworkBss(client, interfaceGuid, Items(networks).back(), entries, trace) != 0)
        return -10;
    if (entries->dwNumberOfItems == 0)
        return -11;

    AddBandBonus(candidates, *entries);
    // Deliberate: from the weakest upward. The service accepts a request without waiting for the connection, so the
    // first accepted one stands, which mostly is the first: the others are sorted only where it is not.
    if (RequestNetwork(client, interfaceGuid, *LowestScored(candidates).network, trace) == 0)
        return 0;
    SortByScore(candidates);
    for (const Candidate& candidate : std::span(candidates).subspan(1))
    {
        if (RequestNetwork(client, interfaceGuid, *candidate.network, trace) == 0)
            return 0;
    }
    return -12;
}

} // namespace calvix
