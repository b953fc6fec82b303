#pragma once

// Answers of the service that the simulated computer does not give: real ones, edited in place on their way to the
// library, so that ownership and accounts stay the computer's.
//
//     EditedAnswers edited({.bss = [](WLAN_BSS_LIST& list) { list.dwNumberOfItems = 0; }});
//     edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list) { list.dwNumberOfItems = 0; };
//     edited.service.SetProfileText(L"HomeNet", L"</connectionMode>");
//     edited.conversion.takesAllFlagsForUtf8 = true;

#include "operations/operations.h"
#include "support/changed_platform.h"

#include <cwchar>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace calvix::test
{

/// What is done to answers that the computer gave, and what sees the library's requests.
struct AnswerChanges
{
    std::function<void(WLAN_INTERFACE_INFO_LIST&)> interfaces = {};
    std::function<void(WLAN_AVAILABLE_NETWORK_LIST&)> networks = {};
    std::function<void(WLAN_PROFILE_INFO_LIST&)> profiles = {};
    std::function<void(WLAN_BSS_LIST&)> bss = {};
    std::function<void(WLAN_CONNECTION_ATTRIBUTES&)> currentConnection = {};
    /// A query's record and its size; the opcode says which record it is.
    std::function<void(WLAN_INTF_OPCODE, PVOID, DWORD&)> query = {};
    /// The size of a WlanQueryAutoConfigParameter's answer.
    std::function<void(DWORD&)> parameter = {};
    /// Sees what WlanSetInterface is given.
    std::function<void(WLAN_INTF_OPCODE, DWORD, const void*)> set = {};
    /// Sees connection requests as the library hands them in.
    std::function<void(const WLAN_CONNECTION_PARAMETERS&)> connectRequest = {};
    /// The version that the service agrees to, whichever it is asked for.
    std::optional<DWORD> negotiatedVersion = {};
    /// The error, or 0, of an operation that has handed out its answer all the same.
    std::function<DWORD(std::string_view)> errorBesideAnswer = {};

    /// Puts a text, not longer than the profile's own, in the place of a profile's XML.
    void SetProfileText(const std::wstring& name, const std::wstring& text) { profileTexts[name] = text; }

    std::map<std::wstring, std::wstring, std::less<>> profileTexts = {};
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
    explicit EditedAnswers(AnswerChanges changes = {}) : service(std::move(changes))
    {
        After<&WlanService::WlanOpenHandle>([this](DWORD, DWORD, PVOID, DWORD* negotiated, HANDLE*)
                                            { *negotiated = service.negotiatedVersion.value_or(*negotiated); });
        After<&WlanService::WlanEnumInterfaces>([this](DWORD error, HANDLE, PVOID, auto** list)
                                                { Edit(error, service.interfaces, list); });
        After<&WlanService::WlanGetProfileList>([this](DWORD error, HANDLE, const GUID*, PVOID, auto** list)
                                                { Edit(error, service.profiles, list); });
        After<&WlanService::WlanGetAvailableNetworkList>([this](DWORD error, HANDLE, const GUID*, DWORD, PVOID,
                                                                auto** list) { Edit(error, service.networks, list); });
        After<&WlanService::WlanGetNetworkBssList>(
            [this](DWORD error, HANDLE, const GUID*, const DOT11_SSID*, DOT11_BSS_TYPE, BOOL, PVOID, auto** list)
            { Edit(error, service.bss, list); });
        After<&WlanService::WlanQueryInterface>(
            [this](DWORD error, HANDLE, const GUID*, WLAN_INTF_OPCODE opcode, PVOID, DWORD* size, PVOID* data,
                   WLAN_OPCODE_VALUE_TYPE*)
            {
                if (error != 0)
                    return;
                if (service.query)
                    service.query(opcode, *data, *size);
                if (opcode == wlan_intf_opcode_current_connection && service.currentConnection)
                    service.currentConnection(*static_cast<WLAN_CONNECTION_ATTRIBUTES*>(*data));
            });
        After<&WlanService::WlanQueryAutoConfigParameter>(
            [this](DWORD error, HANDLE, WLAN_AUTOCONF_OPCODE, PVOID, DWORD* size, PVOID*, WLAN_OPCODE_VALUE_TYPE*)
            {
                if (error == 0 && service.parameter)
                    service.parameter(*size);
            });
        Before<&WlanService::WlanSetInterface>(
            [this](HANDLE, const GUID*, WLAN_INTF_OPCODE opcode, DWORD size, const void* data, PVOID)
            {
                if (service.set)
                    service.set(opcode, size, data);
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

    AnswerChanges service;
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
        if (text.size() > std::wcslen(xml))
            throw std::logic_error("there is no room for the edited profile");
        std::wmemcpy(xml, text.c_str(), text.size() + 1);
    }
};

} // namespace calvix::test
