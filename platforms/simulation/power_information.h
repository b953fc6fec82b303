#pragma once

#include "platform/records/power_records.h"
#include "simulation/scenario_system.h"

namespace calvix::simulation
{

/// What the computer can do, according to `description`.
SYSTEM_POWER_CAPABILITIES MakeCapabilities(const PowerDescription& description);

/// The system's policy on mains power or on battery, taken out of the policy that is in force for both.
SYSTEM_POWER_POLICY MakeSystemPolicy(const POWER_POLICY& policy, bool onBattery);

} // namespace calvix::simulation
