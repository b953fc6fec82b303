#pragma once

#include "simulation/clock.h"
#include "simulation/debugger_output.h"
#include "simulation/machine.h"
#include "simulation/passing_time.h"
#include "simulation/service_control.h"

#include <chrono>
#include <cstdint>
#include <mutex>

namespace calvix::simulation
{

/// Facilities that share something with others, for use from several threads: each operation is done under the
/// machine's mutex.

class LockedServiceControl final : public platform::ServiceControl
{
public:
    /// `machine` outlives this object.
    explicit LockedServiceControl(Machine& machine)
        : m_mutex(machine.mutex), m_services(machine.lastError, machine.handles, machine.serviceRunning)
    {
    }

    SC_HANDLE OpenSCManagerA(const char* machine, const char* database, DWORD access) override
    {
        const std::lock_guard lock(m_mutex);
        return m_services.OpenSCManagerA(machine, database, access);
    }
    SC_HANDLE OpenServiceA(SC_HANDLE manager, const char* name, DWORD access) override
    {
        const std::lock_guard lock(m_mutex);
        return m_services.OpenServiceA(manager, name, access);
    }
    BOOL QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status) override
    {
        const std::lock_guard lock(m_mutex);
        return m_services.QueryServiceStatus(service, status);
    }
    BOOL StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments) override
    {
        const std::lock_guard lock(m_mutex);
        return m_services.StartServiceA(service, argumentCount, arguments);
    }
    BOOL CloseServiceHandle(SC_HANDLE handle) override
    {
        const std::lock_guard lock(m_mutex);
        return m_services.CloseServiceHandle(handle);
    }

private:
    std::mutex& m_mutex;
    SimulatedServiceControl m_services;
};

class LockedDebuggerOutput final : public platform::DebuggerOutput
{
public:
    /// `machine` outlives this object.
    explicit LockedDebuggerOutput(Machine& machine) : m_mutex(machine.mutex), m_debugger(machine.debuggerLines) {}

    void OutputDebugStringA(const char* text) override
    {
        const std::lock_guard lock(m_mutex);
        m_debugger.OutputDebugStringA(text);
    }

private:
    std::mutex& m_mutex;
    SimulatedDebuggerOutput m_debugger;
};

/// While a program sleeps, the service has the time to deliver what it has to tell.
class LockedClock final : public platform::Clock
{
public:
    /// `machine` outlives this object.
    explicit LockedClock(Machine& machine) : m_machine(machine), m_clock(machine.lastError, machine.time) {}

    void Sleep(DWORD milliseconds) override
    {
        PassTime(m_machine, std::chrono::milliseconds(static_cast<std::uint32_t>(milliseconds)));
    }
    BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime) override
    {
        return m_clock.FileTimeToSystemTime(fileTime, systemTime);
    }

private:
    Machine& m_machine;
    SimulatedClock m_clock;
};

} // namespace calvix::simulation
