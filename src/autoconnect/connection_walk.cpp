#include "autoconnect/connection_walk.h"

#include "core/connect_request.h"
#include "core/fixed_text.h"

namespace calvix
{

ErrorNumber
RequestNetwork(HANDLE client, const GUID* interfaceGuid, const WLAN_AVAILABLE_NETWORK& network, Trace& trace)
{
    return RequestConnection(client, interfaceGuid, TerminatedName(network.strProfileName), network.dot11BssType,
                             nullptr, trace);
}

WalkEnd WalkProfiles(HANDLE client,
                     const GUID* interfaceGuid,
                     const WLAN_PROFILE_INFO_LIST& profiles,
                     NetworksByProfile& networks,
                     Trace& trace)
{
    WalkEnd end = WalkEnd::noMatch;
    for (const WLAN_PROFILE_INFO& profile : Items(profiles))
    {
        for (const WLAN_AVAILABLE_NETWORK* network : networks.Of(profile))
        {
            if (RequestNetwork(client, interfaceGuid, *network, trace) == 0)
                return WalkEnd::accepted;
            end = WalkEnd::refused;
        }
    }
    return end;
}

} // namespace calvix
