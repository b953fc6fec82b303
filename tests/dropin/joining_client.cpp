// A program that makes profiles, orders them and connects with them, as the tools of administrators do. What it expects
// is the home of the gallery, with four stored profiles.

#include "check.h"
#include "news.h"

#include <cwchar>
#include <string>
#include <vector>

namespace
{

using Names = std::vector<std::wstring>;

std::wstring Profile(const std::wstring& name, const std::wstring& ssid, const std::wstring& security)
{
    return L"<?xml version=\"1.0\"?><WLANProfile xmlns=\"http://www.microsoft.com/networking/WLAN/profile/v1\"><name>" +
           name + L"</name><SSIDConfig><SSID><name>" + ssid +
           L"</name></SSID></SSIDConfig><connectionType>ESS</connectionType><connectionMode>manual</connectionMode>"
           L"<MSM><security>" +
           security + L"</security></MSM></WLANProfile>";
}

constexpr wchar_t open[] = L"<authEncryption><authentication>open</authentication><encryption>none</encryption>"
                           L"<useOneX>false</useOneX></authEncryption>";
constexpr wchar_t protectedByKey[] =
    L"<authEncryption><authentication>WPA2PSK</authentication><encryption>AES</encryption><useOneX>false</useOneX>"
    L"</authEncryption><sharedKey><keyType>passPhrase</keyType><protected>false</protected>"
    L"<keyMaterial>seven green kettles</keyMaterial></sharedKey>";

News news;
HANDLE client = nullptr;
GUID adapter{};

void Open()
{
    DWORD version = 0;
    PWLAN_INTERFACE_INFO_LIST list = nullptr;
    CHECK_ANSWER(ERROR_SUCCESS, WlanOpenHandle(2, nullptr, &version, &client));
    CHECK_ANSWER(ERROR_SUCCESS, WlanEnumInterfaces(client, nullptr, &list));
    if (list != nullptr && list->dwNumberOfItems > 0)
        adapter = list->InterfaceInfo[0].InterfaceGuid;
    WlanFreeMemory(list);
    CHECK_ANSWER(ERROR_SUCCESS, WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, FALSE, &News::Hear,
                                                         &news, nullptr, nullptr));
}

Names ListProfiles()
{
    PWLAN_PROFILE_INFO_LIST list = nullptr;
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetProfileList(client, &adapter, nullptr, &list));
    Names names;
    for (DWORD index = 0; list != nullptr && index < list->dwNumberOfItems; ++index)
        names.push_back(list->ProfileInfo[index].strProfileName);
    WlanFreeMemory(list);
    return names;
}

void CheckCapability()
{
    PWLAN_INTERFACE_CAPABILITY capability = nullptr;
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetInterfaceCapability(client, &adapter, nullptr, &capability));
    CHECK(capability != nullptr && capability->dwNumberOfSupportedPhys > 0);
    CHECK(capability != nullptr && capability->interfaceType == wlan_interface_type_native_802_11);
    WlanFreeMemory(capability);
}

void CheckStoring()
{
    DWORD reason = 1;
    const std::wstring house = Profile(L"Summer house", L"Summer house", open);
    const auto store = [&](const std::wstring& xml)
    { return WlanSetProfile(client, &adapter, 0, xml.c_str(), nullptr, FALSE, nullptr, &reason); };
    CHECK(ListProfiles().size() == 4);
    CHECK_ANSWER(ERROR_SUCCESS, store(house));
    CHECK(reason == 0);
    CHECK_ANSWER(ERROR_ALREADY_EXISTS, store(house));
    CHECK_ANSWER(ERROR_BAD_PROFILE, store(L"<nonsense/>"));
    CHECK(reason != 0);
    CHECK(ListProfiles().front() == L"Summer house");
}

void CheckReading()
{
    LPWSTR xml = nullptr;
    DWORD flags = 0;
    DWORD access = 0;
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetProfile(client, &adapter, L"Lindenhof", nullptr, &xml, &flags, &access));
    CHECK(xml != nullptr && std::wcsstr(xml, L"<name>Lindenhof</name>") != nullptr);
    WlanFreeMemory(xml);
    CHECK_ANSWER(ERROR_NOT_FOUND, WlanGetProfile(client, &adapter, L"nobody's", nullptr, &xml, nullptr, nullptr));
}

void CheckOrdering()
{
    CHECK_ANSWER(ERROR_SUCCESS, WlanSetProfilePosition(client, &adapter, L"Summer house", 1, nullptr));
    Names names = ListProfiles();
    CHECK(names.size() == 5 && names[1] == L"Summer house");
    const Names reversed(names.rbegin(), names.rend());
    std::vector<LPCWSTR> order;
    for (const std::wstring& name : reversed)
        order.push_back(name.c_str());
    CHECK_ANSWER(ERROR_SUCCESS,
                 WlanSetProfileList(client, &adapter, static_cast<DWORD>(order.size()), order.data(), nullptr));
    CHECK(ListProfiles() == reversed);
    CHECK_ANSWER(ERROR_SUCCESS, WlanRenameProfile(client, &adapter, L"Summer house", L"Winter house", nullptr));
    CHECK(ListProfiles()[3] == L"Winter house");
}

// What this program knows about a profile, in memory of the service.
void CheckNotes()
{
    auto* const note = static_cast<BYTE*>(WlanAllocateMemory(4));
    CHECK(note != nullptr);
    if (note == nullptr)
        return;
    note[0] = note[1] = note[2] = note[3] = 42;
    CHECK_ANSWER(ERROR_SUCCESS, WlanSetProfileCustomUserData(client, &adapter, L"Winter house", 4, note, nullptr));
    WlanFreeMemory(note);
    PBYTE kept = nullptr;
    DWORD size = 0;
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetProfileCustomUserData(client, &adapter, L"Winter house", nullptr, &size, &kept));
    CHECK(kept != nullptr && size == 4 && kept[3] == 42);
    WlanFreeMemory(kept);
    CHECK_ANSWER(ERROR_SUCCESS, WlanDeleteProfile(client, &adapter, L"Winter house", nullptr));
}

DWORD AwaitConnection(WLAN_CONNECTION_PARAMETERS& parameters)
{
    const std::size_t before = news.Count();
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    CHECK_ANSWER(ERROR_SUCCESS, WlanConnect(client, &adapter, &parameters, nullptr));
    const auto completed = news.Await(wlan_notification_acm_connection_complete, before);
    CHECK(completed.has_value());
    return completed ? completed->reason : 0;
}

void CheckTemporaryProfile()
{
    const std::wstring xml = Profile(L"Only today", L"Lindenhof Garden", protectedByKey);
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_temporary_profile;
    parameters.strProfile = xml.c_str();
    CHECK(AwaitConnection(parameters) == 0);
    CHECK(ListProfiles().size() == 4);
    CHECK_ANSWER(ERROR_SUCCESS, WlanSaveTemporaryProfile(client, &adapter, L"Every day", nullptr, 0, FALSE, nullptr));
    CHECK(ListProfiles().front() == L"Every day");
    CHECK_ANSWER(ERROR_INVALID_STATE,
                 WlanSaveTemporaryProfile(client, &adapter, L"Every day", nullptr, 0, TRUE, nullptr));
}

void CheckDiscovery()
{
    DOT11_SSID ssid{};
    for (const char character : std::string("PrinterSetup-4711"))
        ssid.ucSSID[ssid.uSSIDLength++] = static_cast<UCHAR>(character);
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_discovery_unsecure;
    parameters.pDot11Ssid = &ssid;
    CHECK(AwaitConnection(parameters) == 0);
}

} // namespace

int main()
{
    Open();
    CheckCapability();
    CheckStoring();
    CheckReading();
    CheckOrdering();
    CheckNotes();
    CheckTemporaryProfile();
    CheckDiscovery();
    CHECK_ANSWER(ERROR_SUCCESS, WlanCloseHandle(client, nullptr));
    return CheckedExitCode();
}
