#pragma once

#include "simulation/wlan_service.h"

namespace calvix::simulation
{

/// The machine and everything that works on it, and the operations of the platform that they do.
struct Facilities
{
    explicit Facilities(const Scenario& scenario);

    /// To be called once.
    platform::Platform Operations();

    Machine machine;
    SimulatedWlanService wlan{machine};
    Parts parts;
};

} // namespace calvix::simulation
