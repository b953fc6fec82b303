#pragma once

#include "simulation/event_queue.h"
#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::simulation
{

/// The handle that every process has of itself: a constant of the platform, which is why asking for it cannot fail.
inline const HANDLE kOwnProcess = reinterpret_cast<HANDLE>(~UINT_PTR{0});

/// The programs that are installed, the processes that run or ran, and the handles that programs have to them. Paths are
/// compared without regard to the case of ASCII letters.
class ProcessTable
{
public:
    struct Process
    {
        std::string path;
        std::optional<std::chrono::milliseconds> end; ///< when it ends or ended; none: not by itself
        DWORD exitCode = 0;
        bool foreign = false;
    };

    /// What a handle is good for.
    struct Access
    {
        DWORD processId = 0;
        DWORD rights = 0;
    };

    /// Throws ScenarioError when the scenario contradicts itself. Both outlive this object.
    ProcessTable(const Scenario& scenario, const EventQueue& time);

    /// Those that run now, as a scenario says it.
    std::vector<RunningProcess> Running() const;

    const Program* FindProgram(std::string_view path) const;

    /// A process of this program. Its number is one that none has had.
    DWORD Start(const Program& program);
    /// The process of this number while it runs or a handle to it is open, else null.
    Process* Find(DWORD id);
    bool IsRunning(const Process& process) const;
    /// Ends a running process now.
    void Terminate(Process& process, DWORD exitCode);

    void Register(HANDLE handle, Access access) { m_handles[handle] = access; }
    /// What was registered for the handle, or null.
    const Access* FindAccess(HANDLE handle) const;
    /// Forgets the handle and, with the last one to it, a process that has ended.
    void Unregister(HANDLE handle);

private:
    bool HasHandle(DWORD id) const;

    const EventQueue& m_time;
    const std::vector<Program>& m_programs;
    std::map<DWORD, Process> m_processes;
    std::map<HANDLE, Access> m_handles;
    DWORD m_lastId;
};

} // namespace calvix::simulation
