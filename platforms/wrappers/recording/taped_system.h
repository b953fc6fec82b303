#pragma once

#include "platform/processes.h"
#include "platform/security.h"
#include "platform/service_control.h"
#include "wrappers/recording/tape.h"

namespace calvix::recording
{

class TapedServiceControl final : public platform::ServiceControl
{
public:
    TapedServiceControl(Tape& tape, platform::ServiceControl* inner) : m_tape(tape), m_inner(inner) {}

    SC_HANDLE OpenSCManagerA(const char* machine, const char* database, DWORD access) override;
    SC_HANDLE OpenServiceA(SC_HANDLE manager, const char* name, DWORD access) override;
    BOOL QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status) override;
    BOOL StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments) override;
    BOOL CloseServiceHandle(SC_HANDLE handle) override;

private:
    Tape& m_tape;
    platform::ServiceControl* m_inner;
};

class TapedProcesses final : public platform::Processes
{
public:
    TapedProcesses(Tape& tape, platform::Processes* inner) : m_tape(tape), m_inner(inner) {}

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
    Tape& m_tape;
    platform::Processes* m_inner;
};

class TapedSecurity final : public platform::Security
{
public:
    TapedSecurity(Tape& tape, platform::Security* inner) : m_tape(tape), m_inner(inner) {}

    BOOL OpenProcessToken(HANDLE process, DWORD access, HANDLE* token) override;
    BOOL LookupPrivilegeValueA(const char* system, const char* name, LUID* luid) override;
    BOOL AdjustTokenPrivileges(HANDLE token,
                               BOOL disableAll,
                               TOKEN_PRIVILEGES* newState,
                               DWORD previousSize,
                               TOKEN_PRIVILEGES* previous,
                               DWORD* returnLength) override;

private:
    Tape& m_tape;
    platform::Security* m_inner;
};

} // namespace calvix::recording
