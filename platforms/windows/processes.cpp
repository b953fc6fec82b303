#include "windows/processes.h"

namespace calvix::windows
{

HANDLE Processes::GetCurrentProcess()
{
    return ::GetCurrentProcess();
}

BOOL Processes::CreateProcessA(const char* application,
                               char* commandLine,
                               SECURITY_ATTRIBUTES* processAttributes,
                               SECURITY_ATTRIBUTES* threadAttributes,
                               BOOL inheritHandles,
                               DWORD creationFlags,
                               PVOID environment,
                               const char* currentDirectory,
                               STARTUPINFOA* startup,
                               PROCESS_INFORMATION* information)
{
    return ::CreateProcessA(application, commandLine, processAttributes, threadAttributes, inheritHandles,
                            creationFlags, environment, currentDirectory, startup, information);
}

DWORD Processes::WaitForSingleObject(HANDLE handle, DWORD milliseconds)
{
    return ::WaitForSingleObject(handle, milliseconds);
}

HANDLE Processes::OpenProcess(DWORD access, BOOL inheritHandle, DWORD processId)
{
    return ::OpenProcess(access, inheritHandle, processId);
}

BOOL Processes::TerminateProcess(HANDLE process, UINT exitCode)
{
    return ::TerminateProcess(process, exitCode);
}

BOOL Processes::CloseHandle(HANDLE handle)
{
    return ::CloseHandle(handle);
}

DWORD Processes::GetModuleFileNameA(HMODULE module, char* fileName, DWORD size)
{
    return ::GetModuleFileNameA(module, fileName, size);
}

HMODULE Processes::GetModuleHandleA(const char* moduleName)
{
    return ::GetModuleHandleA(moduleName);
}

FARPROC Processes::GetProcAddress(HMODULE module, const char* name)
{
    return ::GetProcAddress(module, name);
}

} // namespace calvix::windows
