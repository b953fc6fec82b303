#pragma once

// Answers of the service that the simulated computer does not give: real ones, edited in place on their way to the
// library, so that ownership and accounts stay the computer's.
//
//     EditedAnswers edited;
//     edited.service.bssList = [](WLAN_BSS_LIST& list, unsigned) { list.dwNumberOfItems = 0; };
//     edited.service.SetProfileText(L"HomeNet", L"</connectionMode>");

#include "platform/platform.h"
#include "wrappers/intercepted_wlan_service.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <functional>
#include <map>
#include <string>

namespace calvix::test
{

class EditedWlanService final : public wrappers::InterceptedWlanService
{
public:
    using InterceptedWlanService::InterceptedWlanService;

    /// What is done to lists; the number counts the calls from 1.
    std::function<void(WLAN_PROFILE_INFO_LIST&)> profileList;
    std::function<void(WLAN_AVAILABLE_NETWORK_LIST&)> networkList;
    std::function<void(WLAN_BSS_LIST&, unsigned)> bssList;
    /// Sees the reason code as the library hands it in.
    std::function<void(DWORD)> reasonCodeOfSetProfile;

    /// Puts a text, not longer than the profile's own, in the place of a profile's XML.
    void SetProfileText(const std::wstring& name, const std::wstring& text) { m_profileTexts[name] = text; }

    DWORD WlanGetProfileList(HANDLE client,
                             const GUID* interfaceGuid,
                             PVOID reserved,
                             WLAN_PROFILE_INFO_LIST** list) override
    {
        const DWORD error = InterceptedWlanService::WlanGetProfileList(client, interfaceGuid, reserved, list);
        if (error == 0 && profileList)
            profileList(**list);
        return error;
    }

    DWORD WlanGetAvailableNetworkList(HANDLE client,
                                      const GUID* interfaceGuid,
                                      DWORD flags,
                                      PVOID reserved,
                                      WLAN_AVAILABLE_NETWORK_LIST** list) override
    {
        const DWORD error =
            InterceptedWlanService::WlanGetAvailableNetworkList(client, interfaceGuid, flags, reserved, list);
        if (error == 0 && networkList)
            networkList(**list);
        return error;
    }

    DWORD WlanGetNetworkBssList(HANDLE client,
                                const GUID* interfaceGuid,
                                const DOT11_SSID* ssid,
                                DOT11_BSS_TYPE bssType,
                                BOOL securityEnabled,
                                PVOID reserved,
                                WLAN_BSS_LIST** list) override
    {
        const DWORD error = InterceptedWlanService::WlanGetNetworkBssList(client, interfaceGuid, ssid, bssType,
                                                                          securityEnabled, reserved, list);
        if (error == 0 && bssList)
            bssList(**list, ++m_bssLists);
        return error;
    }

    DWORD WlanGetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         const wchar_t* name,
                         PVOID reserved,
                         wchar_t** xml,
                         DWORD* flags,
                         DWORD* grantedAccess) override
    {
        const DWORD error =
            InterceptedWlanService::WlanGetProfile(client, interfaceGuid, name, reserved, xml, flags, grantedAccess);
        const auto edited = m_profileTexts.find(name != nullptr ? name : L"");
        if (error == 0 && edited != m_profileTexts.end())
            Overwrite(*xml, edited->second);
        return error;
    }

    DWORD WlanSetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         DWORD flags,
                         const wchar_t* xml,
                         const wchar_t* allUserProfileSecurity,
                         BOOL overwrite,
                         PVOID reserved,
                         DWORD* reasonCode) override
    {
        if (reasonCodeOfSetProfile && reasonCode != nullptr)
            reasonCodeOfSetProfile(*reasonCode);
        return InterceptedWlanService::WlanSetProfile(client, interfaceGuid, flags, xml, allUserProfileSecurity,
                                                      overwrite, reserved, reasonCode);
    }

private:
    static void Overwrite(wchar_t* xml, const std::wstring& text)
    {
        ASSERT_LE(text.size(), std::wcslen(xml)) << "there is no room for the edited profile";
        std::wmemcpy(xml, text.c_str(), text.size() + 1);
    }

    std::map<std::wstring, std::wstring> m_profileTexts;
    unsigned m_bssLists = 0;
};

/// Stands before the provider in use for as long as it lives.
class EditedAnswers final : public platform::Platform
{
public:
    EditedAnswers() { platform::ReplacePlatform(this); }
    ~EditedAnswers() override { platform::ReplacePlatform(&m_inner); }

    platform::WlanService& wlan() override { return service; }
    platform::ServiceControl& services() override { return m_inner.services(); }
    platform::Power& power() override { return m_inner.power(); }
    platform::Security& security() override { return m_inner.security(); }
    platform::Processes& processes() override { return m_inner.processes(); }
    platform::Internet& internet() override { return m_inner.internet(); }
    platform::Text& text() override { return m_inner.text(); }
    platform::Clock& clock() override { return m_inner.clock(); }
    platform::DebuggerOutput& debugger() override { return m_inner.debugger(); }
    platform::LastError& errors() override { return m_inner.errors(); }

private:
    platform::Platform& m_inner = platform::CurrentPlatform();
    wrappers::Interceptor m_seesNothing;
    wrappers::InterceptionPoint m_point{m_seesNothing};

public:
    EditedWlanService service{m_inner.wlan(), m_point};
};

} // namespace calvix::test
