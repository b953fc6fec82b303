#pragma once

#include <calvix/platform_records.h>

#include "platform/records/error_numbers.h"
#include "platform/records/wlan_constants.h"

namespace calvix::platform
{

/// The WLAN client service (Native Wifi). Every operation answers with a platform error number, 0 for success;
/// lists, profile texts and query results belong to the service's allocator and go back through WlanFreeMemory.
class WlanService
{
public:
    virtual ~WlanService() = default;

    virtual DWORD WlanOpenHandle(DWORD clientVersion, PVOID reserved, DWORD* negotiatedVersion, HANDLE* client) = 0;
    virtual DWORD WlanCloseHandle(HANDLE client, PVOID reserved) = 0;
    virtual DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list) = 0;
    virtual DWORD WlanScan(HANDLE client,
                           const GUID* interfaceGuid,
                           const DOT11_SSID* ssid,
                           const WLAN_RAW_DATA* ieData,
                           PVOID reserved) = 0;
    virtual DWORD WlanGetAvailableNetworkList(
        HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list) = 0;
    virtual DWORD WlanGetNetworkBssList(HANDLE client,
                                        const GUID* interfaceGuid,
                                        const DOT11_SSID* ssid,
                                        DOT11_BSS_TYPE bssType,
                                        BOOL securityEnabled,
                                        PVOID reserved,
                                        WLAN_BSS_LIST** list) = 0;
    virtual DWORD WlanQueryInterface(HANDLE client,
                                     const GUID* interfaceGuid,
                                     WLAN_INTF_OPCODE opcode,
                                     PVOID reserved,
                                     DWORD* dataSize,
                                     PVOID* data,
                                     WLAN_OPCODE_VALUE_TYPE* valueType) = 0;
    virtual DWORD WlanSetInterface(HANDLE client,
                                   const GUID* interfaceGuid,
                                   WLAN_INTF_OPCODE opcode,
                                   DWORD dataSize,
                                   const void* data,
                                   PVOID reserved) = 0;
    virtual DWORD WlanQueryAutoConfigParameter(HANDLE client,
                                               WLAN_AUTOCONF_OPCODE opcode,
                                               PVOID reserved,
                                               DWORD* dataSize,
                                               PVOID* data,
                                               WLAN_OPCODE_VALUE_TYPE* valueType) = 0;
    virtual DWORD
    WlanGetProfileList(HANDLE client, const GUID* interfaceGuid, PVOID reserved, WLAN_PROFILE_INFO_LIST** list) = 0;
    virtual DWORD WlanGetProfile(HANDLE client,
                                 const GUID* interfaceGuid,
                                 const wchar_t* name,
                                 PVOID reserved,
                                 wchar_t** xml,
                                 DWORD* flags,
                                 DWORD* grantedAccess) = 0;
    virtual DWORD WlanSetProfile(HANDLE client,
                                 const GUID* interfaceGuid,
                                 DWORD flags,
                                 const wchar_t* xml,
                                 const wchar_t* allUserProfileSecurity,
                                 BOOL overwrite,
                                 PVOID reserved,
                                 DWORD* reasonCode) = 0;
    virtual DWORD WlanDeleteProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, PVOID reserved) = 0;
    virtual DWORD WlanSetProfilePosition(
        HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved) = 0;
    virtual DWORD WlanConnect(HANDLE client,
                              const GUID* interfaceGuid,
                              const WLAN_CONNECTION_PARAMETERS* parameters,
                              PVOID reserved) = 0;
    virtual DWORD WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved) = 0;
    virtual DWORD WlanRegisterNotification(HANDLE client,
                                           DWORD source,
                                           BOOL ignoreDuplicate,
                                           WLAN_NOTIFICATION_CALLBACK callback,
                                           PVOID context,
                                           PVOID reserved,
                                           DWORD* previousSource) = 0;
    virtual DWORD WlanIhvControl(HANDLE client,
                                 const GUID* interfaceGuid,
                                 WLAN_IHV_CONTROL_TYPE type,
                                 DWORD inputSize,
                                 PVOID input,
                                 DWORD outputSize,
                                 PVOID output,
                                 DWORD* bytesReturned) = 0;
    virtual DWORD WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl) = 0;
    virtual DWORD WlanReasonCodeToString(DWORD reasonCode, DWORD bufferSize, wchar_t* buffer, PVOID reserved) = 0;
    virtual void WlanFreeMemory(PVOID memory) = 0;
};

} // namespace calvix::platform
