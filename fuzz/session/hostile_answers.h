#pragma once

#include "input.h"

#include "support/forwarding_platform.h"
#include "wrappers/intercepted_wlan_service.h"

namespace calvix::fuzz::session
{

/// The WLAN service in use, whose records now and then hold what no service should say: lengths beyond the array, names
/// without a terminator, numbers at their limits, empty lists. The number of items is never more than there are.
class HostileWlanService final : public wrappers::InterceptedWlanService
{
public:
    HostileWlanService(platform::WlanService& inner, wrappers::InterceptionPoint& point, Input& input)
        : InterceptedWlanService(inner, point), m_input(input)
    {
    }

    DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list) override;
    DWORD WlanGetProfileList(HANDLE client,
                             const GUID* interfaceGuid,
                             PVOID reserved,
                             WLAN_PROFILE_INFO_LIST** list) override;
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

private:
    Input& m_input;
};

/// Stands before the provider in use for as long as it lives.
class HostileAnswers final : public test::ForwardingPlatform
{
public:
    explicit HostileAnswers(Input& input) : m_service(inner().wlan(), m_point, input) {}
    platform::WlanService& wlan() override { return m_service; }

private:
    wrappers::Interceptor m_seesNothing;
    wrappers::InterceptionPoint m_point{m_seesNothing};
    HostileWlanService m_service;
};

} // namespace calvix::fuzz::session
