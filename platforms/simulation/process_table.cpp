#include "simulation/process_table.h"

#include "simulation/ascii_case.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

// Process numbers are multiples of four; their beginning has no meaning.
constexpr DWORD kFirstProcessId = 5000;
constexpr DWORD kProcessIdStep = 4;

std::optional<std::chrono::milliseconds> EndAfter(std::chrono::milliseconds now,
                                                  const std::optional<std::uint32_t>& milliseconds)
{
    if (!milliseconds)
        return std::nullopt;
    return now + std::chrono::milliseconds(*milliseconds);
}

} // namespace

ProcessTable::ProcessTable(const Scenario& scenario, const EventQueue& time)
    : m_time(time), m_programs(scenario.programs), m_lastId(kFirstProcessId)
{
    for (const RunningProcess& each : scenario.processes)
    {
        const Process process{each.path, EndAfter(m_time.Now(), each.milliseconds), each.exitCode, each.foreign};
        if (each.id == 0 || !m_processes.emplace(each.id, process).second)
            throw ScenarioError("process " + std::to_string(each.id) + ": not a number of its own");
        m_lastId = std::max<DWORD>(m_lastId, each.id);
    }
}

std::vector<RunningProcess> ProcessTable::Running() const
{
    std::vector<RunningProcess> running;
    for (const auto& [id, process] : m_processes)
    {
        if (!IsRunning(process))
            continue;
        RunningProcess described{static_cast<std::uint32_t>(id), process.path, std::nullopt,
                                 static_cast<std::uint32_t>(process.exitCode), process.foreign};
        if (process.end)
            described.milliseconds = static_cast<std::uint32_t>((*process.end - m_time.Now()).count());
        running.push_back(described);
    }
    return running;
}

const Program* ProcessTable::FindProgram(std::string_view path) const
{
    const auto found = std::find_if(m_programs.begin(), m_programs.end(),
                                    [path](const Program& each) { return SameButForCase(each.path, path); });
    return found != m_programs.end() ? &*found : nullptr;
}

DWORD ProcessTable::Start(const Program& program)
{
    m_lastId += kProcessIdStep;
    m_processes[m_lastId] = {program.path, EndAfter(m_time.Now(), program.milliseconds), program.exitCode, false};
    return m_lastId;
}

ProcessTable::Process* ProcessTable::Find(DWORD id)
{
    const auto found = m_processes.find(id);
    if (found == m_processes.end() || (!IsRunning(found->second) && !HasHandle(id)))
        return nullptr;
    return &found->second;
}

bool ProcessTable::IsRunning(const Process& process) const
{
    return !process.end || *process.end > m_time.Now();
}

void ProcessTable::Terminate(Process& process, DWORD exitCode)
{
    process.end = m_time.Now();
    process.exitCode = exitCode;
}

const ProcessTable::Access* ProcessTable::FindAccess(HANDLE handle) const
{
    const auto found = m_handles.find(handle);
    return found != m_handles.end() ? &found->second : nullptr;
}

void ProcessTable::Unregister(HANDLE handle)
{
    m_handles.erase(handle);
    std::erase_if(m_processes, [this](const auto& each) { return !IsRunning(each.second) && !HasHandle(each.first); });
}

bool ProcessTable::HasHandle(DWORD id) const
{
    return std::any_of(m_handles.begin(), m_handles.end(),
                       [id](const auto& each) { return each.second.processId == id; });
}

} // namespace calvix::simulation
