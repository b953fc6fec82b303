// The functions of the WLAN API. On Windows the SDK declares them and wlanapi.dll has them. Elsewhere libwlanapi.so has
// them: it shows the simulated computer that the class works on, too, so that a program that uses both is developed and
// tested without Windows. Declared here are those that concern stations and profiles; CMake calls what is to be linked
// calvix::wlanapi in both worlds.
#pragma once

#include <calvix/platform_records.h>

#ifndef _WIN32

#include <calvix/records/error_numbers.h>

extern "C"
{
    // Sessions and memory

    DWORD WINAPI WlanOpenHandle(DWORD clientVersion, PVOID reserved, PDWORD negotiatedVersion, PHANDLE client);
    DWORD WINAPI WlanCloseHandle(HANDLE client, PVOID reserved);
    PVOID WINAPI WlanAllocateMemory(DWORD size);
    VOID WINAPI WlanFreeMemory(PVOID memory);
    DWORD WINAPI WlanRegisterNotification(HANDLE client,
                                          DWORD source,
                                          BOOL ignoreDuplicate,
                                          WLAN_NOTIFICATION_CALLBACK callback,
                                          PVOID context,
                                          PVOID reserved,
                                          PDWORD previousSource);
    DWORD WINAPI WlanReasonCodeToString(DWORD reasonCode, DWORD bufferSize, PWCHAR buffer, PVOID reserved);

    // Adapters and settings

    DWORD WINAPI WlanEnumInterfaces(HANDLE client, PVOID reserved, PWLAN_INTERFACE_INFO_LIST* list);
    DWORD WINAPI WlanGetInterfaceCapability(HANDLE client,
                                            const GUID* interfaceGuid,
                                            PVOID reserved,
                                            PWLAN_INTERFACE_CAPABILITY* capability);
    DWORD WINAPI WlanQueryInterface(HANDLE client,
                                    const GUID* interfaceGuid,
                                    WLAN_INTF_OPCODE opcode,
                                    PVOID reserved,
                                    PDWORD dataSize,
                                    PVOID* data,
                                    PWLAN_OPCODE_VALUE_TYPE valueType);
    DWORD WINAPI WlanSetInterface(
        HANDLE client, const GUID* interfaceGuid, WLAN_INTF_OPCODE opcode, DWORD dataSize, PVOID data, PVOID reserved);
    DWORD WINAPI WlanQueryAutoConfigParameter(HANDLE client,
                                              WLAN_AUTOCONF_OPCODE opcode,
                                              PVOID reserved,
                                              PDWORD dataSize,
                                              PVOID* data,
                                              PWLAN_OPCODE_VALUE_TYPE valueType);
    DWORD WINAPI
    WlanSetAutoConfigParameter(HANDLE client, WLAN_AUTOCONF_OPCODE opcode, DWORD dataSize, PVOID data, PVOID reserved);
    DWORD WINAPI WlanGetSecuritySettings(HANDLE client,
                                         WLAN_SECURABLE_OBJECT object,
                                         PWLAN_OPCODE_VALUE_TYPE valueType,
                                         LPWSTR* sddl,
                                         PDWORD grantedAccess);
    DWORD WINAPI WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, LPCWSTR sddl);
    DWORD WINAPI WlanIhvControl(HANDLE client,
                                const GUID* interfaceGuid,
                                WLAN_IHV_CONTROL_TYPE type,
                                DWORD inputSize,
                                PVOID input,
                                DWORD outputSize,
                                PVOID output,
                                PDWORD bytesReturned);

    // Networks and connections

    DWORD WINAPI
    WlanScan(HANDLE client, const GUID* interfaceGuid, PDOT11_SSID ssid, PWLAN_RAW_DATA ieData, PVOID reserved);
    DWORD WINAPI WlanGetAvailableNetworkList(
        HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, PWLAN_AVAILABLE_NETWORK_LIST* list);
    DWORD WINAPI WlanGetNetworkBssList(HANDLE client,
                                       const GUID* interfaceGuid,
                                       PDOT11_SSID ssid,
                                       DOT11_BSS_TYPE bssType,
                                       BOOL securityEnabled,
                                       PVOID reserved,
                                       PWLAN_BSS_LIST* list);
    DWORD WINAPI WlanConnect(HANDLE client,
                             const GUID* interfaceGuid,
                             PWLAN_CONNECTION_PARAMETERS parameters,
                             PVOID reserved);
    DWORD WINAPI WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved);

    // Profiles

    DWORD WINAPI WlanGetProfileList(HANDLE client,
                                    const GUID* interfaceGuid,
                                    PVOID reserved,
                                    PWLAN_PROFILE_INFO_LIST* list);
    DWORD WINAPI
    WlanSetProfileList(HANDLE client, const GUID* interfaceGuid, DWORD count, LPCWSTR* names, PVOID reserved);
    DWORD WINAPI WlanGetProfile(HANDLE client,
                                const GUID* interfaceGuid,
                                LPCWSTR name,
                                PVOID reserved,
                                LPWSTR* xml,
                                DWORD* flags,
                                PDWORD grantedAccess);
    DWORD WINAPI WlanSetProfile(HANDLE client,
                                const GUID* interfaceGuid,
                                DWORD flags,
                                LPCWSTR xml,
                                LPCWSTR allUserProfileSecurity,
                                BOOL overwrite,
                                PVOID reserved,
                                DWORD* reasonCode);
    DWORD WINAPI WlanSaveTemporaryProfile(HANDLE client,
                                          const GUID* interfaceGuid,
                                          LPCWSTR name,
                                          LPCWSTR allUserProfileSecurity,
                                          DWORD flags,
                                          BOOL overwrite,
                                          PVOID reserved);
    DWORD WINAPI WlanDeleteProfile(HANDLE client, const GUID* interfaceGuid, LPCWSTR name, PVOID reserved);
    DWORD WINAPI
    WlanRenameProfile(HANDLE client, const GUID* interfaceGuid, LPCWSTR name, LPCWSTR newName, PVOID reserved);
    DWORD WINAPI
    WlanSetProfilePosition(HANDLE client, const GUID* interfaceGuid, LPCWSTR name, DWORD position, PVOID reserved);
    DWORD WINAPI WlanGetProfileCustomUserData(
        HANDLE client, const GUID* interfaceGuid, LPCWSTR name, PVOID reserved, DWORD* dataSize, PBYTE* data);
    DWORD WINAPI WlanSetProfileCustomUserData(
        HANDLE client, const GUID* interfaceGuid, LPCWSTR name, DWORD dataSize, PBYTE data, PVOID reserved);
}

#endif
