/* Writes the descriptions of the adapters, one a line, or the number of the error that kept it from that. */

#include <windows.h>
#include <wlanapi.h>

#include <stdio.h>

static DWORD PrintAdapters(HANDLE client)
{
    PWLAN_INTERFACE_INFO_LIST list = NULL;
    DWORD index;
    const DWORD error = WlanEnumInterfaces(client, NULL, &list);
    for (index = 0; list != NULL && index < list->dwNumberOfItems; ++index)
    {
        printf("%ls\n", list->InterfaceInfo[index].strInterfaceDescription);
    }
    WlanFreeMemory(list);
    return error;
}

int main(void)
{
    HANDLE client = NULL;
    DWORD version = 0;
    DWORD error = WlanOpenHandle(2, NULL, &version, &client);
    if (error == ERROR_SUCCESS)
    {
        error = PrintAdapters(client);
        WlanCloseHandle(client, NULL);
    }
    if (error != ERROR_SUCCESS)
    {
        printf("error %lu\n", error);
    }
    return (int)error;
}
