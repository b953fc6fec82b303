#include "core/connect_request.h"

namespace calvix
{

ErrorNumber RequestConnection(HANDLE client,
                              const GUID* interfaceGuid,
                              const wchar_t* profileName,
                              DOT11_BSS_TYPE bssType,
                              DOT11_BSSID_LIST* desired,
                              Trace& trace)
{
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = profileName;
    parameters.pDesiredBssidList = desired;
    parameters.dot11BssType = bssType;
    const DWORD error = platform::wlan().WlanConnect(client, interfaceGuid, &parameters, nullptr);
    trace.Failed(error, "WlanConnect failed with error: %u");
    return static_cast<ErrorNumber>(error);
}

} // namespace calvix
