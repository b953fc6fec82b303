#pragma once

#include <calvix/platform_records.h>

#include "platform/operation.h"
#include "platform/records/error_numbers.h"

namespace calvix::platform
{

/// The WLAN client service (Native Wifi). Every operation answers with a platform error number, 0 for success;
/// lists, profile texts and query results belong to the service's allocator and go back through WlanFreeMemory.
struct WlanService
{
    Operation<DWORD(DWORD clientVersion, PVOID reserved, DWORD* negotiatedVersion, HANDLE* client)> WlanOpenHandle;
    Operation<DWORD(HANDLE client, PVOID reserved)> WlanCloseHandle;
    Operation<DWORD(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list)> WlanEnumInterfaces;
    Operation<DWORD(
        HANDLE client, const GUID* interfaceGuid, const DOT11_SSID* ssid, const WLAN_RAW_DATA* ieData, PVOID reserved)>
        WlanScan;
    Operation<DWORD(
        HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list)>
        WlanGetAvailableNetworkList;
    Operation<DWORD(HANDLE client,
                    const GUID* interfaceGuid,
                    const DOT11_SSID* ssid,
                    DOT11_BSS_TYPE bssType,
                    BOOL securityEnabled,
                    PVOID reserved,
                    WLAN_BSS_LIST** list)>
        WlanGetNetworkBssList;
    Operation<DWORD(HANDLE client,
                    const GUID* interfaceGuid,
                    WLAN_INTF_OPCODE opcode,
                    PVOID reserved,
                    DWORD* dataSize,
                    PVOID* data,
                    WLAN_OPCODE_VALUE_TYPE* valueType)>
        WlanQueryInterface;
    Operation<DWORD(HANDLE client,
                    const GUID* interfaceGuid,
                    WLAN_INTF_OPCODE opcode,
                    DWORD dataSize,
                    const void* data,
                    PVOID reserved)>
        WlanSetInterface;
    Operation<DWORD(HANDLE client,
                    WLAN_AUTOCONF_OPCODE opcode,
                    PVOID reserved,
                    DWORD* dataSize,
                    PVOID* data,
                    WLAN_OPCODE_VALUE_TYPE* valueType)>
        WlanQueryAutoConfigParameter;
    Operation<DWORD(HANDLE client, const GUID* interfaceGuid, PVOID reserved, WLAN_PROFILE_INFO_LIST** list)>
        WlanGetProfileList;
    Operation<DWORD(HANDLE client,
                    const GUID* interfaceGuid,
                    const wchar_t* name,
                    PVOID reserved,
                    wchar_t** xml,
                    DWORD* flags,
                    DWORD* grantedAccess)>
        WlanGetProfile;
    Operation<DWORD(HANDLE client,
                    const GUID* interfaceGuid,
                    DWORD flags,
                    const wchar_t* xml,
                    const wchar_t* allUserProfileSecurity,
                    BOOL overwrite,
                    PVOID reserved,
                    DWORD* reasonCode)>
        WlanSetProfile;
    Operation<DWORD(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, PVOID reserved)> WlanDeleteProfile;
    Operation<DWORD(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved)>
        WlanSetProfilePosition;
    Operation<DWORD(
        HANDLE client, const GUID* interfaceGuid, const WLAN_CONNECTION_PARAMETERS* parameters, PVOID reserved)>
        WlanConnect;
    Operation<DWORD(HANDLE client, const GUID* interfaceGuid, PVOID reserved)> WlanDisconnect;
    Operation<DWORD(HANDLE client,
                    DWORD source,
                    BOOL ignoreDuplicate,
                    WLAN_NOTIFICATION_CALLBACK callback,
                    PVOID context,
                    PVOID reserved,
                    DWORD* previousSource)>
        WlanRegisterNotification;
    Operation<DWORD(HANDLE client,
                    const GUID* interfaceGuid,
                    WLAN_IHV_CONTROL_TYPE type,
                    DWORD inputSize,
                    PVOID input,
                    DWORD outputSize,
                    PVOID output,
                    DWORD* bytesReturned)>
        WlanIhvControl;
    Operation<DWORD(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl)> WlanSetSecuritySettings;
    Operation<DWORD(DWORD reasonCode, DWORD bufferSize, wchar_t* buffer, PVOID reserved)> WlanReasonCodeToString;
    Operation<void(PVOID memory)> WlanFreeMemory;
};

} // namespace calvix::platform
