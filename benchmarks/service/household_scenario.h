#pragma once

#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <cstddef>

namespace calvix::benchmarks
{

inline constexpr GUID kHouseholdAdapter{0x5CA1AB1E, 0x0001, 0x4000, {0x80, 0x00, 0x00, 0xCA, 0x1F, 0x1C, 0x00, 0x02}};

/// A simulated computer with the list service's household: `profiles` stored, `networks` heard from two access points
/// each, every `distance`-th of the first ones with a profile, and connected by the first profile.
simulation::Scenario HouseholdScenario(std::size_t profiles = 10, std::size_t networks = 20, std::size_t matches = 3);

} // namespace calvix::benchmarks
