#include "watched_wlan.h"

namespace calvix::host
{

void RefusalNotes::After(const wrappers::Call& call, long long result)
{
    if (result != 0)
        last = {std::string(call.operation), static_cast<std::uint32_t>(result), 0};
}

void WatchedWlan::StartWatching()
{
    notes.last = {};
    m_requests.clear();
}

DWORD WatchedWlan::WlanSetProfile(HANDLE client,
                                  const GUID* interfaceGuid,
                                  DWORD flags,
                                  const wchar_t* xml,
                                  const wchar_t* allUserProfileSecurity,
                                  BOOL overwrite,
                                  PVOID reserved,
                                  DWORD* reasonCode)
{
    const DWORD error = InterceptedWlanService::WlanSetProfile(client, interfaceGuid, flags, xml,
                                                               allUserProfileSecurity, overwrite, reserved, reasonCode);
    if (error != 0 && reasonCode != nullptr)
        notes.last.reasonCode = *reasonCode;
    return error;
}

DWORD WatchedWlan::WlanConnect(HANDLE client,
                               const GUID* interfaceGuid,
                               const WLAN_CONNECTION_PARAMETERS* parameters,
                               PVOID reserved)
{
    ConnectRequest request;
    if (parameters != nullptr)
    {
        request.bssType = parameters->dot11BssType;
        if (parameters->strProfile != nullptr)
            request.profile = parameters->strProfile;
    }
    const DWORD error = m_rehearsing ? ERROR_CANCELLED
                                     : InterceptedWlanService::WlanConnect(client, interfaceGuid, parameters, reserved);
    request.error = static_cast<std::uint32_t>(error);
    m_requests.push_back(request);
    return error;
}

} // namespace calvix::host
