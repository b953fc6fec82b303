#pragma once

// Answers of the service that the simulated computer does not give: real ones, edited in place on their way to the
// library, so that ownership and accounts stay the computer's.
//
//     EditedAnswers edited;
//     edited.service.bssList = [](WLAN_BSS_LIST& list, unsigned) { list.dwNumberOfItems = 0; };
//     edited.service.SetProfileText(L"HomeNet", L"</connectionMode>");
//     edited.conversion.takesAllFlagsForUtf8 = true;

#include "support/forwarding_platform.h"
#include "wrappers/intercepted_wlan_service.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace calvix::test
{

class EditedWlanService final : public wrappers::InterceptedWlanService
{
public:
    using InterceptedWlanService::InterceptedWlanService;

    /// What is done to lists; the number counts the calls from 1.
    std::function<void(WLAN_INTERFACE_INFO_LIST&)> interfaceList;
    std::function<void(WLAN_PROFILE_INFO_LIST&)> profileList;
    std::function<void(WLAN_AVAILABLE_NETWORK_LIST&)> networkList;
    std::function<void(WLAN_BSS_LIST&, unsigned)> bssList;
    std::function<void(WLAN_CONNECTION_ATTRIBUTES&)> currentConnection;
    /// Sees connection requests as the library hands them in.
    std::function<void(const WLAN_CONNECTION_PARAMETERS&)> connectRequest;
    /// Sees the reason code as the library hands it in.
    std::function<void(DWORD)> reasonCodeOfSetProfile;
    /// The version that the service agrees to, whichever it is asked for.
    std::optional<DWORD> negotiatedVersion;
    /// The error, or 0, of an operation that has handed out its answer all the same.
    std::function<DWORD(std::string_view)> errorBesideAnswer;

    /// Puts a text, not longer than the profile's own, in the place of a profile's XML.
    void SetProfileText(const std::wstring& name, const std::wstring& text) { m_profileTexts[name] = text; }

    DWORD WlanOpenHandle(DWORD version, PVOID reserved, DWORD* negotiated, HANDLE* client) override
    {
        const DWORD error = InterceptedWlanService::WlanOpenHandle(version, reserved, negotiated, client);
        *negotiated = negotiatedVersion.value_or(*negotiated);
        return error;
    }

    DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list) override
    {
        const DWORD error = InterceptedWlanService::WlanEnumInterfaces(client, reserved, list);
        if (error == 0 && interfaceList)
            interfaceList(**list);
        return BesideAnswer("WlanEnumInterfaces", error);
    }

    DWORD
    WlanGetProfileList(HANDLE client, const GUID* interfaceGuid, PVOID reserved, WLAN_PROFILE_INFO_LIST** list) override
    {
        const DWORD error = InterceptedWlanService::WlanGetProfileList(client, interfaceGuid, reserved, list);
        if (error == 0 && profileList)
            profileList(**list);
        return BesideAnswer("WlanGetProfileList", error);
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
        return BesideAnswer("WlanGetAvailableNetworkList", error);
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
        return BesideAnswer("WlanGetNetworkBssList", error);
    }

    DWORD WlanQueryInterface(HANDLE client,
                             const GUID* interfaceGuid,
                             WLAN_INTF_OPCODE opcode,
                             PVOID reserved,
                             DWORD* dataSize,
                             PVOID* data,
                             WLAN_OPCODE_VALUE_TYPE* valueType) override
    {
        const DWORD error = InterceptedWlanService::WlanQueryInterface(client, interfaceGuid, opcode, reserved,
                                                                       dataSize, data, valueType);
        if (error == 0 && opcode == wlan_intf_opcode_current_connection && currentConnection)
            currentConnection(*static_cast<WLAN_CONNECTION_ATTRIBUTES*>(*data));
        return BesideAnswer("WlanQueryInterface", error);
    }

    DWORD WlanConnect(HANDLE client,
                      const GUID* interfaceGuid,
                      const WLAN_CONNECTION_PARAMETERS* parameters,
                      PVOID reserved) override
    {
        if (connectRequest && parameters != nullptr)
            connectRequest(*parameters);
        return InterceptedWlanService::WlanConnect(client, interfaceGuid, parameters, reserved);
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
        const auto edited = m_profileTexts.find(std::wstring_view(name != nullptr ? name : L""));
        if (error == 0 && edited != m_profileTexts.end())
            Overwrite(*xml, edited->second);
        return BesideAnswer("WlanGetProfile", error);
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
    DWORD BesideAnswer(std::string_view operation, DWORD error) const
    {
        const DWORD beside = errorBesideAnswer ? errorBesideAnswer(operation) : 0;
        return beside != 0 ? beside : error;
    }

    static void Overwrite(wchar_t* xml, const std::wstring& text)
    {
        ASSERT_LE(text.size(), std::wcslen(xml)) << "there is no room for the edited profile";
        std::wmemcpy(xml, text.c_str(), text.size() + 1);
    }

    std::map<std::wstring, std::wstring, std::less<>> m_profileTexts;
    unsigned m_bssLists = 0;
};

/// Text conversion that can be made to take what the platform refuses.
class EditedText final : public platform::Text
{
public:
    explicit EditedText(platform::Text& inner) : m_inner(inner) {}

    /// Whether UTF-8 is converted whatever the flags for narrow code pages say.
    bool takesAllFlagsForUtf8 = false;
    /// The same for narrow code pages and the flags that belong to the other direction.
    bool takesAllFlagsForNarrow = false;

    int MultiByteToWideChar(UINT codePage,
                            DWORD flags,
                            const char* source,
                            int sourceLength,
                            wchar_t* destination,
                            int destinationLength) override
    {
        const bool relaxed = takesAllFlagsForUtf8 && codePage == CP_UTF8;
        return m_inner.MultiByteToWideChar(codePage, relaxed ? flags & MB_ERR_INVALID_CHARS : flags, source,
                                           sourceLength, destination, destinationLength);
    }

    int WideCharToMultiByte(UINT codePage,
                            DWORD flags,
                            const wchar_t* source,
                            int sourceLength,
                            char* destination,
                            int destinationLength,
                            const char* defaultCharacter,
                            BOOL* usedDefaultCharacter) override
    {
        return m_inner.WideCharToMultiByte(codePage, takesAllFlagsForNarrow ? 0 : flags, source, sourceLength,
                                           destination, destinationLength, defaultCharacter, usedDefaultCharacter);
    }

    int StringFromGUID2(const GUID& guid, wchar_t* text, int capacity) override
    {
        return m_inner.StringFromGUID2(guid, text, capacity);
    }

private:
    platform::Text& m_inner;
};

/// Stands before the provider in use for as long as it lives.
class EditedAnswers final : public ForwardingPlatform
{
public:
    platform::WlanService& wlan() override { return service; }
    platform::Text& text() override { return conversion; }

private:
    wrappers::Interceptor m_seesNothing;
    wrappers::InterceptionPoint m_point{m_seesNothing};

public:
    EditedWlanService service{inner().wlan(), m_point};
    EditedText conversion{inner().text()};
};

} // namespace calvix::test
