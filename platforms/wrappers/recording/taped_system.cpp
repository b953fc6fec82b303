#include "wrappers/recording/taped_system.h"

#include <algorithm>

namespace calvix::recording
{

using wrappers::HandleFamily;

namespace
{

using IsWow64Function = BOOL(WINAPI*)(HANDLE, BOOL*);

BOOL WINAPI SayWow64(HANDLE, BOOL* wow64)
{
    *wow64 = TRUE;
    return TRUE;
}

BOOL WINAPI SayNoWow64(HANDLE, BOOL* wow64)
{
    *wow64 = FALSE;
    return TRUE;
}

/// A function's address means nothing elsewhere. Of the one that the library asks for, its answer is recorded, and a
/// replay has a function that gives it; any other is not there in a replay.
enum class Function
{
    none,
    saysNo,
    saysYes,
    other
};

Function KindOf(FARPROC address, const char* name, HANDLE process)
{
    if (address == nullptr)
        return Function::none;
    if (std::string_view(name) != "IsWow64Process")
        return Function::other;
    BOOL wow64 = FALSE;
    reinterpret_cast<IsWow64Function>(reinterpret_cast<void (*)()>(address))(process, &wow64);
    return wow64 != FALSE ? Function::saysYes : Function::saysNo;
}

FARPROC FunctionOf(Function kind)
{
    const auto address = [](IsWow64Function function)
    { return reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(function)); };
    if (kind == Function::saysYes)
        return address(SayWow64);
    return kind == Function::saysNo ? address(SayNoWow64) : nullptr;
}

void GiveStartup(Fields& fields, const STARTUPINFOA* startup)
{
    if (startup == nullptr)
        return;
    fields.Given("startupFlags", startup->dwFlags);
    fields.Given("showWindow", startup->wShowWindow);
}

void GivePrivileges(Fields& fields, const TOKEN_PRIVILEGES* privileges)
{
    fields.Given("privileges", privileges != nullptr ? privileges->PrivilegeCount : 0);
    if (privileges == nullptr || privileges->PrivilegeCount == 0)
        return;
    fields.Given("luid", privileges->Privileges[0].Luid.LowPart);
    fields.Given("attributes", privileges->Privileges[0].Attributes);
}

void DescribeLuid(Fields& fields, LUID& luid)
{
    fields.Number("low", luid.LowPart);
    fields.Number("high", luid.HighPart);
}

/// The privileges as they were before; there is never more than one of them here.
void DescribePrevious(Fields& fields, TOKEN_PRIVILEGES& previous)
{
    fields.Number("previousCount", previous.PrivilegeCount);
    if (previous.PrivilegeCount == 0)
        return;
    DescribeLuid(fields, previous.Privileges[0].Luid);
    fields.Number("attributes", previous.Privileges[0].Attributes);
}

} // namespace

SC_HANDLE TapedServiceControl::OpenSCManagerA(const char* machine, const char* database, DWORD access)
{
    return m_tape.Pass(
        "OpenSCManagerA", SC_HANDLE{}, [&] { return m_inner->OpenSCManagerA(machine, database, access); },
        [&](Fields& fields)
        {
            fields.GivenText("machine", machine);
            fields.GivenText("database", database);
            fields.Given("access", access);
        },
        [](Fields& fields, SC_HANDLE& manager) { fields.HandedOut("result", HandleFamily::service, manager); });
}

SC_HANDLE TapedServiceControl::OpenServiceA(SC_HANDLE manager, const char* name, DWORD access)
{
    return m_tape.Pass(
        "OpenServiceA", SC_HANDLE{}, [&] { return m_inner->OpenServiceA(manager, name, access); },
        [&](Fields& fields)
        {
            fields.GivenHandle("manager", HandleFamily::service, manager);
            fields.GivenText("name", name);
            fields.Given("access", access);
        },
        [](Fields& fields, SC_HANDLE& service) { fields.HandedOut("result", HandleFamily::service, service); });
}

BOOL TapedServiceControl::QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status)
{
    return m_tape.Pass(
        "QueryServiceStatus", BOOL{0}, [&] { return m_inner->QueryServiceStatus(service, status); },
        [&](Fields& fields) { fields.GivenHandle("service", HandleFamily::service, service); },
        [&](Fields& fields, BOOL& done)
        {
            if (done == FALSE || status == nullptr)
                return;
            fields.Number("dwServiceType", status->dwServiceType);
            fields.Number("dwCurrentState", status->dwCurrentState);
            fields.Number("dwControlsAccepted", status->dwControlsAccepted);
            fields.Number("dwWin32ExitCode", status->dwWin32ExitCode);
            fields.Number("dwServiceSpecificExitCode", status->dwServiceSpecificExitCode);
            fields.Number("dwCheckPoint", status->dwCheckPoint);
            fields.Number("dwWaitHint", status->dwWaitHint);
        });
}

BOOL TapedServiceControl::StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments)
{
    return m_tape.Pass(
        "StartServiceA", BOOL{0}, [&] { return m_inner->StartServiceA(service, argumentCount, arguments); },
        [&](Fields& fields)
        {
            fields.GivenHandle("service", HandleFamily::service, service);
            fields.Given("argumentCount", argumentCount);
        });
}

BOOL TapedServiceControl::CloseServiceHandle(SC_HANDLE handle)
{
    return m_tape.Pass(
        "CloseServiceHandle", BOOL{0}, [&] { return m_inner->CloseServiceHandle(handle); },
        [&](Fields& fields) { fields.GivenHandle("handle", HandleFamily::service, handle); });
}

HANDLE TapedProcesses::GetCurrentProcess()
{
    return m_tape.Pass(
        "GetCurrentProcess", INVALID_HANDLE_VALUE, [&] { return m_inner->GetCurrentProcess(); }, [](Fields&) {},
        [](Fields& fields, HANDLE& process) { fields.HandedOut("result", HandleFamily::object, process); });
}

BOOL TapedProcesses::CreateProcessA(const char* application,
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
    return m_tape.Pass(
        "CreateProcessA", BOOL{0},
        [&]
        {
            return m_inner->CreateProcessA(application, commandLine, processAttributes, threadAttributes,
                                           inheritHandles, creationFlags, environment, currentDirectory, startup,
                                           information);
        },
        [&](Fields& fields)
        {
            fields.GivenText("application", application);
            fields.GivenText("commandLine", commandLine);
            fields.Given("inheritHandles", inheritHandles);
            fields.Given("creationFlags", creationFlags);
            fields.GivenText("currentDirectory", currentDirectory);
            GiveStartup(fields, startup);
        },
        [&](Fields& fields, BOOL& done)
        {
            if (done == FALSE || information == nullptr)
                return;
            fields.HandedOut("process", HandleFamily::object, information->hProcess);
            fields.HandedOut("thread", HandleFamily::object, information->hThread);
            fields.Number("processId", information->dwProcessId);
            fields.Number("threadId", information->dwThreadId);
        });
}

DWORD TapedProcesses::WaitForSingleObject(HANDLE handle, DWORD milliseconds)
{
    return m_tape.Pass(
        "WaitForSingleObject", DWORD{WAIT_FAILED}, [&] { return m_inner->WaitForSingleObject(handle, milliseconds); },
        [&](Fields& fields)
        {
            fields.GivenHandle("handle", HandleFamily::object, handle);
            fields.Given("milliseconds", milliseconds);
        });
}

HANDLE TapedProcesses::OpenProcess(DWORD access, BOOL inheritHandle, DWORD processId)
{
    return m_tape.Pass(
        "OpenProcess", HANDLE{}, [&] { return m_inner->OpenProcess(access, inheritHandle, processId); },
        [&](Fields& fields)
        {
            fields.Given("access", access);
            fields.Given("inheritHandle", inheritHandle);
            fields.Given("processId", processId);
        },
        [](Fields& fields, HANDLE& process) { fields.HandedOut("result", HandleFamily::object, process); });
}

BOOL TapedProcesses::TerminateProcess(HANDLE process, UINT exitCode)
{
    return m_tape.Pass(
        "TerminateProcess", BOOL{0}, [&] { return m_inner->TerminateProcess(process, exitCode); },
        [&](Fields& fields)
        {
            fields.GivenHandle("process", HandleFamily::object, process);
            fields.Given("exitCode", exitCode);
        });
}

BOOL TapedProcesses::CloseHandle(HANDLE handle)
{
    return m_tape.Pass(
        "CloseHandle", BOOL{0}, [&] { return m_inner->CloseHandle(handle); },
        [&](Fields& fields) { fields.GivenHandle("handle", HandleFamily::object, handle); });
}

DWORD TapedProcesses::GetModuleFileNameA(HMODULE module, char* fileName, DWORD size)
{
    return m_tape.Pass(
        "GetModuleFileNameA", DWORD{0}, [&] { return m_inner->GetModuleFileNameA(module, fileName, size); },
        [&](Fields& fields)
        {
            fields.GivenHandle("module", HandleFamily::module, module);
            fields.Given("size", size);
        },
        [&](Fields& fields, DWORD& length)
        {
            if (length == 0 || fileName == nullptr)
                return;
            std::string text = fields.isReading() ? std::string() : std::string(fileName, length);
            fields.Text("fileName", text);
            if (!fields.isReading())
                return;
            length = static_cast<DWORD>((std::min)(text.size(), static_cast<std::size_t>(size)));
            text.copy(fileName, length);
            if (length < size)
                fileName[length] = '\0';
        });
}

HMODULE TapedProcesses::GetModuleHandleA(const char* moduleName)
{
    return m_tape.Pass(
        "GetModuleHandleA", HMODULE{}, [&] { return m_inner->GetModuleHandleA(moduleName); },
        [&](Fields& fields) { fields.GivenText("moduleName", moduleName); },
        [](Fields& fields, HMODULE& module) { fields.HandedOut("result", HandleFamily::module, module); });
}

FARPROC TapedProcesses::GetProcAddress(HMODULE module, const char* name)
{
    return m_tape.Pass(
        "GetProcAddress", FARPROC{}, [&] { return m_inner->GetProcAddress(module, name); },
        [&](Fields& fields)
        {
            fields.GivenHandle("module", HandleFamily::module, module);
            fields.GivenText("name", name);
        },
        [&](Fields& fields, FARPROC& address)
        {
            Function kind = Function::none;
            if (!fields.isReading())
                kind = KindOf(address, name, m_inner->GetCurrentProcess());
            fields.Number("function", kind);
            if (fields.isReading())
                address = FunctionOf(kind);
        });
}

BOOL TapedSecurity::OpenProcessToken(HANDLE process, DWORD access, HANDLE* token)
{
    return m_tape.Pass(
        "OpenProcessToken", BOOL{0}, [&] { return m_inner->OpenProcessToken(process, access, token); },
        [&](Fields& fields)
        {
            fields.GivenHandle("process", HandleFamily::object, process);
            fields.Given("access", access);
        },
        [&](Fields& fields, BOOL& done)
        {
            if (done != FALSE)
                fields.HandedOutAt("token", HandleFamily::object, token);
        });
}

BOOL TapedSecurity::LookupPrivilegeValueA(const char* system, const char* name, LUID* luid)
{
    return m_tape.Pass(
        "LookupPrivilegeValueA", BOOL{0}, [&] { return m_inner->LookupPrivilegeValueA(system, name, luid); },
        [&](Fields& fields)
        {
            fields.GivenText("system", system);
            fields.GivenText("name", name);
        },
        [&](Fields& fields, BOOL& done)
        {
            if (done != FALSE && luid != nullptr)
                DescribeLuid(fields, *luid);
        });
}

BOOL TapedSecurity::AdjustTokenPrivileges(HANDLE token,
                                          BOOL disableAll,
                                          TOKEN_PRIVILEGES* newState,
                                          DWORD previousSize,
                                          TOKEN_PRIVILEGES* previous,
                                          DWORD* returnLength)
{
    return m_tape.Pass(
        "AdjustTokenPrivileges", BOOL{0},
        [&]
        { return m_inner->AdjustTokenPrivileges(token, disableAll, newState, previousSize, previous, returnLength); },
        [&](Fields& fields)
        {
            fields.GivenHandle("token", HandleFamily::object, token);
            fields.Given("disableAll", disableAll);
            GivePrivileges(fields, newState);
        },
        [&](Fields& fields, BOOL& done)
        {
            if (done == FALSE || previous == nullptr)
                return;
            DescribePrevious(fields, *previous);
            fields.NumberAt("returnLength", returnLength);
        });
}

} // namespace calvix::recording
