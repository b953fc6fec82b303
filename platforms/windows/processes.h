#pragma once

#include "platform/processes.h"

namespace calvix::windows
{

/// Processes, modules and their handles.
class Processes final : public platform::Processes
{
public:
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
};

} // namespace calvix::windows
