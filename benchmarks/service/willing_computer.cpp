#include "service/willing_computer.h"

#include "platform/records/error_numbers.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace calvix::benchmarks
{

namespace
{

int g_anything;

template <typename Handle>
Handle SomeHandle()
{
    return reinterpret_cast<Handle>(&g_anything);
}

BOOL WINAPI SayNotEmulated(HANDLE, BOOL* emulated)
{
    *emulated = FALSE;
    return TRUE;
}

/// The text, terminator included, as far as there is room; with none its size.
template <typename Source, typename Target>
int Copy(const Source* source, Target* destination, int room)
{
    int size = 0;
    do
    {
        if (size < room)
            destination[size] = static_cast<Target>(source[size]);
    } while (source[size++] != 0);
    return size;
}

GUID* NewGuid()
{
    return static_cast<GUID*>(std::calloc(1, sizeof(GUID)));
}

} // namespace

SC_HANDLE WillingServices::OpenSCManagerA(const char*, const char*, DWORD)
{
    Count(Operation::services);
    return SomeHandle<SC_HANDLE>();
}

SC_HANDLE WillingServices::OpenServiceA(SC_HANDLE, const char*, DWORD)
{
    Count(Operation::services);
    return SomeHandle<SC_HANDLE>();
}

BOOL WillingServices::QueryServiceStatus(SC_HANDLE, SERVICE_STATUS* status)
{
    Count(Operation::services);
    status->dwCurrentState = SERVICE_RUNNING;
    return TRUE;
}

BOOL WillingServices::StartServiceA(SC_HANDLE, DWORD, const char**)
{
    Count(Operation::services);
    return TRUE;
}

BOOL WillingServices::CloseServiceHandle(SC_HANDLE)
{
    Count(Operation::services);
    return TRUE;
}

NTSTATUS WillingPower::CallNtPowerInformation(POWER_INFORMATION_LEVEL, PVOID, ULONG, PVOID output, ULONG size)
{
    Count(Operation::power);
    std::memset(output, 0, size);
    return 0;
}

BOOLEAN WillingPower::GetActivePwrScheme(UINT* schemeId)
{
    Count(Operation::power);
    *schemeId = 0;
    return TRUE;
}

BOOLEAN WillingPower::ReadPwrScheme(UINT, POWER_POLICY* policy)
{
    Count(Operation::power);
    std::memset(policy, 0, sizeof(*policy));
    return TRUE;
}

BOOLEAN WillingPower::WritePwrScheme(UINT*, const wchar_t*, const wchar_t*, POWER_POLICY*)
{
    Count(Operation::power);
    return TRUE;
}

BOOLEAN WillingPower::SetActivePwrScheme(UINT, GLOBAL_POWER_POLICY*, POWER_POLICY*)
{
    Count(Operation::power);
    return TRUE;
}

DWORD WillingPower::PowerEnumerate(HKEY, const GUID*, const GUID*, POWER_DATA_ACCESSOR, ULONG, UCHAR*, DWORD*)
{
    Count(Operation::power);
    return ERROR_NO_MORE_ITEMS;
}

DWORD WillingPower::PowerReadFriendlyName(HKEY, const GUID*, const GUID*, const GUID*, UCHAR*, DWORD*)
{
    Count(Operation::power);
    return 0;
}

DWORD WillingPower::PowerGetActiveScheme(HKEY, GUID** scheme)
{
    Count(Operation::power);
    *scheme = NewGuid();
    return 0;
}

DWORD WillingPower::PowerDuplicateScheme(HKEY, const GUID*, GUID** duplicate)
{
    Count(Operation::power);
    *duplicate = NewGuid();
    return 0;
}

DWORD WillingPower::PowerWriteFriendlyName(HKEY, const GUID*, const GUID*, const GUID*, UCHAR*, DWORD)
{
    Count(Operation::power);
    return 0;
}

DWORD WillingPower::PowerWriteACValueIndex(HKEY, const GUID*, const GUID*, const GUID*, DWORD)
{
    Count(Operation::power);
    return 0;
}

DWORD WillingPower::PowerSetActiveScheme(HKEY, const GUID*)
{
    Count(Operation::power);
    return 0;
}

BOOLEAN WillingPower::IsPwrSuspendAllowed()
{
    Count(Operation::power);
    return TRUE;
}

BOOLEAN WillingPower::IsPwrHibernateAllowed()
{
    Count(Operation::power);
    return TRUE;
}

BOOLEAN WillingPower::IsPwrShutdownAllowed()
{
    Count(Operation::power);
    return TRUE;
}

BOOLEAN WillingPower::SetSuspendState(BOOLEAN, BOOLEAN, BOOLEAN)
{
    Count(Operation::power);
    return TRUE;
}

BOOL WillingPower::IsSystemResumeAutomatic()
{
    Count(Operation::power);
    return FALSE;
}

void WillingPower::LocalFree(PVOID memory)
{
    Count(Operation::power);
    std::free(memory);
}

BOOL WillingSecurity::OpenProcessToken(HANDLE, DWORD, HANDLE* token)
{
    Count(Operation::security);
    *token = SomeHandle<HANDLE>();
    return TRUE;
}

BOOL WillingSecurity::LookupPrivilegeValueA(const char*, const char*, LUID* luid)
{
    Count(Operation::security);
    *luid = {};
    return TRUE;
}

BOOL WillingSecurity::AdjustTokenPrivileges(HANDLE, BOOL, TOKEN_PRIVILEGES*, DWORD, TOKEN_PRIVILEGES*, DWORD*)
{
    Count(Operation::security);
    return TRUE;
}

HANDLE WillingProcesses::GetCurrentProcess()
{
    Count(Operation::processes);
    return SomeHandle<HANDLE>();
}

BOOL WillingProcesses::CreateProcessA(const char*,
                                      char*,
                                      SECURITY_ATTRIBUTES*,
                                      SECURITY_ATTRIBUTES*,
                                      BOOL,
                                      DWORD,
                                      PVOID,
                                      const char*,
                                      STARTUPINFOA*,
                                      PROCESS_INFORMATION* information)
{
    Count(Operation::processes);
    *information = {SomeHandle<HANDLE>(), SomeHandle<HANDLE>(), 1, 2};
    return TRUE;
}

DWORD WillingProcesses::WaitForSingleObject(HANDLE, DWORD)
{
    Count(Operation::processes);
    return WAIT_OBJECT_0;
}

HANDLE WillingProcesses::OpenProcess(DWORD, BOOL, DWORD)
{
    Count(Operation::processes);
    return SomeHandle<HANDLE>();
}

BOOL WillingProcesses::TerminateProcess(HANDLE, UINT)
{
    Count(Operation::processes);
    return TRUE;
}

BOOL WillingProcesses::CloseHandle(HANDLE)
{
    Count(Operation::processes);
    return TRUE;
}

DWORD WillingProcesses::GetModuleFileNameA(HMODULE, char* fileName, DWORD size)
{
    Count(Operation::processes);
    constexpr char path[] = "C:\\Program Files\\Host\\host.exe";
    std::memcpy(fileName, path, (std::min)(static_cast<std::size_t>(size), sizeof(path)));
    return sizeof(path) - 1;
}

HMODULE WillingProcesses::GetModuleHandleA(const char*)
{
    Count(Operation::processes);
    return SomeHandle<HMODULE>();
}

FARPROC WillingProcesses::GetProcAddress(HMODULE, const char*)
{
    Count(Operation::processes);
    return reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(&SayNotEmulated));
}

BOOL WillingInternet::InternetSetOptionA(HINTERNET, DWORD, PVOID, DWORD)
{
    Count(Operation::internet);
    return TRUE;
}

BOOL WillingInternet::InternetCheckConnectionA(const char*, DWORD, DWORD)
{
    Count(Operation::internet);
    return TRUE;
}

int WillingText::MultiByteToWideChar(UINT, DWORD, const char* source, int, wchar_t* destination, int room)
{
    Count(Operation::text);
    return Copy(source, destination, room);
}

int WillingText::WideCharToMultiByte(
    UINT, DWORD, const wchar_t* source, int, char* destination, int room, const char*, BOOL*)
{
    Count(Operation::text);
    return Copy(source, destination, room);
}

int WillingText::StringFromGUID2(const GUID&, wchar_t* text, int capacity)
{
    Count(Operation::text);
    return Copy(L"{00000000-0000-0000-0000-000000000000}", text, capacity);
}

void WillingClock::Sleep(DWORD)
{
    Count(Operation::sleep);
}

BOOL WillingClock::FileTimeToSystemTime(const FILETIME*, SYSTEMTIME* systemTime)
{
    Count(Operation::time);
    *systemTime = {};
    return TRUE;
}

DWORD WillingErrors::GetLastError()
{
    Count(Operation::lastError);
    return 0;
}

} // namespace calvix::benchmarks
