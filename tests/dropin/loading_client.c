/* A program that starts without the WLAN library and looks for it while it runs, as those do that must also start where
   Windows has none. */

#include "check.h"
#include "function_names.h"

#include <windows.h>
#include <wlanapi.h>

#include <string.h>
#include <wchar.h>

typedef void (*AnyFunction)(void);

/* Whatever its parameters are. */
typedef DWORD(WINAPI* Unsupported)(PVOID, PVOID, PVOID);

typedef DWORD(WINAPI* OpenHandle)(DWORD, PVOID, PDWORD, PHANDLE);
typedef DWORD(WINAPI* CloseHandleOf)(HANDLE, PVOID);
typedef DWORD(WINAPI* EnumInterfaces)(HANDLE, PVOID, PWLAN_INTERFACE_INFO_LIST*);
typedef DWORD(WINAPI* RegisterNotification)(HANDLE, DWORD, BOOL, WLAN_NOTIFICATION_CALLBACK, PVOID, PVOID, PDWORD);
typedef DWORD(WINAPI* Connect)(HANDLE, const GUID*, const PWLAN_CONNECTION_PARAMETERS, PVOID);
typedef DWORD(WINAPI* DeleteProfile)(HANDLE, const GUID*, LPCWSTR, PVOID);
typedef DWORD(WINAPI* GetProfileList)(HANDLE, const GUID*, PVOID, PWLAN_PROFILE_INFO_LIST*);
typedef VOID(WINAPI* FreeMemory)(PVOID);

struct Wlan
{
    HMODULE module;
    OpenHandle openHandle;
    CloseHandleOf closeHandle;
    EnumInterfaces enumInterfaces;
    RegisterNotification registerNotification;
    Connect connect;
    DeleteProfile deleteProfile;
    GetProfileList getProfileList;
    FreeMemory freeMemory;
};

static AnyFunction Find(const struct Wlan* wlan, const char* name)
{
    return (AnyFunction)GetProcAddress(wlan->module, name);
}

static int Load(struct Wlan* wlan)
{
    wlan->module = LoadLibraryW(L"wlanapi.dll");
    CHECK(wlan->module != NULL);
    if (wlan->module == NULL)
    {
        return 0;
    }
    wlan->openHandle = (OpenHandle)Find(wlan, "WlanOpenHandle");
    wlan->closeHandle = (CloseHandleOf)Find(wlan, "WlanCloseHandle");
    wlan->enumInterfaces = (EnumInterfaces)Find(wlan, "WlanEnumInterfaces");
    wlan->registerNotification = (RegisterNotification)Find(wlan, "WlanRegisterNotification");
    wlan->connect = (Connect)Find(wlan, "WlanConnect");
    wlan->deleteProfile = (DeleteProfile)Find(wlan, "WlanDeleteProfile");
    wlan->getProfileList = (GetProfileList)Find(wlan, "WlanGetProfileList");
    wlan->freeMemory = (FreeMemory)Find(wlan, "WlanFreeMemory");
    return 1;
}

static void CheckExports(const struct Wlan* wlan)
{
    unsigned int index;
    for (index = 0; index < sizeof(answeredNames) / sizeof(answeredNames[0]); ++index)
    {
        CHECK(Find(wlan, answeredNames[index]) != NULL);
    }
    for (index = 0; index < sizeof(unsupportedNames) / sizeof(unsupportedNames[0]); ++index)
    {
        const Unsupported function = (Unsupported)Find(wlan, unsupportedNames[index]);
        CHECK(function != NULL);
        CHECK(function != NULL && function(NULL, NULL, NULL) == ERROR_NOT_SUPPORTED);
    }
    CHECK(Find(wlan, "WlanNobodysFunction") == NULL);
}

static HANDLE Open(const struct Wlan* wlan, GUID* adapter)
{
    HANDLE client = NULL;
    DWORD version = 0;
    PWLAN_INTERFACE_INFO_LIST list = NULL;
    memset(adapter, 0, sizeof(*adapter));
    CHECK_ANSWER(ERROR_SUCCESS, wlan->openHandle(2, NULL, &version, &client));
    CHECK_ANSWER(ERROR_SUCCESS, wlan->enumInterfaces(client, NULL, &list));
    if (list != NULL && list->dwNumberOfItems > 0)
    {
        *adapter = list->InterfaceInfo[0].InterfaceGuid;
    }
    wlan->freeMemory(list);
    return client;
}

static DWORD CountProfiles(const struct Wlan* wlan, HANDLE client, const GUID* adapter)
{
    PWLAN_PROFILE_INFO_LIST list = NULL;
    DWORD count = 0;
    CHECK_ANSWER(ERROR_SUCCESS, wlan->getProfileList(client, adapter, NULL, &list));
    if (list != NULL)
    {
        count = list->dwNumberOfItems;
    }
    wlan->freeMemory(list);
    return count;
}

static VOID WINAPI TellWhenConnected(PWLAN_NOTIFICATION_DATA data, PVOID connected)
{
    if (data->NotificationCode == wlan_notification_acm_connection_complete)
    {
        SetEvent(connected);
    }
}

/* Leaves the notifications running: the library must not go away under its own threads. */
static void CheckConnecting(const struct Wlan* wlan, HANDLE client, const GUID* adapter)
{
    const HANDLE connected = CreateEventW(NULL, TRUE, FALSE, NULL);
    WLAN_CONNECTION_PARAMETERS parameters;
    memset(&parameters, 0, sizeof(parameters));
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = L"Lindenhof";
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    CHECK_ANSWER(ERROR_SUCCESS, wlan->registerNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, TRUE,
                                                           TellWhenConnected, connected, NULL, NULL));
    CHECK_ANSWER(ERROR_SUCCESS, wlan->connect(client, adapter, &parameters, NULL));
    CHECK(WaitForSingleObject(connected, AGAINST_HANGS) == WAIT_OBJECT_0);
}

/* Loaded without a call, the library goes when it is let go. */
static void CheckUnloading(void)
{
    struct Wlan wlan;
    if (Load(&wlan))
    {
        CheckExports(&wlan);
        CHECK(FreeLibrary(wlan.module));
        CHECK(GetModuleHandleW(L"wlanapi.dll") == NULL);
    }
}

int main(void)
{
    struct Wlan wlan;
    GUID adapter;
    HANDLE client;
    DWORD profiles;
    CheckUnloading();
    if (!Load(&wlan))
    {
        return CheckedExitCode();
    }
    client = Open(&wlan, &adapter);
    profiles = CountProfiles(&wlan, client, &adapter);
    CheckConnecting(&wlan, client, &adapter);
    CHECK_ANSWER(ERROR_SUCCESS, wlan.deleteProfile(client, &adapter, L"Lindenhof Garden", NULL));
    CHECK(FreeLibrary(wlan.module));

    /* The service has not forgotten anything, not even the client. */
    if (Load(&wlan))
    {
        CHECK(CountProfiles(&wlan, client, &adapter) == profiles - 1);
        CHECK_ANSWER(ERROR_SUCCESS, wlan.closeHandle(client, NULL));
        CHECK(FreeLibrary(wlan.module));
    }
    return CheckedExitCode();
}
