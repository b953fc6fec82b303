#pragma once

#include "platform/platform.h"
#include "simulation/clock.h"
#include "simulation/debugger_output.h"
#include "simulation/internet.h"
#include "simulation/power.h"
#include "simulation/processes.h"
#include "simulation/security.h"
#include "simulation/service_control.h"
#include "simulation/text.h"
#include "simulation/wlan_service.h"

namespace calvix::simulation
{

/// The machine and everything that works on it, and the operations of the platform that they do.
struct Facilities
{
    explicit Facilities(const Scenario& scenario);

    platform::Platform Operations();

    Machine machine;
    SimulatedWlanService wlan{machine};
    SimulatedServiceControl services{machine};
    SimulatedPower power{machine};
    SimulatedSecurity security{machine};
    SimulatedProcesses processes{machine};
    SimulatedInternet internet{machine};
    SimulatedText text{machine};
    SimulatedClock clock{machine};
    SimulatedDebuggerOutput debugger{machine};
};

} // namespace calvix::simulation
