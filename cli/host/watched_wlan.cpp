#include "host/watched_wlan.h"

#include "output/text_forms.h"

namespace calvix::host
{

namespace
{

ConnectRequest Describe(const GUID* interfaceGuid, const WLAN_CONNECTION_PARAMETERS* parameters)
{
    ConnectRequest request;
    if (interfaceGuid != nullptr)
        request.adapter = *interfaceGuid;
    if (parameters == nullptr)
        return request;
    request.bssType = parameters->dot11BssType;
    if (parameters->strProfile != nullptr)
        request.profile = parameters->strProfile;
    const DOT11_BSSID_LIST* const desired = parameters->pDesiredBssidList;
    if (desired != nullptr && desired->uNumOfEntries > 0)
        request.accessPoint = MacText(desired->BSSIDs[0]);
    return request;
}

} // namespace

void RefusalNotes::After(const wrappers::Call& call, long long result)
{
    if (call.facts->facility == operations::Facility::wlan && operations::HasFailed(call.facts->fails, result))
        last = {std::string(call.operation), static_cast<std::uint32_t>(result), 0};
}

void WatchedWlan::StartWatching()
{
    m_notes.last = {};
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
    const DWORD error = m_inner.WlanSetProfile(client, interfaceGuid, flags, xml, allUserProfileSecurity, overwrite,
                                               reserved, reasonCode);
    if (error != 0 && reasonCode != nullptr)
        m_notes.last.reasonCode = *reasonCode;
    return error;
}

DWORD WatchedWlan::WlanSetProfilePosition(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* profileName, DWORD position, PVOID reserved)
{
    if (m_rehearsing)
        return ERROR_SUCCESS;
    return m_inner.WlanSetProfilePosition(client, interfaceGuid, profileName, position, reserved);
}

DWORD WatchedWlan::WlanConnect(HANDLE client,
                               const GUID* interfaceGuid,
                               const WLAN_CONNECTION_PARAMETERS* parameters,
                               PVOID reserved)
{
    ConnectRequest request = Describe(interfaceGuid, parameters);
    const DWORD error =
        m_rehearsing ? ERROR_CANCELLED : m_inner.WlanConnect(client, interfaceGuid, parameters, reserved);
    request.error = static_cast<std::uint32_t>(error);
    m_requests.push_back(request);
    return error;
}

} // namespace calvix::host
