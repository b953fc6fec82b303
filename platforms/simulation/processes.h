#pragma once

#include "platform/processes.h"
#include "simulation/last_error_cell.h"

namespace calvix::simulation
{

/// Processes and modules: this part of the machine is not furnished yet. Every operation fails with
/// ERROR_CALL_NOT_IMPLEMENTED, GetProcAddress with ERROR_PROC_NOT_FOUND.
class SimulatedProcesses final : public platform::Processes
{
public:
    /// `lastError` receives the reason of a failure; it outlives this object.
    explicit SimulatedProcesses(LastErrorCell& lastError) : m_lastError(lastError) {}

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
    BOOL Refuse();

    LastErrorCell& m_lastError;
};

} // namespace calvix::simulation
