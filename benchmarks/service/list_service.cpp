#include "service/list_service.h"

#include "service/calls.h"

#include <cstdlib>
#include <cstring>

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

DWORD ListService::WlanOpenHandle(DWORD, PVOID, DWORD* negotiatedVersion, HANDLE* client)
{
    Count(Operation::openHandle);
    *negotiatedVersion = 2;
    *client = this;
    return ERROR_SUCCESS;
}

DWORD ListService::WlanCloseHandle(HANDLE, PVOID)
{
    Count(Operation::closeHandle);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanEnumInterfaces(HANDLE, PVOID, WLAN_INTERFACE_INFO_LIST** list)
{
    Count(Operation::enumInterfaces);
    return HandOut(m_content->interfaces, list);
}

DWORD ListService::WlanScan(HANDLE, const GUID*, const DOT11_SSID*, const WLAN_RAW_DATA*, PVOID)
{
    Count(Operation::scan);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanGetAvailableNetworkList(HANDLE, const GUID*, DWORD, PVOID, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    Count(Operation::networkList);
    return HandOut(m_content->networks, list);
}

DWORD ListService::WlanGetNetworkBssList(
    HANDLE, const GUID*, const DOT11_SSID*, DOT11_BSS_TYPE, BOOL, PVOID, WLAN_BSS_LIST** list)
{
    Count(Operation::bssList);
    return HandOut(m_content->accessPoints, list);
}

DWORD ListService::WlanQueryInterface(
    HANDLE, const GUID*, WLAN_INTF_OPCODE opcode, PVOID, DWORD* dataSize, PVOID* data, WLAN_OPCODE_VALUE_TYPE*)
{
    Count(Operation::queryInterface);
    const Block& block = m_content->AnswerTo(opcode);
    *dataSize = static_cast<DWORD>(block.size());
    return HandOut(block, data);
}

DWORD ListService::WlanSetInterface(HANDLE, const GUID*, WLAN_INTF_OPCODE, DWORD, const void*, PVOID)
{
    Count(Operation::setInterface);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanQueryAutoConfigParameter(
    HANDLE, WLAN_AUTOCONF_OPCODE, PVOID, DWORD* dataSize, PVOID* data, WLAN_OPCODE_VALUE_TYPE*)
{
    Count(Operation::queryParameter);
    *dataSize = static_cast<DWORD>(m_content->powerSetting.size());
    return HandOut(m_content->powerSetting, data);
}

DWORD ListService::WlanGetProfileList(HANDLE, const GUID*, PVOID, WLAN_PROFILE_INFO_LIST** list)
{
    Count(Operation::profileList);
    return HandOut(m_content->profiles, list);
}

DWORD ListService::WlanGetProfile(HANDLE, const GUID*, const wchar_t*, PVOID, wchar_t** xml, DWORD*, DWORD*)
{
    Count(Operation::profileText);
    return HandOut(m_content->profileXml, xml);
}

DWORD
ListService::WlanSetProfile(HANDLE, const GUID*, DWORD, const wchar_t*, const wchar_t*, BOOL, PVOID, DWORD*)
{
    Count(Operation::setProfile);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanDeleteProfile(HANDLE, const GUID*, const wchar_t*, PVOID)
{
    Count(Operation::deleteProfile);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanSetProfilePosition(HANDLE, const GUID*, const wchar_t*, DWORD, PVOID)
{
    Count(Operation::setPosition);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanConnect(HANDLE, const GUID*, const WLAN_CONNECTION_PARAMETERS*, PVOID)
{
    Count(Operation::connect);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanDisconnect(HANDLE, const GUID*, PVOID)
{
    Count(Operation::disconnect);
    return ERROR_SUCCESS;
}

DWORD
ListService::WlanRegisterNotification(HANDLE, DWORD, BOOL, WLAN_NOTIFICATION_CALLBACK, PVOID, PVOID, DWORD*)
{
    Count(Operation::registerNotification);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanIhvControl(
    HANDLE, const GUID*, WLAN_IHV_CONTROL_TYPE, DWORD, PVOID, DWORD, PVOID, DWORD* returned)
{
    Count(Operation::ihvControl);
    *returned = 0;
    return ERROR_SUCCESS;
}

DWORD ListService::WlanSetSecuritySettings(HANDLE, WLAN_SECURABLE_OBJECT, const wchar_t*)
{
    Count(Operation::securitySettings);
    return ERROR_SUCCESS;
}

DWORD ListService::WlanReasonCodeToString(DWORD, DWORD, wchar_t* buffer, PVOID)
{
    Count(Operation::reasonText);
    constexpr wchar_t reason[] = L"The network is out of range.";
    std::memcpy(buffer, reason, sizeof(reason));
    return ERROR_SUCCESS;
}

void ListService::WlanFreeMemory(PVOID memory)
{
    Count(Operation::freeMemory);
    std::free(memory);
}

} // namespace calvix::benchmarks
