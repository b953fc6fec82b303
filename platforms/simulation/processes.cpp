#include "simulation/facility.h"

#include "platform/records/error_numbers.h"
#include "simulation/ascii_case.h"
#include "simulation/command_line_names.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace calvix::simulation
{

namespace
{

constexpr DWORD kPossibleDeadlock = 1131;
constexpr DWORD kSynchronizeRight = 0x00100000;
constexpr DWORD kEveryRight = 0x001FFFFF;
constexpr UINT_PTR kFirstNameAddress = 0x10000; // a smaller number is an ordinal

// Modules are known by the addresses at which they usually lie.
const HMODULE kHostModule = reinterpret_cast<HMODULE>(UINT_PTR{0x400000});
const HMODULE kKernelModule = reinterpret_cast<HMODULE>(UINT_PTR{0x7FF80000});
constexpr const char* kKernelPath = "C:\\Windows\\System32\\kernel32.dll";

// A program that has the function's address calls it directly.
template <BOOL answer>
BOOL WINAPI IsWow64Process(HANDLE, BOOL* wow64)
{
    if (wow64 == nullptr)
        return FALSE;
    *wow64 = answer;
    return TRUE;
}

std::string FolderOf(const std::string& path)
{
    return path.substr(0, path.rfind('\\') + 1);
}

/// Processes and modules. A process is a span of simulated time and an exit code; waiting for one lets that time pass.
class SimulatedProcesses final : public Facility
{
public:
    using Facility::Facility;

    HANDLE GetCurrentProcess() { return kOwnProcess; }

    // Chosen: neither the attributes nor the flags change anything about a simulated process.
    BOOL CreateProcessA(const char* application,
                        char* commandLine,
                        SECURITY_ATTRIBUTES*,
                        SECURITY_ATTRIBUTES*,
                        BOOL,
                        DWORD,
                        PVOID,
                        const char*,
                        STARTUPINFOA* startup,
                        PROCESS_INFORMATION* information)
    {
        const std::lock_guard lock(m_machine.mutex);
        if ((application == nullptr && commandLine == nullptr) || startup == nullptr || information == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        // The platform looks for a program only where the command line names it.
        const Program* const program = application != nullptr ? FindProgram(application) : FindCommand(commandLine);
        if (program == nullptr)
            return Fail(ERROR_FILE_NOT_FOUND);
        const DWORD id = m_machine.processes.Start(*program);
        information->hProcess = OpenHandle(HandleKind::process, id, kEveryRight);
        information->hThread = OpenHandle(HandleKind::thread, id, kEveryRight);
        information->dwProcessId = id;
        information->dwThreadId = id + 2; // chosen: numbers of processes and threads never meet
        return TRUE;
    }

    DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds)
    {
        Wait wait;
        {
            const std::lock_guard lock(m_machine.mutex);
            if (const DWORD error = PlanWait(handle, milliseconds, wait); error != ERROR_SUCCESS)
            {
                Fail(error);
                return WAIT_FAILED;
            }
        }
        PassTime(wait.duration);
        return wait.result;
    }

    HANDLE OpenProcess(DWORD access, BOOL, DWORD processId)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (const DWORD error = OpeningError(processId); error != ERROR_SUCCESS)
            return Fail(error);
        return OpenHandle(HandleKind::process, processId, access);
    }

    BOOL TerminateProcess(HANDLE process, UINT exitCode)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (process == kOwnProcess)
        {
            // There would be no caller left to return to.
            m_machine.defects.push_back("TerminateProcess: the program ends itself");
            return Fail(ERROR_ACCESS_DENIED);
        }
        if (!m_machine.handles.Use(process, HandleKind::process, "TerminateProcess"))
            return Fail(ERROR_INVALID_HANDLE);
        const ProcessTable::Access* const access = m_machine.processes.FindAccess(process);
        ProcessTable::Process* const target = m_machine.processes.Find(access->processId);
        if ((access->rights & PROCESS_TERMINATE) == 0 || !m_machine.processes.IsRunning(*target))
            return Fail(ERROR_ACCESS_DENIED);
        m_machine.processes.Terminate(*target, exitCode);
        return TRUE;
    }

    BOOL CloseHandle(HANDLE handle)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (handle == kOwnProcess)
            return TRUE;
        HandleKind kind = HandleKind::process;
        for (const HandleKind other : {HandleKind::thread, HandleKind::token})
            if (m_machine.handles.IsOpen(handle, other))
                kind = other;
        if (!m_machine.handles.Close(handle, kind, "CloseHandle"))
            return Fail(ERROR_INVALID_HANDLE);
        m_machine.processes.Unregister(handle);
        return TRUE;
    }

    DWORD GetModuleFileNameA(HMODULE module, char* fileName, DWORD size)
    {
        const std::lock_guard lock(m_machine.mutex);
        const std::optional<std::string> path = ModulePath(module);
        if (!path)
            return Fail(ERROR_MOD_NOT_FOUND);
        if (fileName == nullptr || size == 0)
            return Fail(ERROR_INSUFFICIENT_BUFFER);
        const std::size_t copied = path->copy(fileName, size - 1);
        fileName[copied] = '\0';
        if (copied == path->size())
            return static_cast<DWORD>(copied);
        Fail(ERROR_INSUFFICIENT_BUFFER);
        return size;
    }

    HMODULE GetModuleHandleA(const char* moduleName)
    {
        if (moduleName == nullptr)
            return kHostModule;
        if (SameButForCase(moduleName, "kernel32") || SameButForCase(moduleName, "kernel32.dll"))
            return kKernelModule;
        return Fail(ERROR_MOD_NOT_FOUND);
    }

    FARPROC GetProcAddress(HMODULE module, const char* name)
    {
        const std::lock_guard lock(m_machine.mutex);
        const bool isName = reinterpret_cast<UINT_PTR>(name) >= kFirstNameAddress;
        if (module != kKernelModule || !isName || std::string_view(name) != "IsWow64Process" ||
            !m_machine.present.wow64)
            return Fail(ERROR_PROC_NOT_FOUND);
        const auto function = *m_machine.present.wow64 ? &IsWow64Process<TRUE> : &IsWow64Process<FALSE>;
        // The cast through void(*)() shows the compiler that the change of the function's type is intended.
        return reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(function));
    }

private:
    /// How long a wait takes and how it ends.
    struct Wait
    {
        std::chrono::milliseconds duration{0};
        DWORD result = WAIT_OBJECT_0;
    };

    const Program* FindProgram(const std::string& name) const
    {
        return m_machine.processes.FindProgram(m_machine.Utf8FromNarrow(name));
    }

    const Program* FindCommand(const std::string& commandLine) const
    {
        const std::string folder = FolderOf(m_machine.NarrowFromUtf8(m_machine.present.programPath));
        for (const std::string& name : CommandNames(commandLine))
            for (const std::string& file : FilesOfCommand(name, folder))
                if (const Program* const program = FindProgram(file))
                    return program;
        return nullptr;
    }

    HANDLE OpenHandle(HandleKind kind, DWORD processId, DWORD rights)
    {
        const HANDLE handle = m_machine.handles.Open(kind);
        m_machine.processes.Register(handle, {processId, rights});
        return handle;
    }

    /// The result of waiting for the object of `handle`; returns the error if it cannot be waited for.
    DWORD PlanWait(HANDLE handle, DWORD milliseconds, Wait& wait)
    {
        const bool isThread = m_machine.handles.IsOpen(handle, HandleKind::thread);
        const ProcessTable::Process* process = nullptr;
        if (handle != kOwnProcess)
        {
            if (!isThread && !m_machine.handles.Use(handle, HandleKind::process, "WaitForSingleObject"))
                return ERROR_INVALID_HANDLE;
            const ProcessTable::Access* const access = m_machine.processes.FindAccess(handle);
            if ((access->rights & kSynchronizeRight) == 0)
                return ERROR_ACCESS_DENIED;
            process = m_machine.processes.Find(access->processId);
        }
        if (process != nullptr && !m_machine.processes.IsRunning(*process))
            return ERROR_SUCCESS;
        const bool forever = milliseconds == INFINITE;
        const std::chrono::milliseconds limit(static_cast<std::uint32_t>(milliseconds));
        if (process != nullptr && process->end && (forever || *process->end - m_machine.time.Now() <= limit))
            wait = {*process->end - m_machine.time.Now(), WAIT_OBJECT_0};
        else if (!forever)
            wait = {limit, WAIT_TIMEOUT};
        else
        {
            m_machine.defects.push_back("WaitForSingleObject: would never return");
            return kPossibleDeadlock;
        }
        return ERROR_SUCCESS;
    }

    DWORD OpeningError(DWORD processId)
    {
        const ProcessTable::Process* const process = m_machine.processes.Find(processId);
        if (process == nullptr)
            return ERROR_INVALID_PARAMETER;
        return process->foreign && !m_machine.IsPrivilegeEnabled("SeDebugPrivilege") ? ERROR_ACCESS_DENIED
                                                                                     : ERROR_SUCCESS;
    }

    std::optional<std::string> ModulePath(HMODULE module) const
    {
        if (module == nullptr || module == kHostModule)
            return m_machine.NarrowFromUtf8(m_machine.present.programPath);
        if (module == kKernelModule)
            return kKernelPath;
        return std::nullopt;
    }
};

} // namespace

platform::Processes MakeProcesses(Machine& machine, Parts& parts)
{
    auto& processes = AddPart<SimulatedProcesses>(machine, parts);
    return {
        .GetCurrentProcess = CallsTo<&SimulatedProcesses::GetCurrentProcess>(processes),
        .CreateProcessA = CallsTo<&SimulatedProcesses::CreateProcessA>(processes),
        .WaitForSingleObject = CallsTo<&SimulatedProcesses::WaitForSingleObject>(processes),
        .OpenProcess = CallsTo<&SimulatedProcesses::OpenProcess>(processes),
        .TerminateProcess = CallsTo<&SimulatedProcesses::TerminateProcess>(processes),
        .CloseHandle = CallsTo<&SimulatedProcesses::CloseHandle>(processes),
        .GetModuleFileNameA = CallsTo<&SimulatedProcesses::GetModuleFileNameA>(processes),
        .GetModuleHandleA = CallsTo<&SimulatedProcesses::GetModuleHandleA>(processes),
        .GetProcAddress = CallsTo<&SimulatedProcesses::GetProcAddress>(processes),
    };
}

} // namespace calvix::simulation
