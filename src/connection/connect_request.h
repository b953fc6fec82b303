#pragma once

#include "core/trace.h"

namespace calvix
{

/// Asks the service to connect by a stored profile, to any access point of its network or to the desired ones. The
/// service accepts or refuses at once; whether the connection is made shows later. 0, or the error number after tracing
/// it.
ErrorNumber RequestConnection(HANDLE client,
                              const GUID* interfaceGuid,
                              const wchar_t* profileName,
                              DOT11_BSS_TYPE bssType,
                              DOT11_BSSID_LIST* desired,
                              Trace& trace);

/// The standard request: by the profile that the network is tagged with.
ErrorNumber
RequestNetwork(HANDLE client, const GUID* interfaceGuid, const WLAN_AVAILABLE_NETWORK& network, Trace& trace);

/// The access point of a reconnection: the last entry whose link quality is above the first entry's, or the first entry
/// when there is none. Deliberate: the first entry stays the reference, so this is not a search for the best quality;
/// hosts rely on its choices. The list has at least one entry.
const WLAN_BSS_ENTRY& PickAccessPoint(const WLAN_BSS_LIST& entries);

/// A desired-BSSID list of the one access point.
DOT11_BSSID_LIST DesireOnly(const WLAN_BSS_ENTRY& accessPoint);

} // namespace calvix
