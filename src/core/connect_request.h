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

} // namespace calvix
