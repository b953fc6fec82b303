#pragma once

#include "core/profile_network_match.h"
#include "core/trace.h"

namespace calvix
{

/// How a walk over profiles and networks ended.
enum class WalkEnd
{
    accepted, ///< a request was accepted
    refused,  ///< requests were made, none was accepted
    noMatch   ///< there was nothing to request
};

/// Asks for a connection to every network that carries a profile's name, in profile order, then network order, until a
/// request is accepted.
WalkEnd WalkProfiles(HANDLE client,
                     const GUID* interfaceGuid,
                     const WLAN_PROFILE_INFO_LIST& profiles,
                     NetworksByProfile& networks,
                     Trace& trace);

/// The standard request: by the profile that the network is tagged with.
ErrorNumber
RequestNetwork(HANDLE client, const GUID* interfaceGuid, const WLAN_AVAILABLE_NETWORK& network, Trace& trace);

} // namespace calvix
