#pragma once

#include "platform/operation.h"
#include "platform/records/system_records.h"

namespace calvix::platform
{

/// Processes, modules and the handles that belong to them.
struct Processes
{
    Operation<HANDLE()> GetCurrentProcess;
    Operation<BOOL(const char* application,
                   char* commandLine,
                   SECURITY_ATTRIBUTES* processAttributes,
                   SECURITY_ATTRIBUTES* threadAttributes,
                   BOOL inheritHandles,
                   DWORD creationFlags,
                   PVOID environment,
                   const char* currentDirectory,
                   STARTUPINFOA* startup,
                   PROCESS_INFORMATION* information)>
        CreateProcessA;
    Operation<DWORD(HANDLE handle, DWORD milliseconds)> WaitForSingleObject;
    Operation<HANDLE(DWORD access, BOOL inheritHandle, DWORD processId)> OpenProcess;
    Operation<BOOL(HANDLE process, UINT exitCode)> TerminateProcess;
    Operation<BOOL(HANDLE handle)> CloseHandle;
    Operation<DWORD(HMODULE module, char* fileName, DWORD size)> GetModuleFileNameA;
    Operation<HMODULE(const char* moduleName)> GetModuleHandleA;
    Operation<FARPROC(HMODULE module, const char* name)> GetProcAddress;
};

} // namespace calvix::platform
