#include "simulation/processes.h"

#include "platform/records/error_numbers.h"

namespace calvix::simulation
{

BOOL SimulatedProcesses::Refuse()
{
    m_lastError = ERROR_CALL_NOT_IMPLEMENTED;
    return FALSE;
}

HANDLE SimulatedProcesses::GetCurrentProcess()
{
    // A constant on the platform, which is why it has no way to fail.
    return reinterpret_cast<HANDLE>(~UINT_PTR{0});
}

BOOL SimulatedProcesses::CreateProcessA(const char*,
                                        char*,
                                        SECURITY_ATTRIBUTES*,
                                        SECURITY_ATTRIBUTES*,
                                        BOOL,
                                        DWORD,
                                        PVOID,
                                        const char*,
                                        STARTUPINFOA*,
                                        PROCESS_INFORMATION*)
{
    return Refuse();
}

DWORD SimulatedProcesses::WaitForSingleObject(HANDLE, DWORD)
{
    Refuse();
    return WAIT_FAILED;
}

HANDLE SimulatedProcesses::OpenProcess(DWORD, BOOL, DWORD)
{
    Refuse();
    return nullptr;
}

BOOL SimulatedProcesses::TerminateProcess(HANDLE, UINT)
{
    return Refuse();
}

BOOL SimulatedProcesses::CloseHandle(HANDLE)
{
    return Refuse();
}

DWORD SimulatedProcesses::GetModuleFileNameA(HMODULE, char*, DWORD)
{
    Refuse();
    return 0;
}

HMODULE SimulatedProcesses::GetModuleHandleA(const char*)
{
    Refuse();
    return nullptr;
}

FARPROC SimulatedProcesses::GetProcAddress(HMODULE, const char*)
{
    // No module has been loaded, so none has any procedure.
    m_lastError = ERROR_PROC_NOT_FOUND;
    return nullptr;
}

} // namespace calvix::simulation
