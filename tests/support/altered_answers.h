#pragma once

#include "support/changed_platform.h"

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
    /// A query's record and its size; the opcode says which record it is.
    std::function<void(WLAN_INTF_OPCODE, PVOID, DWORD&)> query = {};
    /// The size of a WlanQueryAutoConfigParameter's answer.
    std::function<void(DWORD&)> parameter = {};
    /// Sees what WlanSetInterface is given.
    std::function<void(WLAN_INTF_OPCODE, DWORD, const void*)> set = {};
};

/// Changes the answers of the WLAN service for as long as it lives; the rest of the platform stays what it was.
class AlteredAnswers final : public ChangedPlatform
{
public:
    explicit AlteredAnswers(AnswerChanges changes) : m_changes(std::move(changes))
    {
        After<&WlanService::WlanEnumInterfaces>([this](DWORD error, HANDLE, PVOID, auto** list)
                                                { Change(error, m_changes.interfaces, list); });
        After<&WlanService::WlanGetAvailableNetworkList>(
            [this](DWORD error, HANDLE, const GUID*, DWORD, PVOID, auto** list)
            { Change(error, m_changes.networks, list); });
        After<&WlanService::WlanGetProfileList>([this](DWORD error, HANDLE, const GUID*, PVOID, auto** list)
                                                { Change(error, m_changes.profiles, list); });
        After<&WlanService::WlanGetNetworkBssList>(
            [this](DWORD error, HANDLE, const GUID*, const DOT11_SSID*, DOT11_BSS_TYPE, BOOL, PVOID, auto** list)
            { Change(error, m_changes.bss, list); });
        After<&WlanService::WlanQueryInterface>(
            [this](DWORD error, HANDLE, const GUID*, WLAN_INTF_OPCODE opcode, PVOID, DWORD* size, PVOID* data,
                   WLAN_OPCODE_VALUE_TYPE*)
            {
                if (error == 0 && m_changes.query)
                    m_changes.query(opcode, *data, *size);
            });
        After<&WlanService::WlanQueryAutoConfigParameter>(
            [this](DWORD error, HANDLE, WLAN_AUTOCONF_OPCODE, PVOID, DWORD* size, PVOID*, WLAN_OPCODE_VALUE_TYPE*)
            {
                if (error == 0 && m_changes.parameter)
                    m_changes.parameter(*size);
            });
        Before<&WlanService::WlanSetInterface>(
            [this](HANDLE, const GUID*, WLAN_INTF_OPCODE opcode, DWORD size, const void* data, PVOID)
            {
                if (m_changes.set)
                    m_changes.set(opcode, size, data);
            });
    }

private:
    template <typename List>
    static void Change(DWORD error, const std::function<void(List&)>& change, List** list)
    {
        if (error == 0 && change)
            change(**list);
    }

    AnswerChanges m_changes;
};

} // namespace calvix::test
