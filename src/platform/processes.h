#pragma once

#include "platform/records/process_records.h"

namespace calvix::platform
{

/// Processes, modules and the handles that belong to them.
class Processes
{
public:
    virtual ~Processes() = default;

    virtual HANDLE GetCurrentProcess() = 0;
    virtual BOOL CreateProcessA(const char* application,
                                char* commandLine,
                                SECURITY_ATTRIBUTES* processAttributes,
                                SECURITY_ATTRIBUTES* threadAttributes,
                                BOOL inheritHandles,
                                DWORD creationFlags,
                                PVOID environment,
                                const char* currentDirectory,
                                STARTUPINFOA* startup,
                                PROCESS_INFORMATION* information) = 0;
    virtual DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds) = 0;
    virtual HANDLE OpenProcess(DWORD access, BOOL inheritHandle, DWORD processId) = 0;
    virtual BOOL TerminateProcess(HANDLE process, UINT exitCode) = 0;
    virtual BOOL CloseHandle(HANDLE handle) = 0;
    virtual DWORD GetModuleFileNameA(HMODULE module, char* fileName, DWORD size) = 0;
    virtual HMODULE GetModuleHandleA(const char* moduleName) = 0;
    virtual FARPROC GetProcAddress(HMODULE module, const char* name) = 0;
};

} // namespace calvix::platform
