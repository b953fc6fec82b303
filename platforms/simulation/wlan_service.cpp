#include "simulation/wlan_service.h"

#include "simulation/service_records.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

// The real service limits the clients of a session; the number was chosen.
constexpr std::size_t mostClients = 1024;

// The versions of the client interface: that of Windows XP, and that of everything since.
constexpr DWORD oldestVersion = 1;
constexpr DWORD newestVersion = 2;

constexpr DWORD mostIeData = 240;

} // namespace

DWORD SimulatedWlanService::Check(const char* operation,
                                  HANDLE client,
                                  std::initializer_list<const void*> required,
                                  const void* reserved)
{
    const bool anyMissing = std::find(required.begin(), required.end(), nullptr) != required.end();
    if (client == nullptr || anyMissing || reserved != nullptr)
    {
        return ERROR_INVALID_PARAMETER;
    }
    if (!m_machine.handles.Use(client, HandleKind::wlanClient, operation))
    {
        return ERROR_INVALID_HANDLE;
    }
    return m_machine.serviceRunning ? ERROR_SUCCESS : ERROR_SERVICE_NOT_ACTIVE;
}

DWORD SimulatedWlanService::WlanOpenHandle(DWORD clientVersion,
                                           PVOID reserved,
                                           DWORD* negotiatedVersion,
                                           HANDLE* client)
{
    if (reserved != nullptr || negotiatedVersion == nullptr || client == nullptr)
    {
        return ERROR_INVALID_PARAMETER;
    }
    // A stopped service is reported before the version is looked at.
    if (!m_machine.serviceRunning)
    {
        return ERROR_SERVICE_NOT_ACTIVE;
    }
    if (clientVersion < oldestVersion || clientVersion > newestVersion)
    {
        return ERROR_NOT_SUPPORTED;
    }
    if (m_machine.handles.CountOpen(HandleKind::wlanClient) >= mostClients)
    {
        return ERROR_REMOTE_SESSION_LIMIT_EXCEEDED;
    }
    *negotiatedVersion = clientVersion;
    *client = m_machine.handles.Open(HandleKind::wlanClient);
    return ERROR_SUCCESS;
}

// Chosen: handles outlive a stop of the service and can be closed meanwhile.
DWORD SimulatedWlanService::WlanCloseHandle(HANDLE client, PVOID reserved)
{
    if (client == nullptr || reserved != nullptr)
    {
        return ERROR_INVALID_PARAMETER;
    }
    const bool wasOpen = m_machine.handles.Close(client, HandleKind::wlanClient, "WlanCloseHandle");
    return wasOpen ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

DWORD SimulatedWlanService::WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list)
{
    if (const DWORD error = Check("WlanEnumInterfaces", client, {list}, reserved))
    {
        return error;
    }
    const auto& adapters = m_machine.adapters;
    const std::size_t size =
        offsetof(WLAN_INTERFACE_INFO_LIST, InterfaceInfo) + adapters.size() * sizeof(WLAN_INTERFACE_INFO);
    *list = NewRecord<WLAN_INTERFACE_INFO_LIST>(m_machine.wlanBlocks, size, "interface list");
    (*list)->dwNumberOfItems = static_cast<DWORD>(adapters.size());
    WLAN_INTERFACE_INFO* entry = (*list)->InterfaceInfo;
    for (const auto& adapter : adapters)
    {
        entry->InterfaceGuid = adapter->Guid();
        CopyText(adapter->Description(), entry->strInterfaceDescription);
        entry->isState = adapter->State();
        ++entry;
    }
    return ERROR_SUCCESS;
}

DWORD SimulatedWlanService::WlanScan(
    HANDLE client, const GUID* interfaceGuid, const DOT11_SSID* ssid, const WLAN_RAW_DATA* ieData, PVOID reserved)
{
    if (const DWORD error = Check("WlanScan", client, {interfaceGuid}, reserved))
    {
        return error;
    }
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    const bool isSsidTooLong = ssid != nullptr && ssid->uSSIDLength > DOT11_SSID_MAX_LENGTH;
    const bool isDataTooLong = ieData != nullptr && ieData->dwDataSize > mostIeData;
    if (adapter == nullptr || isSsidTooLong || isDataTooLong)
    {
        return ERROR_INVALID_PARAMETER;
    }
    if (!m_machine.locationConsent)
    {
        return ERROR_ACCESS_DENIED;
    }
    if (!adapter->IsRadioOn())
    {
        return ERROR_NDIS_DOT11_POWER_STATE_INVALID;
    }
    adapter->StartScan(ssid != nullptr ? std::optional(SsidBytes(*ssid)) : std::nullopt);
    return ERROR_SUCCESS;
}

// Notifications, vendor control, the power setting, security settings and reason texts are rooms of the service
// that are not furnished yet: their operations check what all operations check and then say so.

DWORD SimulatedWlanService::WlanQueryAutoConfigParameter(
    HANDLE client, WLAN_AUTOCONF_OPCODE, PVOID reserved, DWORD* dataSize, PVOID* data, WLAN_OPCODE_VALUE_TYPE*)
{
    const DWORD error = Check("WlanQueryAutoConfigParameter", client, {dataSize, data}, reserved);
    return error != ERROR_SUCCESS ? error : ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedWlanService::WlanRegisterNotification(
    HANDLE client, DWORD, BOOL, WLAN_NOTIFICATION_CALLBACK, PVOID, PVOID reserved, DWORD*)
{
    const DWORD error = Check("WlanRegisterNotification", client, {}, reserved);
    return error != ERROR_SUCCESS ? error : ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedWlanService::WlanIhvControl(
    HANDLE client, const GUID* interfaceGuid, WLAN_IHV_CONTROL_TYPE, DWORD, PVOID, DWORD, PVOID, DWORD* bytesReturned)
{
    const DWORD error = Check("WlanIhvControl", client, {interfaceGuid, bytesReturned});
    return error != ERROR_SUCCESS ? error : ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedWlanService::WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT, const wchar_t* sddl)
{
    const DWORD error = Check("WlanSetSecuritySettings", client, {sddl});
    return error != ERROR_SUCCESS ? error : ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedWlanService::WlanReasonCodeToString(DWORD, DWORD bufferSize, wchar_t* buffer, PVOID reserved)
{
    const bool isUsable = bufferSize != 0 && buffer != nullptr && reserved == nullptr;
    return isUsable ? ERROR_CALL_NOT_IMPLEMENTED : ERROR_INVALID_PARAMETER;
}

void SimulatedWlanService::WlanFreeMemory(PVOID memory)
{
    m_machine.wlanBlocks.Free(memory);
}

} // namespace calvix::simulation
