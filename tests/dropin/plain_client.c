/* A program as anybody would write it by the documentation of the WLAN API. What it expects is the home of the gallery:
   one adapter, not connected, and a network "Lindenhof" with a stored profile. */

#include "check.h"

#include <windows.h>
#include <wlanapi.h>

#include <string.h>
#include <wchar.h>

/* Some SDKs lack these. */
#ifndef WLAN_AVAILABLE_NETWORK_CONNECTED
#define WLAN_AVAILABLE_NETWORK_CONNECTED 0x00000001
#endif
#ifndef WLAN_AVAILABLE_NETWORK_HAS_PROFILE
#define WLAN_AVAILABLE_NETWORK_HAS_PROFILE 0x00000002
#endif

static const char networkName[] = "Lindenhof";
static const wchar_t profileName[] = L"Lindenhof";

static const wchar_t newProfile[] =
    L"<?xml version=\"1.0\"?><WLANProfile xmlns=\"http://www.microsoft.com/networking/WLAN/profile/v1\">"
    L"<name>Summer house</name><SSIDConfig><SSID><name>Summer house</name></SSID></SSIDConfig>"
    L"<connectionType>ESS</connectionType><connectionMode>manual</connectionMode><MSM><security><authEncryption>"
    L"<authentication>open</authentication><encryption>none</encryption><useOneX>false</useOneX>"
    L"</authEncryption></security></MSM></WLANProfile>";

/* What the callback was told, with the result of connections beside it. */
struct News
{
    CRITICAL_SECTION lock;
    HANDLE arrived;
    DWORD thread;
    DWORD codes[256];
    DWORD reasons[256];
    unsigned int count;
};

static struct News news;

static VOID WINAPI Hear(PWLAN_NOTIFICATION_DATA data, PVOID context)
{
    struct News* const heard = context;
    if (data->NotificationSource != WLAN_NOTIFICATION_SOURCE_ACM)
    {
        return;
    }
    EnterCriticalSection(&heard->lock);
    if (heard->count < 256)
    {
        const WLAN_CONNECTION_NOTIFICATION_DATA* const connection = data->pData;
        const int isAboutConnection = data->dwDataSize >= sizeof(*connection);
        heard->thread = GetCurrentThreadId();
        heard->codes[heard->count] = data->NotificationCode;
        heard->reasons[heard->count] = isAboutConnection ? connection->wlanReasonCode : 0;
        ++heard->count;
    }
    LeaveCriticalSection(&heard->lock);
    SetEvent(heard->arrived);
}

/* Where `code` stands in the news from `from` on, or -1 while it has not come. */
static int FindNews(DWORD code, unsigned int from)
{
    int found = -1;
    unsigned int index;
    EnterCriticalSection(&news.lock);
    for (index = from; index < news.count && found < 0; ++index)
    {
        found = news.codes[index] == code ? (int)index : -1;
    }
    LeaveCriticalSection(&news.lock);
    return found;
}

static unsigned int CountNews(void)
{
    unsigned int count;
    EnterCriticalSection(&news.lock);
    count = news.count;
    LeaveCriticalSection(&news.lock);
    return count;
}

static int AwaitNews(DWORD code, unsigned int from)
{
    const ULONGLONG end = GetTickCount64() + AGAINST_HANGS;
    int found = FindNews(code, from);
    while (found < 0 && GetTickCount64() < end)
    {
        WaitForSingleObject(news.arrived, 1000);
        found = FindNews(code, from);
    }
    return found;
}

static GUID CheckAdapters(HANDLE client)
{
    GUID guid;
    PWLAN_INTERFACE_INFO_LIST list = NULL;
    memset(&guid, 0, sizeof(guid));
    CHECK_ANSWER(ERROR_SUCCESS, WlanEnumInterfaces(client, NULL, &list));
    if (list == NULL)
    {
        return guid;
    }
    CHECK(list->dwNumberOfItems == 1);
    CHECK(wcsstr(list->InterfaceInfo[0].strInterfaceDescription, L"Wi-Fi") != NULL);
    CHECK(list->InterfaceInfo[0].isState == wlan_interface_state_disconnected);
    guid = list->InterfaceInfo[0].InterfaceGuid;
    WlanFreeMemory(list);
    return guid;
}

static void CheckScan(HANDLE client, const GUID* adapter)
{
    const unsigned int before = CountNews();
    CHECK_ANSWER(ERROR_SUCCESS, WlanScan(client, adapter, NULL, NULL, NULL));
    CHECK(AwaitNews(wlan_notification_acm_scan_complete, before) >= 0);
    CHECK(news.thread != GetCurrentThreadId());
}

static int IsNamed(const DOT11_SSID* ssid, const char* name)
{
    return ssid->uSSIDLength == strlen(name) && memcmp(ssid->ucSSID, name, strlen(name)) == 0;
}

static void CheckNetworks(HANDLE client, const GUID* adapter)
{
    PWLAN_AVAILABLE_NETWORK_LIST list = NULL;
    unsigned int found = 0;
    DWORD index;
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetAvailableNetworkList(client, adapter, 0, NULL, &list));
    for (index = 0; list != NULL && index < list->dwNumberOfItems; ++index)
    {
        const WLAN_AVAILABLE_NETWORK* const network = &list->Network[index];
        CHECK(network->wlanSignalQuality <= 100);
        if (IsNamed(&network->dot11Ssid, networkName))
        {
            ++found;
            CHECK(wcscmp(network->strProfileName, profileName) == 0);
            CHECK((network->dwFlags & WLAN_AVAILABLE_NETWORK_HAS_PROFILE) != 0);
            CHECK((network->dwFlags & WLAN_AVAILABLE_NETWORK_CONNECTED) == 0);
            CHECK(network->bSecurityEnabled);
            CHECK(network->uNumberOfBssids == 3);
        }
    }
    CHECK(list != NULL && list->dwNumberOfItems == 4);
    CHECK(found == 1);
    WlanFreeMemory(list);
}

static void CheckAccessPoints(HANDLE client, const GUID* adapter)
{
    PWLAN_BSS_LIST all = NULL;
    PWLAN_BSS_LIST ofNetwork = NULL;
    DOT11_SSID ssid;
    DWORD index;
    ssid.uSSIDLength = (ULONG)strlen(networkName);
    memcpy(ssid.ucSSID, networkName, strlen(networkName));
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetNetworkBssList(client, adapter, NULL, dot11_BSS_type_any, FALSE, NULL, &all));
    CHECK_ANSWER(ERROR_SUCCESS,
                 WlanGetNetworkBssList(client, adapter, &ssid, dot11_BSS_type_infrastructure, TRUE, NULL, &ofNetwork));
    CHECK(all != NULL && all->dwNumberOfItems == 7);
    CHECK(ofNetwork != NULL && ofNetwork->dwNumberOfItems == 3);
    for (index = 0; ofNetwork != NULL && index < ofNetwork->dwNumberOfItems; ++index)
    {
        const WLAN_BSS_ENTRY* const entry = &ofNetwork->wlanBssEntries[index];
        CHECK(IsNamed(&entry->dot11Ssid, networkName));
        CHECK(entry->lRssi < 0 && entry->ulChCenterFrequency > 2400000);
    }
    WlanFreeMemory(ofNetwork);
    WlanFreeMemory(all);
}

static DWORD CountProfiles(HANDLE client, const GUID* adapter)
{
    PWLAN_PROFILE_INFO_LIST list = NULL;
    DWORD count = 0;
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetProfileList(client, adapter, NULL, &list));
    if (list != NULL)
    {
        count = list->dwNumberOfItems;
    }
    WlanFreeMemory(list);
    return count;
}

static void CheckProfiles(HANDLE client, const GUID* adapter)
{
    LPWSTR xml = NULL;
    DWORD flags = 0;
    DWORD access = 0;
    DWORD reason = 1;
    CHECK(CountProfiles(client, adapter) == 4);
    CHECK_ANSWER(ERROR_SUCCESS, WlanGetProfile(client, adapter, profileName, NULL, &xml, &flags, &access));
    CHECK(xml != NULL && wcsstr(xml, L"<name>Lindenhof</name>") != NULL);
    WlanFreeMemory(xml);
    CHECK_ANSWER(ERROR_NOT_FOUND, WlanGetProfile(client, adapter, L"nobody's", NULL, &xml, NULL, NULL));

    CHECK_ANSWER(ERROR_SUCCESS, WlanSetProfile(client, adapter, 0, newProfile, NULL, FALSE, NULL, &reason));
    CHECK(reason == 0);
    CHECK_ANSWER(ERROR_ALREADY_EXISTS, WlanSetProfile(client, adapter, 0, newProfile, NULL, FALSE, NULL, &reason));
    CHECK_ANSWER(ERROR_BAD_PROFILE, WlanSetProfile(client, adapter, 0, L"<nonsense/>", NULL, FALSE, NULL, &reason));
    CHECK(reason != 0);
    CHECK_ANSWER(ERROR_SUCCESS, WlanSetProfilePosition(client, adapter, L"Summer house", 1, NULL));
    CHECK(CountProfiles(client, adapter) == 5);
    CHECK_ANSWER(ERROR_SUCCESS, WlanDeleteProfile(client, adapter, L"Summer house", NULL));
    CHECK(CountProfiles(client, adapter) == 4);
}

static DWORD QueryConnection(HANDLE client, const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* connection)
{
    DWORD size = 0;
    PVOID data = NULL;
    const DWORD error =
        WlanQueryInterface(client, adapter, wlan_intf_opcode_current_connection, NULL, &size, &data, NULL);
    if (error == ERROR_SUCCESS)
    {
        CHECK(size == sizeof(*connection));
        memcpy(connection, data, sizeof(*connection));
        WlanFreeMemory(data);
    }
    return error;
}

static void CheckConnecting(HANDLE client, const GUID* adapter)
{
    const unsigned int before = CountNews();
    WLAN_CONNECTION_ATTRIBUTES connection;
    WLAN_CONNECTION_PARAMETERS parameters;
    int completed;
    memset(&connection, 0, sizeof(connection));
    memset(&parameters, 0, sizeof(parameters));
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = profileName;
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    CHECK_ANSWER(ERROR_INVALID_STATE, QueryConnection(client, adapter, &connection));
    CHECK_ANSWER(ERROR_SUCCESS, WlanConnect(client, adapter, &parameters, NULL));
    completed = AwaitNews(wlan_notification_acm_connection_complete, before);
    CHECK(completed > FindNews(wlan_notification_acm_connection_start, before));
    CHECK(completed >= 0 && news.reasons[completed] == 0);
    CHECK_ANSWER(ERROR_SUCCESS, QueryConnection(client, adapter, &connection));
    CHECK(connection.isState == wlan_interface_state_connected);
    CHECK(wcscmp(connection.strProfileName, profileName) == 0);
    CHECK(IsNamed(&connection.wlanAssociationAttributes.dot11Ssid, networkName));
}

static void CheckDisconnecting(HANDLE client, const GUID* adapter)
{
    const unsigned int before = CountNews();
    WLAN_CONNECTION_ATTRIBUTES connection;
    CHECK_ANSWER(ERROR_SUCCESS, WlanDisconnect(client, adapter, NULL));
    CHECK(AwaitNews(wlan_notification_acm_disconnected, before) >= 0);
    CHECK_ANSWER(ERROR_INVALID_STATE, QueryConnection(client, adapter, &connection));
}

static void CheckReasonText(void)
{
    wchar_t text[256] = L"";
    CHECK_ANSWER(ERROR_SUCCESS, WlanReasonCodeToString(0, 256, text, NULL));
    CHECK(text[0] != L'\0');
}

int main(void)
{
    HANDLE client = NULL;
    DWORD version = 0;
    DWORD previous = 1;
    GUID adapter;
    InitializeCriticalSection(&news.lock);
    news.arrived = CreateEventW(NULL, FALSE, FALSE, NULL);
    CHECK_ANSWER(ERROR_SUCCESS, WlanOpenHandle(2, NULL, &version, &client));
    CHECK(version == 2 && client != NULL);
    CHECK_ANSWER(ERROR_SUCCESS,
                 WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, FALSE, Hear, &news, NULL, &previous));
    CHECK(previous == WLAN_NOTIFICATION_SOURCE_NONE);
    adapter = CheckAdapters(client);
    CheckScan(client, &adapter);
    CheckNetworks(client, &adapter);
    CheckAccessPoints(client, &adapter);
    CheckProfiles(client, &adapter);
    CheckConnecting(client, &adapter);
    CheckDisconnecting(client, &adapter);
    CheckReasonText();
    CHECK_ANSWER(ERROR_SUCCESS,
                 WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, NULL, NULL, NULL, &previous));
    CHECK(previous == WLAN_NOTIFICATION_SOURCE_ACM);
    CHECK_ANSWER(ERROR_SUCCESS, WlanCloseHandle(client, NULL));
    CHECK_ANSWER(ERROR_INVALID_HANDLE, WlanCloseHandle(client, NULL));
    return CheckedExitCode();
}
