/* A program that ends while its callback is still running, and that leaves the closing of its handle to a library. */

#include "check.h"

#include <windows.h>
#include <wlanapi.h>

__declspec(dllimport) void KeepUntilTheEnd(HANDLE client);

static VOID WINAPI NeverReturn(PWLAN_NOTIFICATION_DATA data, PVOID entered)
{
    (void)data;
    SetEvent(entered);
    Sleep(INFINITE);
}

int main(void)
{
    const HANDLE entered = CreateEventW(NULL, TRUE, FALSE, NULL);
    HANDLE client = NULL;
    DWORD version = 0;
    PWLAN_INTERFACE_INFO_LIST list = NULL;
    CHECK_ANSWER(ERROR_SUCCESS, WlanOpenHandle(2, NULL, &version, &client));
    KeepUntilTheEnd(client);
    CHECK_ANSWER(ERROR_SUCCESS, WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, FALSE, NeverReturn,
                                                         entered, NULL, NULL));
    CHECK_ANSWER(ERROR_SUCCESS, WlanEnumInterfaces(client, NULL, &list));
    if (list != NULL && list->dwNumberOfItems > 0)
    {
        CHECK_ANSWER(ERROR_SUCCESS, WlanScan(client, &list->InterfaceInfo[0].InterfaceGuid, NULL, NULL, NULL));
    }
    CHECK(WaitForSingleObject(entered, AGAINST_HANGS) == WAIT_OBJECT_0);
    return CheckedExitCode();
}
