#include <calvix/wireless_manage.h>

#include "platform/platform.h"

using namespace calvix::platform;

int CWirelessManage::IsWow64()
{
    using IsWow64ProcessFunction = BOOL(WINAPI*)(HANDLE, BOOL*);
    const FARPROC address = processes().GetProcAddress(processes().GetModuleHandleA("kernel32"), "IsWow64Process");
    if (address == nullptr)
        return 0;
    // A detour through void(*)() tells the compiler that the change of the function's type is meant.
    const auto isWow64Process = reinterpret_cast<IsWow64ProcessFunction>(reinterpret_cast<void (*)()>(address));
    BOOL emulated = FALSE;
    // Deliberate: whether the question was answered is not looked at; unanswered it leaves the 0.
    isWow64Process(processes().GetCurrentProcess(), &emulated);
    return emulated;
}
