#pragma once

#include "platform/platform.h"
#include "support/forwarding_platform.h"

#include <functional>
#include <utility>

namespace calvix::test
{

/// What a test wants the WLAN service to answer where no simulated computer does: each change is made to the answer
/// that the computer gave, before the library sees it.
struct AnswerChanges
{
    std::function<void(WLAN_INTERFACE_INFO_LIST&)> interfaces = {};
    std::function<void(WLAN_AVAILABLE_NETWORK_LIST&)> networks = {};
    std::function<void(WLAN_PROFILE_INFO_LIST&)> profiles = {};
    std::function<void(WLAN_BSS_LIST&)> bss = {};
    /// A query's record and its size; the opcode tells which record it is.
    std::function<void(WLAN_INTF_OPCODE, PVOID, DWORD&)> query = {};
    /// The size of a WlanQueryAutoConfigParameter's answer.
    std::function<void(DWORD&)> parameter = {};
    /// Sees what WlanSetInterface is given.
    std::function<void(WLAN_INTF_OPCODE, DWORD, const void*)> set = {};
};

/// The WLAN service in use, with changed answers.
class AlteredWlanService final : public platform::WlanService
{
public:
    AlteredWlanService(platform::WlanService& inner, const AnswerChanges& changes) : m_inner(inner), m_changes(changes)
    {
    }

    DWORD WlanOpenHandle(DWORD version, PVOID reserved, DWORD* negotiated, HANDLE* client) override
    {
        return m_inner.WlanOpenHandle(version, reserved, negotiated, client);
    }
    DWORD WlanCloseHandle(HANDLE client, PVOID reserved) override { return m_inner.WlanCloseHandle(client, reserved); }
    DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list) override
    {
        const DWORD error = m_inner.WlanEnumInterfaces(client, reserved, list);
        return Changed(error, list, m_changes.interfaces);
    }
    DWORD WlanScan(
        HANDLE client, const GUID* guid, const DOT11_SSID* ssid, const WLAN_RAW_DATA* data, PVOID reserved) override
    {
        return m_inner.WlanScan(client, guid, ssid, data, reserved);
    }
    DWORD WlanGetAvailableNetworkList(
        HANDLE client, const GUID* guid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list) override
    {
        const DWORD error = m_inner.WlanGetAvailableNetworkList(client, guid, flags, reserved, list);
        return Changed(error, list, m_changes.networks);
    }
    DWORD WlanGetNetworkBssList(HANDLE client,
                                const GUID* guid,
                                const DOT11_SSID* ssid,
                                DOT11_BSS_TYPE type,
                                BOOL secured,
                                PVOID reserved,
                                WLAN_BSS_LIST** list) override
    {
        const DWORD error = m_inner.WlanGetNetworkBssList(client, guid, ssid, type, secured, reserved, list);
        return Changed(error, list, m_changes.bss);
    }
    DWORD WlanQueryInterface(HANDLE client,
                             const GUID* guid,
                             WLAN_INTF_OPCODE opcode,
                             PVOID reserved,
                             DWORD* size,
                             PVOID* data,
                             WLAN_OPCODE_VALUE_TYPE* type) override
    {
        const DWORD error = m_inner.WlanQueryInterface(client, guid, opcode, reserved, size, data, type);
        if (error == 0 && m_changes.query)
            m_changes.query(opcode, *data, *size);
        return error;
    }
    DWORD WlanSetInterface(
        HANDLE client, const GUID* guid, WLAN_INTF_OPCODE opcode, DWORD size, const void* data, PVOID reserved) override
    {
        if (m_changes.set)
            m_changes.set(opcode, size, data);
        return m_inner.WlanSetInterface(client, guid, opcode, size, data, reserved);
    }
    DWORD WlanQueryAutoConfigParameter(HANDLE client,
                                       WLAN_AUTOCONF_OPCODE opcode,
                                       PVOID reserved,
                                       DWORD* size,
                                       PVOID* data,
                                       WLAN_OPCODE_VALUE_TYPE* type) override
    {
        const DWORD error = m_inner.WlanQueryAutoConfigParameter(client, opcode, reserved, size, data, type);
        if (error == 0 && m_changes.parameter)
            m_changes.parameter(*size);
        return error;
    }
    DWORD
    WlanGetProfileList(HANDLE client, const GUID* guid, PVOID reserved, WLAN_PROFILE_INFO_LIST** list) override
    {
        const DWORD error = m_inner.WlanGetProfileList(client, guid, reserved, list);
        return Changed(error, list, m_changes.profiles);
    }
    DWORD WlanGetProfile(HANDLE client,
                         const GUID* guid,
                         const wchar_t* name,
                         PVOID reserved,
                         wchar_t** xml,
                         DWORD* flags,
                         DWORD* access) override
    {
        return m_inner.WlanGetProfile(client, guid, name, reserved, xml, flags, access);
    }
    DWORD WlanSetProfile(HANDLE client,
                         const GUID* guid,
                         DWORD flags,
                         const wchar_t* xml,
                         const wchar_t* security,
                         BOOL overwrite,
                         PVOID reserved,
                         DWORD* reason) override
    {
        return m_inner.WlanSetProfile(client, guid, flags, xml, security, overwrite, reserved, reason);
    }
    DWORD WlanDeleteProfile(HANDLE client, const GUID* guid, const wchar_t* name, PVOID reserved) override
    {
        return m_inner.WlanDeleteProfile(client, guid, name, reserved);
    }
    DWORD WlanSetProfilePosition(
        HANDLE client, const GUID* guid, const wchar_t* name, DWORD position, PVOID reserved) override
    {
        return m_inner.WlanSetProfilePosition(client, guid, name, position, reserved);
    }
    DWORD
    WlanConnect(HANDLE client, const GUID* guid, const WLAN_CONNECTION_PARAMETERS* parameters, PVOID reserved) override
    {
        return m_inner.WlanConnect(client, guid, parameters, reserved);
    }
    DWORD WlanDisconnect(HANDLE client, const GUID* guid, PVOID reserved) override
    {
        return m_inner.WlanDisconnect(client, guid, reserved);
    }
    DWORD WlanRegisterNotification(HANDLE client,
                                   DWORD source,
                                   BOOL ignoreDuplicate,
                                   WLAN_NOTIFICATION_CALLBACK callback,
                                   PVOID context,
                                   PVOID reserved,
                                   DWORD* previous) override
    {
        return m_inner.WlanRegisterNotification(client, source, ignoreDuplicate, callback, context, reserved, previous);
    }
    DWORD WlanIhvControl(HANDLE client,
                         const GUID* guid,
                         WLAN_IHV_CONTROL_TYPE type,
                         DWORD inputSize,
                         PVOID input,
                         DWORD outputSize,
                         PVOID output,
                         DWORD* returned) override
    {
        return m_inner.WlanIhvControl(client, guid, type, inputSize, input, outputSize, output, returned);
    }
    DWORD WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl) override
    {
        return m_inner.WlanSetSecuritySettings(client, object, sddl);
    }
    DWORD WlanReasonCodeToString(DWORD reason, DWORD size, wchar_t* text, PVOID reserved) override
    {
        return m_inner.WlanReasonCodeToString(reason, size, text, reserved);
    }
    void WlanFreeMemory(PVOID memory) override { m_inner.WlanFreeMemory(memory); }

private:
    template <typename List>
    static DWORD Changed(DWORD error, List** list, const std::function<void(List&)>& change)
    {
        if (error == 0 && change)
            change(**list);
        return error;
    }

    platform::WlanService& m_inner;
    const AnswerChanges& m_changes;
};

/// Changes the answers of the WLAN service for as long as it lives; the rest of the platform stays what it was.
class AlteredAnswers final : public ForwardingPlatform
{
public:
    explicit AlteredAnswers(AnswerChanges changes) : m_changes(std::move(changes)), m_wlan(inner().wlan(), m_changes) {}

    platform::WlanService& wlan() override { return m_wlan; }

private:
    AnswerChanges m_changes;
    AlteredWlanService m_wlan;
};

} // namespace calvix::test
