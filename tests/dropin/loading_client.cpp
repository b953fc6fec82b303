// A program that starts without the WLAN library and looks for it while it runs, as those do that must also start where
// Windows has none.

#include "check.h"
#include "function_names.h"

#include <windows.h>
#include <wlanapi.h>

namespace
{

/// What the library exports, of the type that is asked for.
struct Export
{
    FARPROC address;

    template <typename Function>
    operator Function() const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(address));
    }
};

struct Wlan
{
    Export Find(const char* name) const { return {::GetProcAddress(module, name)}; }

    const HMODULE module = ::LoadLibraryW(L"wlanapi.dll");
    decltype(&::WlanOpenHandle) openHandle = Find("WlanOpenHandle");
    decltype(&::WlanCloseHandle) closeHandle = Find("WlanCloseHandle");
    decltype(&::WlanEnumInterfaces) enumInterfaces = Find("WlanEnumInterfaces");
    decltype(&::WlanRegisterNotification) registerNotification = Find("WlanRegisterNotification");
    decltype(&::WlanConnect) connect = Find("WlanConnect");
    decltype(&::WlanDeleteProfile) deleteProfile = Find("WlanDeleteProfile");
    decltype(&::WlanGetProfileList) getProfileList = Find("WlanGetProfileList");
    decltype(&::WlanFreeMemory) freeMemory = Find("WlanFreeMemory");
};

void CheckExports(const Wlan& wlan)
{
    // Whatever its parameters are.
    using Unsupported = DWORD(WINAPI*)(PVOID, PVOID, PVOID);
    for (const char* const name : answeredNames)
        CHECK(wlan.Find(name).address != nullptr);
    for (const char* const name : unsupportedNames)
    {
        const Unsupported function = wlan.Find(name);
        CHECK(function != nullptr && function(nullptr, nullptr, nullptr) == ERROR_NOT_SUPPORTED);
    }
    CHECK(wlan.Find("WlanNobodysFunction").address == nullptr);
}

HANDLE Open(const Wlan& wlan, GUID& adapter)
{
    HANDLE client = nullptr;
    DWORD version = 0;
    PWLAN_INTERFACE_INFO_LIST list = nullptr;
    CHECK_ANSWER(ERROR_SUCCESS, wlan.openHandle(2, nullptr, &version, &client));
    CHECK_ANSWER(ERROR_SUCCESS, wlan.enumInterfaces(client, nullptr, &list));
    if (list != nullptr && list->dwNumberOfItems > 0)
        adapter = list->InterfaceInfo[0].InterfaceGuid;
    wlan.freeMemory(list);
    return client;
}

DWORD CountProfiles(const Wlan& wlan, HANDLE client, const GUID& adapter)
{
    PWLAN_PROFILE_INFO_LIST list = nullptr;
    CHECK_ANSWER(ERROR_SUCCESS, wlan.getProfileList(client, &adapter, nullptr, &list));
    const DWORD count = list != nullptr ? list->dwNumberOfItems : 0;
    wlan.freeMemory(list);
    return count;
}

void WINAPI TellWhenConnected(PWLAN_NOTIFICATION_DATA data, PVOID connected)
{
    if (data->NotificationCode == wlan_notification_acm_connection_complete)
        ::SetEvent(connected);
}

/// Leaves the notifications running: the library must not go away under its own threads.
void CheckConnecting(const Wlan& wlan, HANDLE client, const GUID& adapter)
{
    const HANDLE connected = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = L"Lindenhof";
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    CHECK_ANSWER(ERROR_SUCCESS, wlan.registerNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, TRUE, TellWhenConnected,
                                                          connected, nullptr, nullptr));
    CHECK_ANSWER(ERROR_SUCCESS, wlan.connect(client, &adapter, &parameters, nullptr));
    CHECK(::WaitForSingleObject(connected, AGAINST_HANGS) == WAIT_OBJECT_0);
}

/// Loaded without a call of a function that has a computer, the library goes when it is let go.
void CheckUnloading()
{
    const Wlan wlan;
    CheckExports(wlan);
    CHECK(::FreeLibrary(wlan.module));
    CHECK(::GetModuleHandleW(L"wlanapi.dll") == nullptr);
}

} // namespace

int main()
{
    CheckUnloading();
    const Wlan wlan;
    CHECK(wlan.module != nullptr);
    if (wlan.module == nullptr)
        return CheckedExitCode();
    GUID adapter{};
    const HANDLE client = Open(wlan, adapter);
    const DWORD profiles = CountProfiles(wlan, client, adapter);
    CheckConnecting(wlan, client, adapter);
    CHECK_ANSWER(ERROR_SUCCESS, wlan.deleteProfile(client, &adapter, L"Lindenhof Garden", nullptr));
    CHECK(::FreeLibrary(wlan.module));

    // The service has not forgotten anything, not even the client.
    const Wlan again;
    CHECK(CountProfiles(again, client, adapter) == profiles - 1);
    CHECK_ANSWER(ERROR_SUCCESS, again.closeHandle(client, nullptr));
    CHECK(::FreeLibrary(again.module));
    return CheckedExitCode();
}
