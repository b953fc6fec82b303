#pragma once

// Answers of the service that the simulated computer does not give: real ones, edited in place on their way to the
// library, so that ownership and accounts stay the computer's.
//
//     EditedAnswers edited;
//     edited.service.bssList = [](WLAN_BSS_LIST& list, unsigned) { list.dwNumberOfItems = 0; };
//     edited.service.SetProfileText(L"HomeNet", L"</connectionMode>");
//     edited.conversion.takesAllFlagsForUtf8 = true;

#include "operations/operations.h"
#include "support/changed_platform.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace calvix::test
{

struct ServiceEdits
{
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
    void SetProfileText(const std::wstring& name, const std::wstring& text) { profileTexts[name] = text; }

    std::map<std::wstring, std::wstring, std::less<>> profileTexts;
    unsigned bssLists = 0;
};

/// Text conversion that can be made to take what the platform refuses.
struct ConversionEdits
{
    /// Whether UTF-8 is converted with any flags for narrow code pages.
    bool takesAllFlagsForUtf8 = false;
    /// The same for narrow code pages and the flags that belong to the other direction.
    bool takesAllFlagsForNarrow = false;
};

class EditedAnswers final : public ChangedPlatform
{
public:
    EditedAnswers()
    {
        After<&WlanService::WlanOpenHandle>([this](DWORD, DWORD, PVOID, DWORD* negotiated, HANDLE*)
                                            { *negotiated = service.negotiatedVersion.value_or(*negotiated); });
        After<&WlanService::WlanEnumInterfaces>([this](DWORD error, HANDLE, PVOID, auto** list)
                                                { Edit(error, service.interfaceList, list); });
        After<&WlanService::WlanGetProfileList>([this](DWORD error, HANDLE, const GUID*, PVOID, auto** list)
                                                { Edit(error, service.profileList, list); });
        After<&WlanService::WlanGetAvailableNetworkList>(
            [this](DWORD error, HANDLE, const GUID*, DWORD, PVOID, auto** list)
            { Edit(error, service.networkList, list); });
        After<&WlanService::WlanGetNetworkBssList>(
            [this](DWORD error, HANDLE, const GUID*, const DOT11_SSID*, DOT11_BSS_TYPE, BOOL, PVOID,
                   WLAN_BSS_LIST** list)
            {
                if (error == 0 && service.bssList)
                    service.bssList(**list, ++service.bssLists);
            });
        After<&WlanService::WlanQueryInterface>(
            [this](DWORD error, HANDLE, const GUID*, WLAN_INTF_OPCODE opcode, PVOID, DWORD*, PVOID* data,
                   WLAN_OPCODE_VALUE_TYPE*)
            {
                if (error == 0 && opcode == wlan_intf_opcode_current_connection && service.currentConnection)
                    service.currentConnection(*static_cast<WLAN_CONNECTION_ATTRIBUTES*>(*data));
            });
        Before<&WlanService::WlanConnect>(
            [this](HANDLE, const GUID*, const WLAN_CONNECTION_PARAMETERS* parameters, PVOID)
            {
                if (service.connectRequest && parameters != nullptr)
                    service.connectRequest(*parameters);
            });
        After<&WlanService::WlanGetProfile>(
            [this](DWORD error, HANDLE, const GUID*, const wchar_t* name, PVOID, wchar_t** xml, DWORD*, DWORD*)
            {
                const auto edited = service.profileTexts.find(std::wstring_view(name != nullptr ? name : L""));
                if (error == 0 && edited != service.profileTexts.end())
                    Overwrite(*xml, edited->second);
            });
        Before<&WlanService::WlanSetProfile>(
            [this](HANDLE, const GUID*, DWORD, const wchar_t*, const wchar_t*, BOOL, PVOID, DWORD* reasonCode)
            {
                if (service.reasonCodeOfSetProfile && reasonCode != nullptr)
                    service.reasonCodeOfSetProfile(*reasonCode);
            });
        Instead<&platform::Text::MultiByteToWideChar>(
            [this, convert = Now<&platform::Text::MultiByteToWideChar>()](UINT codePage, DWORD flags, auto... rest)
            {
                const bool relaxed = conversion.takesAllFlagsForUtf8 && codePage == CP_UTF8;
                return convert(codePage, relaxed ? flags & MB_ERR_INVALID_CHARS : flags, rest...);
            });
        Instead<&platform::Text::WideCharToMultiByte>(
            [this, convert = Now<&platform::Text::WideCharToMultiByte>()](UINT codePage, DWORD flags, auto... rest)
            { return convert(codePage, conversion.takesAllFlagsForNarrow ? 0 : flags, rest...); });
        operations::ForEachOperation([this]<auto operation, typename... Roles>(
            const operations::Description<operation, Roles...>& description) {
            if constexpr ((std::is_base_of_v<operations::BlockOut, Roles> || ...))
                After<operation>([this, name = description.name](DWORD error, auto...)
                                 { return BesideAnswer(name, error); });
        });
    }

    ServiceEdits service;
    ConversionEdits conversion;

private:
    template <typename List>
    static void Edit(DWORD error, const std::function<void(List&)>& edit, List** list)
    {
        if (error == 0 && edit)
            edit(**list);
    }

    DWORD BesideAnswer(std::string_view operation, DWORD error) const
    {
        const DWORD beside = service.errorBesideAnswer ? service.errorBesideAnswer(operation) : 0;
        return beside != 0 ? beside : error;
    }

    static void Overwrite(wchar_t* xml, const std::wstring& text)
    {
        ASSERT_LE(text.size(), std::wcslen(xml)) << "there is no room for the edited profile";
        std::wmemcpy(xml, text.c_str(), text.size() + 1);
    }
};

} // namespace calvix::test
