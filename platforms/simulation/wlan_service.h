#pragma once

#include "platform/records/error_numbers.h"
#include "simulation/facility.h"

#include <initializer_list>

namespace calvix::simulation
{

/// The WLAN client service of a simulated computer. Every caller has every right but for what needs an administrator.
/// Notification callbacks may call any operation.
class SimulatedWlanService : public Facility
{
public:
    using Facility::Facility;

    platform::WlanService Operations();

    DWORD WlanOpenHandle(DWORD clientVersion, PVOID reserved, DWORD* negotiatedVersion, HANDLE* client);
    DWORD WlanCloseHandle(HANDLE client, PVOID reserved);
    DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list);
    DWORD WlanScan(
        HANDLE client, const GUID* interfaceGuid, const DOT11_SSID* ssid, const WLAN_RAW_DATA* ieData, PVOID reserved);
    DWORD WlanGetAvailableNetworkList(
        HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list);
    DWORD WlanGetNetworkBssList(HANDLE client,
                                const GUID* interfaceGuid,
                                const DOT11_SSID* ssid,
                                DOT11_BSS_TYPE bssType,
                                BOOL securityEnabled,
                                PVOID reserved,
                                WLAN_BSS_LIST** list);
    DWORD WlanQueryInterface(HANDLE client,
                             const GUID* interfaceGuid,
                             WLAN_INTF_OPCODE opcode,
                             PVOID reserved,
                             DWORD* dataSize,
                             PVOID* data,
                             WLAN_OPCODE_VALUE_TYPE* valueType);
    DWORD WlanSetInterface(HANDLE client,
                           const GUID* interfaceGuid,
                           WLAN_INTF_OPCODE opcode,
                           DWORD dataSize,
                           const void* data,
                           PVOID reserved);
    DWORD WlanQueryAutoConfigParameter(HANDLE client,
                                       WLAN_AUTOCONF_OPCODE opcode,
                                       PVOID reserved,
                                       DWORD* dataSize,
                                       PVOID* data,
                                       WLAN_OPCODE_VALUE_TYPE* valueType);
    DWORD WlanGetProfileList(HANDLE client, const GUID* interfaceGuid, PVOID reserved, WLAN_PROFILE_INFO_LIST** list);
    DWORD WlanGetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         const wchar_t* name,
                         PVOID reserved,
                         wchar_t** xml,
                         DWORD* flags,
                         DWORD* grantedAccess);
    DWORD WlanSetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         DWORD flags,
                         const wchar_t* xml,
                         const wchar_t* allUserProfileSecurity,
                         BOOL overwrite,
                         PVOID reserved,
                         DWORD* reasonCode);
    DWORD WlanDeleteProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, PVOID reserved);
    DWORD WlanSetProfilePosition(
        HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved);
    DWORD
    WlanConnect(HANDLE client, const GUID* interfaceGuid, const WLAN_CONNECTION_PARAMETERS* parameters, PVOID reserved);
    DWORD WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved);
    DWORD WlanRegisterNotification(HANDLE client,
                                   DWORD source,
                                   BOOL ignoreDuplicate,
                                   WLAN_NOTIFICATION_CALLBACK callback,
                                   PVOID context,
                                   PVOID reserved,
                                   DWORD* previousSource);
    DWORD WlanIhvControl(HANDLE client,
                         const GUID* interfaceGuid,
                         WLAN_IHV_CONTROL_TYPE type,
                         DWORD inputSize,
                         PVOID input,
                         DWORD outputSize,
                         PVOID output,
                         DWORD* bytesReturned);
    DWORD WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl);
    DWORD WlanReasonCodeToString(DWORD reasonCode, DWORD bufferSize, wchar_t* buffer, PVOID reserved);
    void WlanFreeMemory(PVOID memory);

    // What the WLAN API has beside the operations that the library calls: other programs call it through
    // platforms/dropin. Virtual, because libwlanapi.so calls it on the service that libcalvix.so has.

    virtual PVOID WlanAllocateMemory(DWORD size);
    virtual DWORD WlanGetInterfaceCapability(HANDLE client,
                                             const GUID* interfaceGuid,
                                             PVOID reserved,
                                             WLAN_INTERFACE_CAPABILITY** capability);
    virtual DWORD
    WlanSetProfileList(HANDLE client, const GUID* interfaceGuid, DWORD count, const wchar_t** names, PVOID reserved);
    virtual DWORD WlanRenameProfile(
        HANDLE client, const GUID* interfaceGuid, const wchar_t* name, const wchar_t* newName, PVOID reserved);
    virtual DWORD WlanSaveTemporaryProfile(HANDLE client,
                                           const GUID* interfaceGuid,
                                           const wchar_t* name,
                                           const wchar_t* allUserProfileSecurity,
                                           DWORD flags,
                                           BOOL overwrite,
                                           PVOID reserved);
    virtual DWORD WlanGetProfileCustomUserData(
        HANDLE client, const GUID* interfaceGuid, const wchar_t* name, PVOID reserved, DWORD* dataSize, BYTE** data);
    virtual DWORD WlanSetProfileCustomUserData(HANDLE client,
                                               const GUID* interfaceGuid,
                                               const wchar_t* name,
                                               DWORD dataSize,
                                               const BYTE* data,
                                               PVOID reserved);
    virtual DWORD WlanSetAutoConfigParameter(
        HANDLE client, WLAN_AUTOCONF_OPCODE opcode, DWORD dataSize, const void* data, PVOID reserved);
    virtual DWORD WlanGetSecuritySettings(HANDLE client,
                                          WLAN_SECURABLE_OBJECT object,
                                          WLAN_OPCODE_VALUE_TYPE* valueType,
                                          wchar_t** sddl,
                                          DWORD* grantedAccess);

private:
    /// What every operation does first, in this order: it takes the machine's mutex, which it holds as long as this lives,
    /// and looks at the arguments that must not be null, the reserved one that must be, the client handle, the service,
    /// and the interface, if it takes one.
    class Request
    {
    public:
        Request(Machine& machine,
                const char* operation,
                HANDLE client,
                std::initializer_list<const void*> required,
                const void* reserved = nullptr);
        Request(Machine& machine,
                const char* operation,
                HANDLE client,
                const GUID* interfaceGuid,
                std::initializer_list<const void*> required,
                const void* reserved = nullptr);

        DWORD error = ERROR_SUCCESS;
        Adapter* adapter = nullptr; ///< of the interface

    private:
        std::lock_guard<std::mutex> m_lock;
    };

    /// Waits until no callback of the client is running. Not to be called under the mutex.
    void WaitForCallback(const Notifier::Replaced& replaced, const char* operation);
};

} // namespace calvix::simulation
