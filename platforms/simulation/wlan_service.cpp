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

SimulatedWlanService::Request::Request(Machine& machine,
                                       const char* operation,
                                       HANDLE client,
                                       std::initializer_list<const void*> required,
                                       const void* reserved)
    : m_lock(machine.mutex)
{
    const bool anyMissing = std::find(required.begin(), required.end(), nullptr) != required.end();
    if (client == nullptr || anyMissing || reserved != nullptr)
        error = ERROR_INVALID_PARAMETER;
    else if (!machine.handles.Use(client, HandleKind::wlanClient, operation))
        error = ERROR_INVALID_HANDLE;
    else if (!machine.present.serviceRunning)
        error = ERROR_SERVICE_NOT_ACTIVE;
}

SimulatedWlanService::Request::Request(Machine& machine,
                                       const char* operation,
                                       HANDLE client,
                                       const GUID* interfaceGuid,
                                       std::initializer_list<const void*> required,
                                       const void* reserved)
    : Request(machine, operation, client, required, reserved)
{
    if (interfaceGuid == nullptr)
        error = ERROR_INVALID_PARAMETER;
    if (error != ERROR_SUCCESS)
        return;
    adapter = machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr)
        error = ERROR_INVALID_PARAMETER;
}

DWORD SimulatedWlanService::WlanOpenHandle(DWORD clientVersion,
                                           PVOID reserved,
                                           DWORD* negotiatedVersion,
                                           HANDLE* client)
{
    if (reserved != nullptr || negotiatedVersion == nullptr || client == nullptr)
        return ERROR_INVALID_PARAMETER;
    const std::lock_guard lock(m_machine.mutex);
    // A stopped service is reported before the version is looked at.
    if (!m_machine.present.serviceRunning)
        return ERROR_SERVICE_NOT_ACTIVE;
    if (clientVersion < oldestVersion || clientVersion > newestVersion)
        return ERROR_NOT_SUPPORTED;
    if (m_machine.handles.CountOpen(HandleKind::wlanClient) >= mostClients)
        return ERROR_REMOTE_SESSION_LIMIT_EXCEEDED;
    *negotiatedVersion = clientVersion;
    *client = m_machine.handles.Open(HandleKind::wlanClient);
    return ERROR_SUCCESS;
}

DWORD SimulatedWlanService::WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list)
{
    const Request request(m_machine, "WlanEnumInterfaces", client, {list}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
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
    const Request request(m_machine, "WlanScan", client, interfaceGuid, {}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const bool isSsidTooLong = ssid != nullptr && ssid->uSSIDLength > DOT11_SSID_MAX_LENGTH;
    const bool isDataTooLong = ieData != nullptr && ieData->dwDataSize > mostIeData;
    if (isSsidTooLong || isDataTooLong)
        return ERROR_INVALID_PARAMETER;
    if (!m_machine.present.locationConsent)
        return ERROR_ACCESS_DENIED;
    if (!request.adapter->IsRadioOn())
        return ERROR_NDIS_DOT11_POWER_STATE_INVALID;
    request.adapter->StartScan(ssid != nullptr ? std::optional(SsidBytes(*ssid)) : std::nullopt);
    return ERROR_SUCCESS;
}

PVOID SimulatedWlanService::WlanAllocateMemory(DWORD size)
{
    const std::lock_guard lock(m_machine.mutex);
    return m_machine.wlanBlocks.Allocate(size, "memory of a client");
}

void SimulatedWlanService::WlanFreeMemory(PVOID memory)
{
    const std::lock_guard lock(m_machine.mutex);
    m_machine.wlanBlocks.Free(memory);
}

platform::WlanService SimulatedWlanService::Operations()
{
    return {
        .WlanOpenHandle = CallsTo<&SimulatedWlanService::WlanOpenHandle>(*this),
        .WlanCloseHandle = CallsTo<&SimulatedWlanService::WlanCloseHandle>(*this),
        .WlanEnumInterfaces = CallsTo<&SimulatedWlanService::WlanEnumInterfaces>(*this),
        .WlanScan = CallsTo<&SimulatedWlanService::WlanScan>(*this),
        .WlanGetAvailableNetworkList = CallsTo<&SimulatedWlanService::WlanGetAvailableNetworkList>(*this),
        .WlanGetNetworkBssList = CallsTo<&SimulatedWlanService::WlanGetNetworkBssList>(*this),
        .WlanQueryInterface = CallsTo<&SimulatedWlanService::WlanQueryInterface>(*this),
        .WlanSetInterface = CallsTo<&SimulatedWlanService::WlanSetInterface>(*this),
        .WlanQueryAutoConfigParameter = CallsTo<&SimulatedWlanService::WlanQueryAutoConfigParameter>(*this),
        .WlanGetProfileList = CallsTo<&SimulatedWlanService::WlanGetProfileList>(*this),
        .WlanGetProfile = CallsTo<&SimulatedWlanService::WlanGetProfile>(*this),
        .WlanSetProfile = CallsTo<&SimulatedWlanService::WlanSetProfile>(*this),
        .WlanDeleteProfile = CallsTo<&SimulatedWlanService::WlanDeleteProfile>(*this),
        .WlanSetProfilePosition = CallsTo<&SimulatedWlanService::WlanSetProfilePosition>(*this),
        .WlanConnect = CallsTo<&SimulatedWlanService::WlanConnect>(*this),
        .WlanDisconnect = CallsTo<&SimulatedWlanService::WlanDisconnect>(*this),
        .WlanRegisterNotification = CallsTo<&SimulatedWlanService::WlanRegisterNotification>(*this),
        .WlanIhvControl = CallsTo<&SimulatedWlanService::WlanIhvControl>(*this),
        .WlanSetSecuritySettings = CallsTo<&SimulatedWlanService::WlanSetSecuritySettings>(*this),
        .WlanReasonCodeToString = CallsTo<&SimulatedWlanService::WlanReasonCodeToString>(*this),
        .WlanFreeMemory = CallsTo<&SimulatedWlanService::WlanFreeMemory>(*this),
    };
}

} // namespace calvix::simulation
