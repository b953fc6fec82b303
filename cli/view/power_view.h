#pragma once

#include "output/facts.h"
#include "simulation/scenario_system.h"

#include <cstdint>
#include <optional>
#include <string>

namespace calvix::host
{

/// Power management as this program itself looks at it, for what the library has no method for.

/// Whether the computer can do it, or has it.
bool CanSleep();
bool CanHibernate();
bool CanShutDown();

/// The policy on mains power or on battery; none if the system does not report it.
std::optional<IdlePolicyFacts> ReadIdlePolicy(bool onBattery);

bool HasBattery();

/// The active power scheme, its name as it is stored; none if the system does not report it.
std::optional<simulation::PowerScheme> ReadActiveScheme();
/// Its name; empty where there is none or it has none.
std::string ActiveSchemeName();

/// What listing the power schemes begins with: 0 there is one, or the error that it ends with at once.
std::uint32_t SchemeListingError();

} // namespace calvix::host
