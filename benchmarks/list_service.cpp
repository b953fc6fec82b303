#include "list_service.h"

#include <cstdlib>
#include <cstring>
#include <utility>

namespace calvix::benchmarks
{

namespace
{

template <typename Record>
DWORD HandOut(const Block& block, Record** record)
{
    void* const copy = std::malloc(block.size());
    if (copy == nullptr)
        return ERROR_NOT_ENOUGH_MEMORY;
    std::memcpy(copy, block.data(), block.size());
    *record = static_cast<Record*>(copy);
    return ERROR_SUCCESS;
}

} // namespace

CallCounts ListService::TakeCalls()
{
    return std::exchange(m_calls, {});
}

DWORD ListService::WlanOpenHandle(DWORD, PVOID, DWORD* negotiatedVersion, HANDLE* client)
{
    *negotiatedVersion = 2;
    *client = this;
    return ERROR_SUCCESS;
}

DWORD ListService::WlanCloseHandle(HANDLE, PVOID)
{
    return ERROR_SUCCESS;
}

DWORD ListService::WlanEnumInterfaces(HANDLE, PVOID, WLAN_INTERFACE_INFO_LIST** list)
{
    ++m_calls.enumerations;
    return HandOut(m_content->interfaces, list);
}

DWORD ListService::WlanScan(HANDLE, const GUID*, const DOT11_SSID*, const WLAN_RAW_DATA*, PVOID)
{
    ++m_calls.scans;
    return ERROR_SUCCESS;
}

DWORD ListService::WlanGetAvailableNetworkList(HANDLE, const GUID*, DWORD, PVOID, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    ++m_calls.networkLists;
    return HandOut(m_content->networks, list);
}

DWORD ListService::WlanGetNetworkBssList(
    HANDLE, const GUID*, const DOT11_SSID*, DOT11_BSS_TYPE, BOOL, PVOID, WLAN_BSS_LIST** list)
{
    ++m_calls.bssLists;
    return HandOut(m_content->accessPoints, list);
}

DWORD ListService::WlanQueryInterface(
    HANDLE, const GUID*, WLAN_INTF_OPCODE opcode, PVOID, DWORD* dataSize, PVOID* data, WLAN_OPCODE_VALUE_TYPE*)
{
    ++m_calls.queries;
    if (opcode != wlan_intf_opcode_current_connection)
        return ERROR_CALL_NOT_IMPLEMENTED;
    *dataSize = static_cast<DWORD>(m_content->connection.size());
    return HandOut(m_content->connection, data);
}

DWORD ListService::WlanSetInterface(HANDLE, const GUID*, WLAN_INTF_OPCODE, DWORD, const void*, PVOID)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD ListService::WlanQueryAutoConfigParameter(
    HANDLE, WLAN_AUTOCONF_OPCODE, PVOID, DWORD*, PVOID*, WLAN_OPCODE_VALUE_TYPE*)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD ListService::WlanGetProfileList(HANDLE, const GUID*, PVOID, WLAN_PROFILE_INFO_LIST** list)
{
    ++m_calls.profileLists;
    return HandOut(m_content->profiles, list);
}

DWORD ListService::WlanGetProfile(HANDLE, const GUID*, const wchar_t*, PVOID, wchar_t** xml, DWORD*, DWORD*)
{
    ++m_calls.profileTexts;
    return HandOut(m_content->profileXml, xml);
}

DWORD
ListService::WlanSetProfile(HANDLE, const GUID*, DWORD, const wchar_t*, const wchar_t*, BOOL, PVOID, DWORD*)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD ListService::WlanDeleteProfile(HANDLE, const GUID*, const wchar_t*, PVOID)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD ListService::WlanSetProfilePosition(HANDLE, const GUID*, const wchar_t*, DWORD, PVOID)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD ListService::WlanConnect(HANDLE, const GUID*, const WLAN_CONNECTION_PARAMETERS*, PVOID)
{
    ++m_calls.connects;
    return ERROR_SUCCESS;
}

DWORD ListService::WlanDisconnect(HANDLE, const GUID*, PVOID)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD
ListService::WlanRegisterNotification(HANDLE, DWORD, BOOL, WLAN_NOTIFICATION_CALLBACK, PVOID, PVOID, DWORD*)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD ListService::WlanIhvControl(HANDLE, const GUID*, WLAN_IHV_CONTROL_TYPE, DWORD, PVOID, DWORD, PVOID, DWORD*)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD ListService::WlanSetSecuritySettings(HANDLE, WLAN_SECURABLE_OBJECT, const wchar_t*)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD ListService::WlanReasonCodeToString(DWORD, DWORD, wchar_t*, PVOID)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

void ListService::WlanFreeMemory(PVOID memory)
{
    ++m_calls.releases;
    std::free(memory);
}

ListService& TheService()
{
    static ListService service;
    return service;
}

} // namespace calvix::benchmarks
