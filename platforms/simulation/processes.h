#pragma once

#include "platform/processes.h"
#include "simulation/facility.h"

#include <optional>
#include <string>

namespace calvix::simulation
{

/// Processes and modules. A process is a span of simulated time and an exit code; waiting for one lets that time pass.
class SimulatedProcesses final : Facility
{
public:
    using Facility::Facility;

    HANDLE GetCurrentProcess();
    BOOL CreateProcessA(const char* application,
                        char* commandLine,
                        SECURITY_ATTRIBUTES* processAttributes,
                        SECURITY_ATTRIBUTES* threadAttributes,
                        BOOL inheritHandles,
                        DWORD creationFlags,
                        PVOID environment,
                        const char* currentDirectory,
                        STARTUPINFOA* startup,
                        PROCESS_INFORMATION* information);
    DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds);
    HANDLE OpenProcess(DWORD access, BOOL inheritHandle, DWORD processId);
    BOOL TerminateProcess(HANDLE process, UINT exitCode);
    BOOL CloseHandle(HANDLE handle);
    DWORD GetModuleFileNameA(HMODULE module, char* fileName, DWORD size);
    HMODULE GetModuleHandleA(const char* moduleName);
    FARPROC GetProcAddress(HMODULE module, const char* name);

private:
    /// How long a wait takes and how it ends.
    struct Wait
    {
        std::chrono::milliseconds duration{0};
        DWORD result = WAIT_OBJECT_0;
    };

    const Program* FindProgram(const std::string& name) const;
    const Program* FindCommand(const std::string& commandLine) const;
    HANDLE OpenHandle(HandleKind kind, DWORD processId, DWORD rights);
    DWORD OpeningError(DWORD processId);
    DWORD PlanWait(HANDLE handle, DWORD milliseconds, Wait& wait);
    std::optional<std::string> ModulePath(HMODULE module) const;
};

} // namespace calvix::simulation
