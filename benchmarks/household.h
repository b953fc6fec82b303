#pragma once

#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <cstddef>

namespace calvix::benchmarks
{

inline constexpr GUID kHouseholdAdapter{0x5CA1AB1E, 0x0001, 0x4000, {0x80, 0x00, 0x00, 0xCA, 0x1F, 0x1C, 0x00, 0x02}};
inline constexpr wchar_t kHouseholdProfile[] = L"Wireless network 0";

/// A simulated computer: `profiles` stored, `networks` heard from two access points each, of which `matches` have a
/// profile, and connected by the first profile.
simulation::Scenario HouseholdScenario(std::size_t profiles, std::size_t networks, std::size_t matches);

} // namespace calvix::benchmarks
