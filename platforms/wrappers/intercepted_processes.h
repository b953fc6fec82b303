#pragma once

#include "platform/processes.h"
#include "platform/security.h"
#include "platform/service_control.h"
#include "wrappers/interception_point.h"

namespace calvix::wrappers
{

class InterceptedServiceControl final : public platform::ServiceControl
{
public:
    InterceptedServiceControl(platform::ServiceControl& inner, InterceptionPoint& point)
        : m_inner(inner), m_point(point)
    {
    }

    SC_HANDLE OpenSCManagerA(const char* machine, const char* database, DWORD access) override;
    SC_HANDLE OpenServiceA(SC_HANDLE manager, const char* name, DWORD access) override;
    BOOL QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status) override;
    BOOL StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments) override;
    BOOL CloseServiceHandle(SC_HANDLE handle) override;

private:
    platform::ServiceControl& m_inner;
    InterceptionPoint& m_point;
};

class InterceptedProcesses : public platform::Processes
{
public:
    InterceptedProcesses(platform::Processes& inner, InterceptionPoint& point) : m_inner(inner), m_point(point) {}

    HANDLE GetCurrentProcess() override;
    BOOL CreateProcessA(const char* application,
                        char* commandLine,
                        SECURITY_ATTRIBUTES* processAttributes,
                        SECURITY_ATTRIBUTES* threadAttributes,
                        BOOL inheritHandles,
                        DWORD creationFlags,
                        PVOID environment,
                        const char* currentDirectory,
                        STARTUPINFOA* startup,
                        PROCESS_INFORMATION* information) override;
    DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds) override;
    HANDLE OpenProcess(DWORD access, BOOL inheritHandle, DWORD processId) override;
    BOOL TerminateProcess(HANDLE process, UINT exitCode) override;
    BOOL CloseHandle(HANDLE handle) override;
    DWORD GetModuleFileNameA(HMODULE module, char* fileName, DWORD size) override;
    HMODULE GetModuleHandleA(const char* moduleName) override;
    FARPROC GetProcAddress(HMODULE module, const char* name) override;

private:
    platform::Processes& m_inner;
    InterceptionPoint& m_point;
};

class InterceptedSecurity final : public platform::Security
{
public:
    InterceptedSecurity(platform::Security& inner, InterceptionPoint& point) : m_inner(inner), m_point(point) {}

    BOOL OpenProcessToken(HANDLE process, DWORD access, HANDLE* token) override;
    BOOL LookupPrivilegeValueA(const char* system, const char* name, LUID* luid) override;
    BOOL AdjustTokenPrivileges(HANDLE token,
                               BOOL disableAll,
                               TOKEN_PRIVILEGES* newState,
                               DWORD previousSize,
                               TOKEN_PRIVILEGES* previous,
                               DWORD* returnLength) override;

private:
    platform::Security& m_inner;
    InterceptionPoint& m_point;
};

} // namespace calvix::wrappers
