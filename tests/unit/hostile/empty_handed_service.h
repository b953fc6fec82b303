#pragma once

#include "support/forwarding_platform.h"
#include "wrappers/intercepted_wlan_service.h"

#include <set>
#include <string>

namespace calvix::test
{

/// The WLAN service in use, but the named operations report success and hand out nothing.
class EmptyHandedService final : public wrappers::InterceptedWlanService
{
public:
    using InterceptedWlanService::InterceptedWlanService;

    std::set<std::string> operations;

    DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list) override
    {
        return Emptied("WlanEnumInterfaces", InterceptedWlanService::WlanEnumInterfaces(client, reserved, list), *list);
    }
    DWORD
    WlanGetProfileList(HANDLE client, const GUID* guid, PVOID reserved, WLAN_PROFILE_INFO_LIST** list) override
    {
        return Emptied("WlanGetProfileList", InterceptedWlanService::WlanGetProfileList(client, guid, reserved, list),
                       *list);
    }
    DWORD WlanGetAvailableNetworkList(
        HANDLE client, const GUID* guid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list) override
    {
        return Emptied("WlanGetAvailableNetworkList",
                       InterceptedWlanService::WlanGetAvailableNetworkList(client, guid, flags, reserved, list), *list);
    }
    DWORD WlanGetNetworkBssList(HANDLE client,
                                const GUID* guid,
                                const DOT11_SSID* ssid,
                                DOT11_BSS_TYPE type,
                                BOOL secured,
                                PVOID reserved,
                                WLAN_BSS_LIST** list) override
    {
        const DWORD error =
            InterceptedWlanService::WlanGetNetworkBssList(client, guid, ssid, type, secured, reserved, list);
        return Emptied("WlanGetNetworkBssList", error, *list);
    }
    DWORD WlanQueryInterface(HANDLE client,
                             const GUID* guid,
                             WLAN_INTF_OPCODE opcode,
                             PVOID reserved,
                             DWORD* size,
                             PVOID* data,
                             WLAN_OPCODE_VALUE_TYPE* type) override
    {
        const DWORD error =
            InterceptedWlanService::WlanQueryInterface(client, guid, opcode, reserved, size, data, type);
        return Emptied("WlanQueryInterface", error, *data);
    }
    DWORD WlanQueryAutoConfigParameter(HANDLE client,
                                       WLAN_AUTOCONF_OPCODE opcode,
                                       PVOID reserved,
                                       DWORD* size,
                                       PVOID* data,
                                       WLAN_OPCODE_VALUE_TYPE* type) override
    {
        const DWORD error =
            InterceptedWlanService::WlanQueryAutoConfigParameter(client, opcode, reserved, size, data, type);
        return Emptied("WlanQueryAutoConfigParameter", error, *data);
    }
    DWORD WlanGetProfile(HANDLE client,
                         const GUID* guid,
                         const wchar_t* name,
                         PVOID reserved,
                         wchar_t** xml,
                         DWORD* flags,
                         DWORD* access) override
    {
        const DWORD error = InterceptedWlanService::WlanGetProfile(client, guid, name, reserved, xml, flags, access);
        return Emptied("WlanGetProfile", error, *xml);
    }

private:
    template <typename Block>
    DWORD Emptied(const char* operation, DWORD error, Block*& block)
    {
        if (error != 0 || operations.count(operation) == 0)
            return error;
        WlanFreeMemory(block);
        block = nullptr;
        return 0;
    }
};

/// Stands before the provider in use for as long as it lives.
class EmptyHandedAnswers final : public ForwardingPlatform
{
public:
    explicit EmptyHandedAnswers(const std::string& operation) { m_service.operations = {operation}; }
    platform::WlanService& wlan() override { return m_service; }

private:
    wrappers::Interceptor m_seesNothing;
    wrappers::InterceptionPoint m_point{m_seesNothing};
    EmptyHandedService m_service{inner().wlan(), m_point};
};

} // namespace calvix::test
