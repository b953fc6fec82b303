#pragma once

#include "platform/platform.h"
#include "service/calls.h"

namespace calvix::benchmarks
{

/// The parts of a computer beside the WLAN service, each of which does nothing and succeeds.

class WillingServices final : public platform::ServiceControl
{
public:
    SC_HANDLE OpenSCManagerA(const char*, const char*, DWORD) override;
    SC_HANDLE OpenServiceA(SC_HANDLE, const char*, DWORD) override;
    BOOL QueryServiceStatus(SC_HANDLE, SERVICE_STATUS* status) override;
    BOOL StartServiceA(SC_HANDLE, DWORD, const char**) override;
    BOOL CloseServiceHandle(SC_HANDLE) override;
};

/// Its store has no scheme to list, and an active one all the same.
class WillingPower final : public platform::Power
{
public:
    NTSTATUS CallNtPowerInformation(POWER_INFORMATION_LEVEL, PVOID, ULONG, PVOID output, ULONG size) override;
    BOOLEAN GetActivePwrScheme(UINT* schemeId) override;
    BOOLEAN ReadPwrScheme(UINT, POWER_POLICY* policy) override;
    BOOLEAN WritePwrScheme(UINT*, const wchar_t*, const wchar_t*, POWER_POLICY*) override;
    BOOLEAN SetActivePwrScheme(UINT, GLOBAL_POWER_POLICY*, POWER_POLICY*) override;
    DWORD PowerEnumerate(HKEY, const GUID*, const GUID*, POWER_DATA_ACCESSOR, ULONG, UCHAR*, DWORD*) override;
    DWORD PowerReadFriendlyName(HKEY, const GUID*, const GUID*, const GUID*, UCHAR*, DWORD*) override;
    DWORD PowerGetActiveScheme(HKEY, GUID** scheme) override;
    DWORD PowerDuplicateScheme(HKEY, const GUID*, GUID** duplicate) override;
    DWORD PowerWriteFriendlyName(HKEY, const GUID*, const GUID*, const GUID*, UCHAR*, DWORD) override;
    DWORD PowerWriteACValueIndex(HKEY, const GUID*, const GUID*, const GUID*, DWORD) override;
    DWORD PowerSetActiveScheme(HKEY, const GUID*) override;
    BOOLEAN IsPwrSuspendAllowed() override;
    BOOLEAN IsPwrHibernateAllowed() override;
    BOOLEAN IsPwrShutdownAllowed() override;
    BOOLEAN SetSuspendState(BOOLEAN, BOOLEAN, BOOLEAN) override;
    BOOL IsSystemResumeAutomatic() override;
    void LocalFree(PVOID memory) override;
};

class WillingSecurity final : public platform::Security
{
public:
    BOOL OpenProcessToken(HANDLE, DWORD, HANDLE* token) override;
    BOOL LookupPrivilegeValueA(const char*, const char*, LUID* luid) override;
    BOOL AdjustTokenPrivileges(HANDLE, BOOL, TOKEN_PRIVILEGES*, DWORD, TOKEN_PRIVILEGES*, DWORD*) override;
};

class WillingProcesses final : public platform::Processes
{
public:
    HANDLE GetCurrentProcess() override;
    BOOL CreateProcessA(const char*,
                        char*,
                        SECURITY_ATTRIBUTES*,
                        SECURITY_ATTRIBUTES*,
                        BOOL,
                        DWORD,
                        PVOID,
                        const char*,
                        STARTUPINFOA*,
                        PROCESS_INFORMATION* information) override;
    DWORD WaitForSingleObject(HANDLE, DWORD) override;
    HANDLE OpenProcess(DWORD, BOOL, DWORD) override;
    BOOL TerminateProcess(HANDLE, UINT) override;
    BOOL CloseHandle(HANDLE) override;
    DWORD GetModuleFileNameA(HMODULE, char* fileName, DWORD size) override;
    HMODULE GetModuleHandleA(const char*) override;
    FARPROC GetProcAddress(HMODULE, const char*) override;
};

class WillingInternet final : public platform::Internet
{
public:
    BOOL InternetSetOptionA(HINTERNET, DWORD, PVOID, DWORD) override;
    BOOL InternetCheckConnectionA(const char*, DWORD, DWORD) override;
};

/// Every code page has a byte a character.
class WillingText final : public platform::Text
{
public:
    int MultiByteToWideChar(UINT, DWORD, const char* source, int, wchar_t* destination, int room) override;
    int WideCharToMultiByte(
        UINT, DWORD, const wchar_t* source, int, char* destination, int room, const char*, BOOL*) override;
    int StringFromGUID2(const GUID&, wchar_t* text, int capacity) override;
};

class WillingClock final : public platform::Clock
{
public:
    void Sleep(DWORD) override;
    BOOL FileTimeToSystemTime(const FILETIME*, SYSTEMTIME* systemTime) override;
};

class WillingDebugger final : public platform::DebuggerOutput
{
public:
    void OutputDebugStringA(const char*) override {}
};

class WillingErrors final : public platform::LastError
{
public:
    DWORD GetLastError() override;
};

} // namespace calvix::benchmarks
