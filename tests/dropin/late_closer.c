/* A library that closes its WLAN handle when the process ends. By then the process has no other threads any more, and
   whatever they were doing stays half done. */

#include <windows.h>
#include <wlanapi.h>

#include <stdio.h>

static HANDLE kept;

__declspec(dllexport) void KeepUntilTheEnd(HANDLE client);

void KeepUntilTheEnd(HANDLE client)
{
    kept = client;
}

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID isProcessEnding)
{
    (void)instance;
    if (reason == DLL_PROCESS_DETACH && isProcessEnding != NULL)
    {
        char line[64];
        DWORD written = 0;
        const int length = sprintf(line, "closed at the end: %lu\n", WlanCloseHandle(kept, NULL));
        WlanFreeMemory(NULL);
        WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), line, (DWORD)length, &written, NULL);
    }
    return TRUE;
}
