#pragma once

#include "platform/platform.h"
#include "simulation/clock.h"
#include "simulation/debugger_output.h"
#include "simulation/internet.h"
#include "simulation/last_error.h"
#include "simulation/locked.h"
#include "simulation/machine.h"
#include "simulation/passing_time.h"
#include "simulation/power.h"
#include "simulation/processes.h"
#include "simulation/security.h"
#include "simulation/service_control.h"
#include "simulation/text.h"
#include "simulation/wlan_service.h"

namespace calvix::simulation
{

/// While a program sleeps, the service has the time to deliver its notifications.
struct WaitingProgram
{
    void Sleep(DWORD milliseconds)
    {
        PassTime(machine, std::chrono::milliseconds(static_cast<std::uint32_t>(milliseconds)));
    }

    Machine& machine;
};

/// The machine and everything that works on it, and the operations of the platform that they do.
struct Facilities
{
    explicit Facilities(const Scenario& scenario);

    platform::Platform Operations();

    Machine machine;
    SimulatedWlanService wlan{machine};
    Locked<SimulatedServiceControl> services{machine.mutex,
                                             {machine.lastError, machine.handles, machine.serviceRunning}};
    SimulatedPower power{machine};
    SimulatedSecurity security{machine};
    SimulatedProcesses processes{machine};
    SimulatedInternet internet{machine};
    SimulatedText text{machine.lastError, machine.codePage};
    SimulatedClock clock{machine.lastError, machine.time};
    WaitingProgram waiting{machine};
    Locked<SimulatedDebuggerOutput> debugger{machine.mutex, SimulatedDebuggerOutput(machine.debuggerLines)};
    SimulatedLastError errors{machine.lastError};
};

} // namespace calvix::simulation
