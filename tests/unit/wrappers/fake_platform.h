#pragma once

#include "platform/platform.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace calvix::test
{

/// A provider behind which there is nothing: every call is noted by name, succeeds, and answers with a number of its
/// own (error numbers and NTSTATUS included), so that a forwarding layer can be seen to forward to the right operation.
struct FakeAnswers
{
    std::vector<std::string> called;
    long long number = 0; ///< of the last call, from 1

    template <typename Result>
    Result Answer(const char* operation)
    {
        called.emplace_back(operation);
        ++number;
        if constexpr (std::is_pointer_v<Result>)
            return reinterpret_cast<Result>(static_cast<std::intptr_t>(0x1000 + number));
        else
            return static_cast<Result>(number);
    }
};

class FakeWlanService final : public platform::WlanService
{
public:
    explicit FakeWlanService(FakeAnswers& answers) : m_answers(answers) {}

    DWORD WlanOpenHandle(DWORD, PVOID, DWORD*, HANDLE*) override { return m_answers.Answer<DWORD>("WlanOpenHandle"); }
    DWORD WlanCloseHandle(HANDLE, PVOID) override { return m_answers.Answer<DWORD>("WlanCloseHandle"); }
    DWORD WlanEnumInterfaces(HANDLE, PVOID, WLAN_INTERFACE_INFO_LIST**) override
    {
        return m_answers.Answer<DWORD>("WlanEnumInterfaces");
    }
    DWORD WlanScan(HANDLE, const GUID*, const DOT11_SSID*, const WLAN_RAW_DATA*, PVOID) override
    {
        return m_answers.Answer<DWORD>("WlanScan");
    }
    DWORD WlanGetAvailableNetworkList(HANDLE, const GUID*, DWORD, PVOID, WLAN_AVAILABLE_NETWORK_LIST**) override
    {
        return m_answers.Answer<DWORD>("WlanGetAvailableNetworkList");
    }
    DWORD
    WlanGetNetworkBssList(HANDLE, const GUID*, const DOT11_SSID*, DOT11_BSS_TYPE, BOOL, PVOID, WLAN_BSS_LIST**) override
    {
        return m_answers.Answer<DWORD>("WlanGetNetworkBssList");
    }
    DWORD
    WlanQueryInterface(HANDLE, const GUID*, WLAN_INTF_OPCODE, PVOID, DWORD*, PVOID*, WLAN_OPCODE_VALUE_TYPE*) override
    {
        return m_answers.Answer<DWORD>("WlanQueryInterface");
    }
    DWORD WlanSetInterface(HANDLE, const GUID*, WLAN_INTF_OPCODE, DWORD, const void*, PVOID) override
    {
        return m_answers.Answer<DWORD>("WlanSetInterface");
    }
    DWORD
    WlanQueryAutoConfigParameter(HANDLE, WLAN_AUTOCONF_OPCODE, PVOID, DWORD*, PVOID*, WLAN_OPCODE_VALUE_TYPE*) override
    {
        return m_answers.Answer<DWORD>("WlanQueryAutoConfigParameter");
    }
    DWORD WlanGetProfileList(HANDLE, const GUID*, PVOID, WLAN_PROFILE_INFO_LIST**) override
    {
        return m_answers.Answer<DWORD>("WlanGetProfileList");
    }
    DWORD WlanGetProfile(HANDLE, const GUID*, const wchar_t*, PVOID, wchar_t**, DWORD*, DWORD*) override
    {
        return m_answers.Answer<DWORD>("WlanGetProfile");
    }
    DWORD WlanSetProfile(HANDLE, const GUID*, DWORD, const wchar_t*, const wchar_t*, BOOL, PVOID, DWORD*) override
    {
        return m_answers.Answer<DWORD>("WlanSetProfile");
    }
    DWORD WlanDeleteProfile(HANDLE, const GUID*, const wchar_t*, PVOID) override
    {
        return m_answers.Answer<DWORD>("WlanDeleteProfile");
    }
    DWORD WlanSetProfilePosition(HANDLE, const GUID*, const wchar_t*, DWORD, PVOID) override
    {
        return m_answers.Answer<DWORD>("WlanSetProfilePosition");
    }
    DWORD WlanConnect(HANDLE, const GUID*, const WLAN_CONNECTION_PARAMETERS*, PVOID) override
    {
        return m_answers.Answer<DWORD>("WlanConnect");
    }
    DWORD WlanDisconnect(HANDLE, const GUID*, PVOID) override { return m_answers.Answer<DWORD>("WlanDisconnect"); }
    DWORD WlanRegisterNotification(HANDLE, DWORD, BOOL, WLAN_NOTIFICATION_CALLBACK, PVOID, PVOID, DWORD*) override
    {
        return m_answers.Answer<DWORD>("WlanRegisterNotification");
    }
    DWORD WlanIhvControl(HANDLE, const GUID*, WLAN_IHV_CONTROL_TYPE, DWORD, PVOID, DWORD, PVOID, DWORD*) override
    {
        return m_answers.Answer<DWORD>("WlanIhvControl");
    }
    DWORD WlanSetSecuritySettings(HANDLE, WLAN_SECURABLE_OBJECT, const wchar_t*) override
    {
        return m_answers.Answer<DWORD>("WlanSetSecuritySettings");
    }
    DWORD WlanReasonCodeToString(DWORD, DWORD, wchar_t*, PVOID) override
    {
        return m_answers.Answer<DWORD>("WlanReasonCodeToString");
    }
    void WlanFreeMemory(PVOID) override { m_answers.Answer<int>("WlanFreeMemory"); }

private:
    FakeAnswers& m_answers;
};

class FakeServiceControl final : public platform::ServiceControl
{
public:
    explicit FakeServiceControl(FakeAnswers& answers) : m_answers(answers) {}

    SC_HANDLE OpenSCManagerA(const char*, const char*, DWORD) override
    {
        return m_answers.Answer<SC_HANDLE>("OpenSCManagerA");
    }
    SC_HANDLE OpenServiceA(SC_HANDLE, const char*, DWORD) override
    {
        return m_answers.Answer<SC_HANDLE>("OpenServiceA");
    }
    BOOL QueryServiceStatus(SC_HANDLE, SERVICE_STATUS*) override
    {
        return m_answers.Answer<BOOL>("QueryServiceStatus");
    }
    BOOL StartServiceA(SC_HANDLE, DWORD, const char**) override { return m_answers.Answer<BOOL>("StartServiceA"); }
    BOOL CloseServiceHandle(SC_HANDLE) override { return m_answers.Answer<BOOL>("CloseServiceHandle"); }

private:
    FakeAnswers& m_answers;
};

class FakePower final : public platform::Power
{
public:
    explicit FakePower(FakeAnswers& answers) : m_answers(answers) {}

    NTSTATUS CallNtPowerInformation(POWER_INFORMATION_LEVEL, PVOID, ULONG, PVOID, ULONG) override
    {
        return m_answers.Answer<NTSTATUS>("CallNtPowerInformation");
    }
    BOOLEAN GetActivePwrScheme(UINT*) override { return m_answers.Answer<BOOLEAN>("GetActivePwrScheme"); }
    BOOLEAN ReadPwrScheme(UINT, POWER_POLICY*) override { return m_answers.Answer<BOOLEAN>("ReadPwrScheme"); }
    BOOLEAN WritePwrScheme(UINT*, const wchar_t*, const wchar_t*, POWER_POLICY*) override
    {
        return m_answers.Answer<BOOLEAN>("WritePwrScheme");
    }
    BOOLEAN SetActivePwrScheme(UINT, GLOBAL_POWER_POLICY*, POWER_POLICY*) override
    {
        return m_answers.Answer<BOOLEAN>("SetActivePwrScheme");
    }
    DWORD PowerEnumerate(HKEY, const GUID*, const GUID*, POWER_DATA_ACCESSOR, ULONG, UCHAR*, DWORD*) override
    {
        return m_answers.Answer<DWORD>("PowerEnumerate");
    }
    DWORD PowerReadFriendlyName(HKEY, const GUID*, const GUID*, const GUID*, UCHAR*, DWORD*) override
    {
        return m_answers.Answer<DWORD>("PowerReadFriendlyName");
    }
    DWORD PowerGetActiveScheme(HKEY, GUID**) override { return m_answers.Answer<DWORD>("PowerGetActiveScheme"); }
    DWORD PowerDuplicateScheme(HKEY, const GUID*, GUID**) override
    {
        return m_answers.Answer<DWORD>("PowerDuplicateScheme");
    }
    DWORD PowerWriteFriendlyName(HKEY, const GUID*, const GUID*, const GUID*, UCHAR*, DWORD) override
    {
        return m_answers.Answer<DWORD>("PowerWriteFriendlyName");
    }
    DWORD PowerWriteACValueIndex(HKEY, const GUID*, const GUID*, const GUID*, DWORD) override
    {
        return m_answers.Answer<DWORD>("PowerWriteACValueIndex");
    }
    DWORD PowerSetActiveScheme(HKEY, const GUID*) override { return m_answers.Answer<DWORD>("PowerSetActiveScheme"); }
    BOOLEAN IsPwrSuspendAllowed() override { return m_answers.Answer<BOOLEAN>("IsPwrSuspendAllowed"); }
    BOOLEAN IsPwrHibernateAllowed() override { return m_answers.Answer<BOOLEAN>("IsPwrHibernateAllowed"); }
    BOOLEAN IsPwrShutdownAllowed() override { return m_answers.Answer<BOOLEAN>("IsPwrShutdownAllowed"); }
    BOOLEAN SetSuspendState(BOOLEAN, BOOLEAN, BOOLEAN) override { return m_answers.Answer<BOOLEAN>("SetSuspendState"); }
    BOOL IsSystemResumeAutomatic() override { return m_answers.Answer<BOOL>("IsSystemResumeAutomatic"); }
    void LocalFree(PVOID) override { m_answers.Answer<int>("LocalFree"); }

private:
    FakeAnswers& m_answers;
};

class FakeSecurity final : public platform::Security
{
public:
    explicit FakeSecurity(FakeAnswers& answers) : m_answers(answers) {}

    BOOL OpenProcessToken(HANDLE, DWORD, HANDLE*) override { return m_answers.Answer<BOOL>("OpenProcessToken"); }
    BOOL LookupPrivilegeValueA(const char*, const char*, LUID*) override
    {
        return m_answers.Answer<BOOL>("LookupPrivilegeValueA");
    }
    BOOL AdjustTokenPrivileges(HANDLE, BOOL, TOKEN_PRIVILEGES*, DWORD, TOKEN_PRIVILEGES*, DWORD*) override
    {
        return m_answers.Answer<BOOL>("AdjustTokenPrivileges");
    }

private:
    FakeAnswers& m_answers;
};

class FakeProcesses final : public platform::Processes
{
public:
    explicit FakeProcesses(FakeAnswers& answers) : m_answers(answers) {}

    HANDLE GetCurrentProcess() override { return m_answers.Answer<HANDLE>("GetCurrentProcess"); }
    BOOL CreateProcessA(const char*,
                        char*,
                        SECURITY_ATTRIBUTES*,
                        SECURITY_ATTRIBUTES*,
                        BOOL,
                        DWORD,
                        PVOID,
                        const char*,
                        STARTUPINFOA*,
                        PROCESS_INFORMATION*) override
    {
        return m_answers.Answer<BOOL>("CreateProcessA");
    }
    DWORD WaitForSingleObject(HANDLE, DWORD) override { return m_answers.Answer<DWORD>("WaitForSingleObject"); }
    HANDLE OpenProcess(DWORD, BOOL, DWORD) override { return m_answers.Answer<HANDLE>("OpenProcess"); }
    BOOL TerminateProcess(HANDLE, UINT) override { return m_answers.Answer<BOOL>("TerminateProcess"); }
    BOOL CloseHandle(HANDLE) override { return m_answers.Answer<BOOL>("CloseHandle"); }
    DWORD GetModuleFileNameA(HMODULE, char*, DWORD) override { return m_answers.Answer<DWORD>("GetModuleFileNameA"); }
    HMODULE GetModuleHandleA(const char*) override { return m_answers.Answer<HMODULE>("GetModuleHandleA"); }
    FARPROC GetProcAddress(HMODULE, const char*) override { return m_answers.Answer<FARPROC>("GetProcAddress"); }

private:
    FakeAnswers& m_answers;
};

class FakeInternet final : public platform::Internet
{
public:
    explicit FakeInternet(FakeAnswers& answers) : m_answers(answers) {}

    BOOL InternetSetOptionA(HINTERNET, DWORD, PVOID, DWORD) override
    {
        return m_answers.Answer<BOOL>("InternetSetOptionA");
    }
    BOOL InternetCheckConnectionA(const char*, DWORD, DWORD) override
    {
        return m_answers.Answer<BOOL>("InternetCheckConnectionA");
    }

private:
    FakeAnswers& m_answers;
};

class FakeText final : public platform::Text
{
public:
    explicit FakeText(FakeAnswers& answers) : m_answers(answers) {}

    int MultiByteToWideChar(UINT, DWORD, const char*, int, wchar_t*, int) override
    {
        return m_answers.Answer<int>("MultiByteToWideChar");
    }
    int WideCharToMultiByte(UINT, DWORD, const wchar_t*, int, char*, int, const char*, BOOL*) override
    {
        return m_answers.Answer<int>("WideCharToMultiByte");
    }
    int StringFromGUID2(const GUID&, wchar_t*, int) override { return m_answers.Answer<int>("StringFromGUID2"); }

private:
    FakeAnswers& m_answers;
};

class FakeClock final : public platform::Clock
{
public:
    explicit FakeClock(FakeAnswers& answers) : m_answers(answers) {}

    void Sleep(DWORD) override { m_answers.Answer<int>("Sleep"); }
    BOOL FileTimeToSystemTime(const FILETIME*, SYSTEMTIME*) override
    {
        return m_answers.Answer<BOOL>("FileTimeToSystemTime");
    }

private:
    FakeAnswers& m_answers;
};

class FakeDebuggerOutput final : public platform::DebuggerOutput
{
public:
    explicit FakeDebuggerOutput(FakeAnswers& answers) : m_answers(answers) {}

    void OutputDebugStringA(const char*) override { m_answers.Answer<int>("OutputDebugStringA"); }

private:
    FakeAnswers& m_answers;
};

class FakeLastError final : public platform::LastError
{
public:
    explicit FakeLastError(FakeAnswers& answers) : m_answers(answers) {}

    DWORD GetLastError() override { return m_answers.Answer<DWORD>("GetLastError"); }

private:
    FakeAnswers& m_answers;
};

class FakePlatform final : public platform::Platform
{
public:
    platform::WlanService& wlan() override { return m_wlan; }
    platform::ServiceControl& services() override { return m_services; }
    platform::Power& power() override { return m_power; }
    platform::Security& security() override { return m_security; }
    platform::Processes& processes() override { return m_processes; }
    platform::Internet& internet() override { return m_internet; }
    platform::Text& text() override { return m_text; }
    platform::Clock& clock() override { return m_clock; }
    platform::DebuggerOutput& debugger() override { return m_debugger; }
    platform::LastError& errors() override { return m_errors; }

    std::vector<std::string>& called() { return m_answers.called; }
    long long number() const { return m_answers.number; }

private:
    FakeAnswers m_answers;
    FakeWlanService m_wlan{m_answers};
    FakeServiceControl m_services{m_answers};
    FakePower m_power{m_answers};
    FakeSecurity m_security{m_answers};
    FakeProcesses m_processes{m_answers};
    FakeInternet m_internet{m_answers};
    FakeText m_text{m_answers};
    FakeClock m_clock{m_answers};
    FakeDebuggerOutput m_debugger{m_answers};
    FakeLastError m_errors{m_answers};
};

} // namespace calvix::test
