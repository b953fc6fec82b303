#pragma once

#include "platform/wlan_service.h"
#include "wrappers/recording/tape.h"

namespace calvix::recording
{

class TapedWlanService final : public platform::WlanService
{
public:
    TapedWlanService(Tape& tape, platform::WlanService* inner) : m_tape(tape), m_inner(inner) {}

    DWORD WlanOpenHandle(DWORD clientVersion, PVOID reserved, DWORD* negotiatedVersion, HANDLE* client) override;
    DWORD WlanCloseHandle(HANDLE client, PVOID reserved) override;
    DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list) override;
    DWORD WlanScan(HANDLE client,
                   const GUID* interfaceGuid,
                   const DOT11_SSID* ssid,
                   const WLAN_RAW_DATA* ieData,
                   PVOID reserved) override;
    DWORD WlanGetAvailableNetworkList(HANDLE client,
                                      const GUID* interfaceGuid,
                                      DWORD flags,
                                      PVOID reserved,
                                      WLAN_AVAILABLE_NETWORK_LIST** list) override;
    DWORD WlanGetNetworkBssList(HANDLE client,
                                const GUID* interfaceGuid,
                                const DOT11_SSID* ssid,
                                DOT11_BSS_TYPE bssType,
                                BOOL securityEnabled,
                                PVOID reserved,
                                WLAN_BSS_LIST** list) override;
    DWORD WlanQueryInterface(HANDLE client,
                             const GUID* interfaceGuid,
                             WLAN_INTF_OPCODE opcode,
                             PVOID reserved,
                             DWORD* dataSize,
                             PVOID* data,
                             WLAN_OPCODE_VALUE_TYPE* valueType) override;
    DWORD WlanSetInterface(HANDLE client,
                           const GUID* interfaceGuid,
                           WLAN_INTF_OPCODE opcode,
                           DWORD dataSize,
                           const void* data,
                           PVOID reserved) override;
    DWORD WlanQueryAutoConfigParameter(HANDLE client,
                                       WLAN_AUTOCONF_OPCODE opcode,
                                       PVOID reserved,
                                       DWORD* dataSize,
                                       PVOID* data,
                                       WLAN_OPCODE_VALUE_TYPE* valueType) override;
    DWORD WlanGetProfileList(HANDLE client,
                             const GUID* interfaceGuid,
                             PVOID reserved,
                             WLAN_PROFILE_INFO_LIST** list) override;
    DWORD WlanGetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         const wchar_t* name,
                         PVOID reserved,
                         wchar_t** xml,
                         DWORD* flags,
                         DWORD* grantedAccess) override;
    DWORD WlanSetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         DWORD flags,
                         const wchar_t* xml,
                         const wchar_t* allUserProfileSecurity,
                         BOOL overwrite,
                         PVOID reserved,
                         DWORD* reasonCode) override;
    DWORD WlanDeleteProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, PVOID reserved) override;
    DWORD WlanSetProfilePosition(
        HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved) override;
    DWORD WlanConnect(HANDLE client,
                      const GUID* interfaceGuid,
                      const WLAN_CONNECTION_PARAMETERS* parameters,
                      PVOID reserved) override;
    DWORD WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved) override;
    DWORD WlanRegisterNotification(HANDLE client,
                                   DWORD source,
                                   BOOL ignoreDuplicate,
                                   WLAN_NOTIFICATION_CALLBACK callback,
                                   PVOID context,
                                   PVOID reserved,
                                   DWORD* previousSource) override;
    DWORD WlanIhvControl(HANDLE client,
                         const GUID* interfaceGuid,
                         WLAN_IHV_CONTROL_TYPE type,
                         DWORD inputSize,
                         PVOID input,
                         DWORD outputSize,
                         PVOID output,
                         DWORD* bytesReturned) override;
    DWORD WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl) override;
    DWORD WlanReasonCodeToString(DWORD reasonCode, DWORD bufferSize, wchar_t* buffer, PVOID reserved) override;
    void WlanFreeMemory(PVOID memory) override;

private:
    Tape& m_tape;
    platform::WlanService* m_inner;
};

} // namespace calvix::recording
