#include "autoconnect/ranked_connection.h"

#include "autoconnect/connection_walk.h"

namespace calvix
{

int ConnectCandidates(HANDLE client,
                      const GUID* interfaceGuid,
                      const WLAN_AVAILABLE_NETWORK_LIST& networks,
                      Candidates& candidates,
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
    SortByScore(candidates);
    // Deliberate: from the weakest upward. The service accepts a request without waiting for the connection, so the
    // first accepted one stands, which mostly is the first.
    for (const WLAN_AVAILABLE_NETWORK* candidate : candidates)
    {
        if (RequestNetwork(client, interfaceGuid, *candidate, trace) == 0)
            return 0;
    }
    return -12;
}

} // namespace calvix
