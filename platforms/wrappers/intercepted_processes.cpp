#include "wrappers/intercepted_processes.h"

#include "wrappers/argument_texts.h"

namespace calvix::wrappers
{

using namespace argument;

namespace
{

Handle Service(std::string_view name, SC_HANDLE handle)
{
    return {name, HandleFamily::service, handle};
}

Handle Object(std::string_view name, HANDLE handle)
{
    return {name, HandleFamily::object, handle};
}

Handle Module(std::string_view name, HMODULE handle)
{
    return {name, HandleFamily::module, handle};
}

} // namespace

SC_HANDLE InterceptedServiceControl::OpenSCManagerA(const char* machine, const char* database, DWORD access)
{
    return m_point.Reasoned(
        "OpenSCManagerA", SC_HANDLE{}, [&] { return m_inner.OpenSCManagerA(machine, database, access); },
        Narrow{"machine", machine}, Narrow{"database", database}, Number{"access", access});
}

SC_HANDLE InterceptedServiceControl::OpenServiceA(SC_HANDLE manager, const char* name, DWORD access)
{
    return m_point.Reasoned(
        "OpenServiceA", SC_HANDLE{}, [&] { return m_inner.OpenServiceA(manager, name, access); },
        Service("manager", manager), Narrow{"name", name}, Number{"access", access});
}

BOOL InterceptedServiceControl::QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status)
{
    return m_point.Reasoned(
        "QueryServiceStatus", BOOL{0}, [&] { return m_inner.QueryServiceStatus(service, status); },
        Service("service", service), Pointer{"status", status});
}

BOOL InterceptedServiceControl::StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments)
{
    return m_point.Reasoned(
        "StartServiceA", BOOL{0}, [&] { return m_inner.StartServiceA(service, argumentCount, arguments); },
        Service("service", service), Number{"argumentCount", argumentCount}, Pointer{"arguments", arguments});
}

BOOL InterceptedServiceControl::CloseServiceHandle(SC_HANDLE handle)
{
    return m_point.Reasoned(
        "CloseServiceHandle", BOOL{0}, [&] { return m_inner.CloseServiceHandle(handle); }, Service("handle", handle));
}

HANDLE InterceptedProcesses::GetCurrentProcess()
{
    return m_point.Certain("GetCurrentProcess", [&] { return m_inner.GetCurrentProcess(); });
}

BOOL InterceptedProcesses::CreateProcessA(const char* application,
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
    return m_point.Reasoned(
        "CreateProcessA", BOOL{0},
        [&]
        {
            return m_inner.CreateProcessA(application, commandLine, processAttributes, threadAttributes, inheritHandles,
                                          creationFlags, environment, currentDirectory, startup, information);
        },
        Narrow{"application", application}, Narrow{"commandLine", commandLine},
        Pointer{"processAttributes", processAttributes}, Pointer{"threadAttributes", threadAttributes},
        Flag{"inheritHandles", inheritHandles}, Number{"creationFlags", creationFlags},
        Pointer{"environment", environment}, Narrow{"currentDirectory", currentDirectory}, Startup{"startup", startup},
        Pointer{"information", information});
}

DWORD InterceptedProcesses::WaitForSingleObject(HANDLE handle, DWORD milliseconds)
{
    return m_point.Reasoned(
        "WaitForSingleObject", static_cast<DWORD>(WAIT_FAILED),
        [&] { return m_inner.WaitForSingleObject(handle, milliseconds); }, Object("handle", handle),
        Number{"milliseconds", milliseconds});
}

HANDLE InterceptedProcesses::OpenProcess(DWORD access, BOOL inheritHandle, DWORD processId)
{
    return m_point.Reasoned(
        "OpenProcess", HANDLE{}, [&] { return m_inner.OpenProcess(access, inheritHandle, processId); },
        Number{"access", access}, Flag{"inheritHandle", inheritHandle}, Number{"processId", processId});
}

BOOL InterceptedProcesses::TerminateProcess(HANDLE process, UINT exitCode)
{
    return m_point.Reasoned(
        "TerminateProcess", BOOL{0}, [&] { return m_inner.TerminateProcess(process, exitCode); },
        Object("process", process), Number{"exitCode", exitCode});
}

BOOL InterceptedProcesses::CloseHandle(HANDLE handle)
{
    return m_point.Reasoned(
        "CloseHandle", BOOL{0}, [&] { return m_inner.CloseHandle(handle); }, Object("handle", handle));
}

DWORD InterceptedProcesses::GetModuleFileNameA(HMODULE module, char* fileName, DWORD size)
{
    return m_point.Reasoned(
        "GetModuleFileNameA", DWORD{0}, [&] { return m_inner.GetModuleFileNameA(module, fileName, size); },
        Module("module", module), Pointer{"fileName", fileName}, Number{"size", size});
}

HMODULE InterceptedProcesses::GetModuleHandleA(const char* moduleName)
{
    return m_point.Reasoned(
        "GetModuleHandleA", HMODULE{}, [&] { return m_inner.GetModuleHandleA(moduleName); },
        Narrow{"moduleName", moduleName});
}

FARPROC InterceptedProcesses::GetProcAddress(HMODULE module, const char* name)
{
    return m_point.Reasoned(
        "GetProcAddress", FARPROC{}, [&] { return m_inner.GetProcAddress(module, name); }, Module("module", module),
        Narrow{"name", name});
}

BOOL InterceptedSecurity::OpenProcessToken(HANDLE process, DWORD access, HANDLE* token)
{
    return m_point.Reasoned(
        "OpenProcessToken", BOOL{0}, [&] { return m_inner.OpenProcessToken(process, access, token); },
        Object("process", process), Number{"access", access}, Pointer{"token", token});
}

BOOL InterceptedSecurity::LookupPrivilegeValueA(const char* system, const char* name, LUID* luid)
{
    return m_point.Reasoned(
        "LookupPrivilegeValueA", BOOL{0}, [&] { return m_inner.LookupPrivilegeValueA(system, name, luid); },
        Narrow{"system", system}, Narrow{"name", name}, Pointer{"luid", luid});
}

BOOL InterceptedSecurity::AdjustTokenPrivileges(HANDLE token,
                                                BOOL disableAll,
                                                TOKEN_PRIVILEGES* newState,
                                                DWORD previousSize,
                                                TOKEN_PRIVILEGES* previous,
                                                DWORD* returnLength)
{
    return m_point.Reasoned(
        "AdjustTokenPrivileges", BOOL{0},
        [&]
        { return m_inner.AdjustTokenPrivileges(token, disableAll, newState, previousSize, previous, returnLength); },
        Object("token", token), Flag{"disableAll", disableAll}, Privileges{"newState", newState},
        Number{"previousSize", previousSize}, Pointer{"previous", previous}, Pointer{"returnLength", returnLength});
}

} // namespace calvix::wrappers
