// What the DLL exports: the operations by the SDK's own prototypes, each answered by the simulated computer.

#include "dropin/module.h"
#include "dropin/running_computer.h"

#include <exception>
#include <new>
#include <tuple>

namespace
{

using calvix::platform::WlanService;

// Nothing may be thrown into a program that was not written in C++.
template <typename Operation>
DWORD Answer(const Operation& operation) noexcept
{
    if (calvix::dropin::ProcessIsEnding())
        return ERROR_SHUTDOWN_IN_PROGRESS;
    try
    {
        WlanService* const service = calvix::dropin::CurrentService();
        return service != nullptr ? operation(*service) : ERROR_INVALID_DATA;
    }
    catch (const std::bad_alloc&)
    {
        return ERROR_NOT_ENOUGH_MEMORY;
    }
    catch (const std::exception&)
    {
        return ERROR_INTERNAL_ERROR;
    }
}

template <typename Operation, typename... Arguments>
DWORD Ask(Operation WlanService::*operation, Arguments... arguments) noexcept
{
    return Answer([&](WlanService& service) { return (service.*operation)(arguments...); });
}

template <typename Function>
struct ParametersOf;

template <typename Result, typename... Parameters>
struct ParametersOf<Result(WINAPI*)(Parameters...)>
{
    using Types = std::tuple<Parameters...>;
};

// A pointer to a pointer, which some SDKs declare as a plain one.
using AutoConfigData = std::tuple_element_t<4, ParametersOf<decltype(&WlanQueryAutoConfigParameter)>::Types>;

} // namespace

extern "C"
{

    DWORD WINAPI WlanOpenHandle(DWORD clientVersion, PVOID reserved, PDWORD negotiatedVersion, PHANDLE client)
    {
        return Ask(&WlanService::WlanOpenHandle, clientVersion, reserved, negotiatedVersion, client);
    }

    DWORD WINAPI WlanCloseHandle(HANDLE client, PVOID reserved)
    {
        return Ask(&WlanService::WlanCloseHandle, client, reserved);
    }

    DWORD WINAPI WlanEnumInterfaces(HANDLE client, PVOID reserved, PWLAN_INTERFACE_INFO_LIST* list)
    {
        return Ask(&WlanService::WlanEnumInterfaces, client, reserved, list);
    }

    DWORD WINAPI WlanScan(
        HANDLE client, const GUID* interfaceGuid, const PDOT11_SSID ssid, const PWLAN_RAW_DATA ieData, PVOID reserved)
    {
        return Ask(&WlanService::WlanScan, client, interfaceGuid, ssid, ieData, reserved);
    }

    DWORD WINAPI WlanGetAvailableNetworkList(
        HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, PWLAN_AVAILABLE_NETWORK_LIST* list)
    {
        return Ask(&WlanService::WlanGetAvailableNetworkList, client, interfaceGuid, flags, reserved, list);
    }

    DWORD WINAPI WlanGetNetworkBssList(HANDLE client,
                                       const GUID* interfaceGuid,
                                       const PDOT11_SSID ssid,
                                       DOT11_BSS_TYPE bssType,
                                       BOOL securityEnabled,
                                       PVOID reserved,
                                       PWLAN_BSS_LIST* list)
    {
        return Ask(&WlanService::WlanGetNetworkBssList, client, interfaceGuid, ssid, bssType, securityEnabled, reserved,
                   list);
    }

    DWORD WINAPI WlanQueryInterface(HANDLE client,
                                    const GUID* interfaceGuid,
                                    WLAN_INTF_OPCODE opcode,
                                    PVOID reserved,
                                    PDWORD dataSize,
                                    PVOID* data,
                                    PWLAN_OPCODE_VALUE_TYPE valueType)
    {
        return Ask(&WlanService::WlanQueryInterface, client, interfaceGuid, opcode, reserved, dataSize, data,
                   valueType);
    }

    DWORD WINAPI WlanSetInterface(HANDLE client,
                                  const GUID* interfaceGuid,
                                  WLAN_INTF_OPCODE opcode,
                                  DWORD dataSize,
                                  const PVOID data,
                                  PVOID reserved)
    {
        return Ask(&WlanService::WlanSetInterface, client, interfaceGuid, opcode, dataSize, data, reserved);
    }

    DWORD WINAPI WlanQueryAutoConfigParameter(HANDLE client,
                                              WLAN_AUTOCONF_OPCODE opcode,
                                              PVOID reserved,
                                              PDWORD dataSize,
                                              AutoConfigData data,
                                              PWLAN_OPCODE_VALUE_TYPE valueType)
    {
        return Ask(&WlanService::WlanQueryAutoConfigParameter, client, opcode, reserved, dataSize,
                   static_cast<PVOID*>(data), valueType);
    }

    DWORD WINAPI WlanGetProfileList(HANDLE client,
                                    const GUID* interfaceGuid,
                                    PVOID reserved,
                                    PWLAN_PROFILE_INFO_LIST* list)
    {
        return Ask(&WlanService::WlanGetProfileList, client, interfaceGuid, reserved, list);
    }

    DWORD WINAPI WlanGetProfile(HANDLE client,
                                const GUID* interfaceGuid,
                                LPCWSTR name,
                                PVOID reserved,
                                LPWSTR* xml,
                                DWORD* flags,
                                PDWORD grantedAccess)
    {
        return Ask(&WlanService::WlanGetProfile, client, interfaceGuid, name, reserved, xml, flags, grantedAccess);
    }

    DWORD WINAPI WlanSetProfile(HANDLE client,
                                const GUID* interfaceGuid,
                                DWORD flags,
                                LPCWSTR xml,
                                LPCWSTR allUserProfileSecurity,
                                BOOL overwrite,
                                PVOID reserved,
                                DWORD* reasonCode)
    {
        return Ask(&WlanService::WlanSetProfile, client, interfaceGuid, flags, xml, allUserProfileSecurity, overwrite,
                   reserved, reasonCode);
    }

    DWORD WINAPI WlanDeleteProfile(HANDLE client, const GUID* interfaceGuid, LPCWSTR name, PVOID reserved)
    {
        return Ask(&WlanService::WlanDeleteProfile, client, interfaceGuid, name, reserved);
    }

    DWORD WINAPI
    WlanSetProfilePosition(HANDLE client, const GUID* interfaceGuid, LPCWSTR name, DWORD position, PVOID reserved)
    {
        return Ask(&WlanService::WlanSetProfilePosition, client, interfaceGuid, name, position, reserved);
    }

    DWORD WINAPI WlanConnect(HANDLE client,
                             const GUID* interfaceGuid,
                             const PWLAN_CONNECTION_PARAMETERS parameters,
                             PVOID reserved)
    {
        return Ask(&WlanService::WlanConnect, client, interfaceGuid, parameters, reserved);
    }

    DWORD WINAPI WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved)
    {
        return Ask(&WlanService::WlanDisconnect, client, interfaceGuid, reserved);
    }

    DWORD WINAPI WlanRegisterNotification(HANDLE client,
                                          DWORD source,
                                          BOOL ignoreDuplicate,
                                          WLAN_NOTIFICATION_CALLBACK callback,
                                          PVOID context,
                                          PVOID reserved,
                                          PDWORD previousSource)
    {
        return Ask(&WlanService::WlanRegisterNotification, client, source, ignoreDuplicate, callback, context, reserved,
                   previousSource);
    }

    DWORD WINAPI WlanIhvControl(HANDLE client,
                                const GUID* interfaceGuid,
                                WLAN_IHV_CONTROL_TYPE type,
                                DWORD inputSize,
                                PVOID input,
                                DWORD outputSize,
                                PVOID output,
                                PDWORD bytesReturned)
    {
        return Ask(&WlanService::WlanIhvControl, client, interfaceGuid, type, inputSize, input, outputSize, output,
                   bytesReturned);
    }

    DWORD WINAPI WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, LPCWSTR sddl)
    {
        return Ask(&WlanService::WlanSetSecuritySettings, client, object, sddl);
    }

    DWORD WINAPI WlanReasonCodeToString(DWORD reasonCode, DWORD bufferSize, PWCHAR buffer, PVOID reserved)
    {
        return Ask(&WlanService::WlanReasonCodeToString, reasonCode, bufferSize, buffer, reserved);
    }

    VOID WINAPI WlanFreeMemory(PVOID memory)
    {
        Answer(
            [memory](WlanService& service)
            {
                service.WlanFreeMemory(memory);
                return DWORD{ERROR_SUCCESS};
            });
    }

} // extern "C"
