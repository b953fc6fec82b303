#include "direct/hand_written.h"

#include <cstdio>
#include <cstring>

namespace calvix::benchmarks
{

using namespace platform;

namespace
{

template <typename Record>
NTSTATUS Ask(POWER_INFORMATION_LEVEL level, Record& record)
{
    return power().CallNtPowerInformation(level, nullptr, 0, &record, sizeof(record));
}

bool Run(const char* application, char* commandLine)
{
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION information{};
    if (!processes().CreateProcessA(application, commandLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                                    &information))
        return false;
    processes().WaitForSingleObject(information.hProcess, INFINITE);
    processes().CloseHandle(information.hProcess);
    processes().CloseHandle(information.hThread);
    return true;
}

bool PutInForce(UINT scheme, POWER_POLICY& policy)
{
    return power().WritePwrScheme(&scheme, nullptr, nullptr, &policy) &&
           power().SetActivePwrScheme(scheme, nullptr, &policy);
}

bool WriteTimeouts(const GUID* scheme)
{
    return power().PowerWriteACValueIndex(nullptr, scheme, &power_guid::sleep_subgroup, &power_guid::standby_timeout,
                                          1) == 0 &&
           power().PowerWriteACValueIndex(nullptr, scheme, &power_guid::sleep_subgroup,
                                          &power_guid::unattend_sleep_timeout, 2) == 0;
}

} // namespace

int HandWritten::GetPrivileges()
{
    HANDLE token = nullptr;
    if (!security().OpenProcessToken(processes().GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token))
        return 0;
    TOKEN_PRIVILEGES wanted{};
    TOKEN_PRIVILEGES previous{};
    DWORD length = 0;
    wanted.PrivilegeCount = 1;
    wanted.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    const bool adjusted =
        security().LookupPrivilegeValueA(nullptr, "SeShutdownPrivilege", &wanted.Privileges[0].Luid) &&
        security().AdjustTokenPrivileges(token, FALSE, &wanted, sizeof(previous), &previous, &length);
    processes().CloseHandle(token);
    return adjusted ? 1 : 0;
}

bool HandWritten::EnablePriviledge(const char* name)
{
    HANDLE token = nullptr;
    if (!security().OpenProcessToken(processes().GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token))
        return true;
    TOKEN_PRIVILEGES wanted{};
    wanted.PrivilegeCount = 1;
    wanted.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    bool enabled = true;
    if (security().LookupPrivilegeValueA(nullptr, name, &wanted.Privileges[0].Luid))
    {
        security().AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr);
        enabled = errors().GetLastError() == 0;
    }
    processes().CloseHandle(token);
    return enabled;
}

int HandWritten::ForceComputerSleep()
{
    return power().SetSuspendState(FALSE, TRUE, FALSE);
}

long HandWritten::SetPowerScheme()
{
    UINT scheme = 0;
    POWER_POLICY policy{};
    if (!power().IsPwrSuspendAllowed() || !power().GetActivePwrScheme(&scheme) ||
        !power().ReadPwrScheme(scheme, &policy))
        return -1;
    m_policy = policy;
    policy.user.IdleTimeoutAc = 0;
    policy.user.IdleTimeoutDc = 0;
    return PutInForce(scheme, policy) ? 0 : -4;
}

long HandWritten::ResetPowerScheme()
{
    UINT scheme = 0;
    POWER_POLICY policy = m_policy;
    if (!power().IsPwrSuspendAllowed() || !power().GetActivePwrScheme(&scheme))
        return -1;
    return PutInForce(scheme, policy) ? 0 : -3;
}

long HandWritten::GetPowerScheme()
{
    GUID first{};
    DWORD size = sizeof(first);
    while (power().PowerEnumerate(nullptr, nullptr, nullptr, ACCESS_SCHEME, 0, reinterpret_cast<UCHAR*>(&first),
                                  &size) == 0)
    {
        alignas(wchar_t) UCHAR name[1024];
        DWORD nameSize = sizeof(name);
        power().PowerReadFriendlyName(nullptr, &first, nullptr, nullptr, name, &nameSize);
        size = sizeof(first);
    }
    GUID* active = nullptr;
    GUID* copy = nullptr;
    long result = -1;
    if (power().PowerGetActiveScheme(nullptr, &active) == 0)
    {
        result = -2;
        if (power().PowerDuplicateScheme(nullptr, active, &copy) == 0)
        {
            UCHAR name[260] = "Super energy-saving";
            const bool written =
                power().PowerWriteFriendlyName(nullptr, copy, nullptr, nullptr, name, sizeof(name)) == 0 &&
                WriteTimeouts(copy);
            result = !written ? -3 : power().PowerSetActiveScheme(nullptr, copy) == 0 ? 0 : -5;
        }
        power().LocalFree(copy);
    }
    power().LocalFree(active);
    return result;
}

int HandWritten::IsSurpportAoAc()
{
    SYSTEM_POWER_CAPABILITIES capabilities{};
    Ask(SystemPowerCapabilities, capabilities);
    return AoAcOf(capabilities);
}

unsigned long long HandWritten::GetLastWakeTime()
{
    unsigned long long time = 0;
    Ask(LastWakeTime, time);
    return time;
}

unsigned long long HandWritten::GetLastSleepTime()
{
    unsigned long long time = 0;
    Ask(LastSleepTime, time);
    return time;
}

long HandWritten::GetSystemPowerPolicy()
{
    SYSTEM_POWER_POLICY mains{};
    SYSTEM_POWER_POLICY battery{};
    Ask(SystemPowerPolicyAc, mains);
    return Ask(SystemPowerPolicyDc, battery);
}

int HandWritten::IsPowerHibernateAllowed()
{
    power().IsPwrHibernateAllowed();
    power().IsPwrShutdownAllowed();
    power().IsPwrSuspendAllowed();
    return power().IsSystemResumeAutomatic();
}

int HandWritten::IsWow64()
{
    using Function = BOOL(WINAPI*)(HANDLE, BOOL*);
    const FARPROC address = processes().GetProcAddress(processes().GetModuleHandleA("kernel32"), "IsWow64Process");
    if (address == nullptr)
        return 0;
    BOOL emulated = FALSE;
    reinterpret_cast<Function>(reinterpret_cast<void (*)()>(address))(processes().GetCurrentProcess(), &emulated);
    return emulated;
}

void HandWritten::CloseProcess(unsigned long processId)
{
    const HANDLE process = processes().OpenProcess(PROCESS_TERMINATE, TRUE, processId);
    processes().TerminateProcess(process, 0);
    processes().CloseHandle(process);
}

void HandWritten::CreateProcRunCmd(char* commandLine)
{
    Run(nullptr, commandLine);
}

int HandWritten::CreateProcRunExe(char* fileName)
{
    char path[1024];
    std::snprintf(path, sizeof(path), "%s%s", GetAppPath(), fileName);
    return Run(path, nullptr) ? 1 : 0;
}

char* HandWritten::GetAppPath()
{
    processes().GetModuleFileNameA(nullptr, m_folder, sizeof(m_folder));
    if (char* const lastBackslash = std::strrchr(m_folder, '\\'))
        lastBackslash[1] = '\0';
    return m_folder;
}

long HandWritten::OpenUrl()
{
    DWORD timeout = 3000;
    internet().InternetSetOptionA(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &timeout, sizeof(timeout));
    return internet().InternetCheckConnectionA("https://www.example.com/", FLAG_ICC_FORCE_CONNECTION, 0) ? 0 : -1;
}

} // namespace calvix::benchmarks
